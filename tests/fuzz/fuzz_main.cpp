// A dozen programs compile this, so it includes nothing large.

#include <cstddef>

class QByteArray;

namespace tallyvane::fuzz {
// In fuzz_targets.cpp.
void TALLYVANE_FUZZ_TARGET(const QByteArray& input);
void call(void (*target)(const QByteArray&), const char* data, std::size_t size);
} // namespace tallyvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    tallyvane::fuzz::call(tallyvane::fuzz::TALLYVANE_FUZZ_TARGET, data, size);
    return 0;
}
