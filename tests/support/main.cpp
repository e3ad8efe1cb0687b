#include "support/test_main.h"

#include <cstdio>

using namespace tallyvane;

int main(int argc, char** argv) {
    const auto& tests = tests::knownTests();
    const auto test = tests.find(argc > 1 ? argv[1] : "");
    if (test == tests.end()) {
        std::fprintf(stderr, "usage: %s <test> [arguments of Qt Test]\n", argv[0]);
        for (const auto& [name, run] : tests) {
            std::fprintf(stderr, "  %s\n", name.c_str());
        }
        return 2;
    }
    const QTemporaryDir directory;
    tests::isolate(directory);
    return test->second(argc - 1, argv + 1);
}
