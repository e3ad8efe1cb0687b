#pragma once

#include <QtCore/QByteArray>

#include <cstdlib>

namespace tallyvane::fuzz {

/// Makes the fuzzer report the input unless the condition holds.
inline void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

/// Checks one input. Defined once per target.
void check(const QByteArray& input);

} // namespace tallyvane::fuzz

// libFuzzer's name, in each target's only source file.
// NOLINTNEXTLINE(misc-definitions-in-headers, readability-identifier-naming)
extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    tallyvane::fuzz::check(QByteArray(data, static_cast<qsizetype>(size)));
    return 0;
}
