#include "support/test_main.h"

#include <cstdio>
#include <malloc.h>

using namespace tallyvane;

int main(int argc, char** argv) {
    const auto& tests = tests::knownTests();
    const auto test = tests.find(argc > 1 ? argv[1] : "");
    if (test == tests.end()) {
        std::fprintf(stderr, "usage: %s <source file without .cpp> [arguments of Qt Test]\n",
                     argv[0]);
        return 2;
    }
    mallopt(M_PERTURB, 0xA5); // what reads freed memory, Qt too, shall fail
    const QTemporaryDir directory;
    tests::isolate(directory);
    return test->second(argc - 1, argv + 1);
}
