#include <QtCore/QByteArray>

namespace tallyvane::fuzz {
void TALLYVANE_FUZZ_TARGET(const QByteArray& input); // in fuzz_targets.cpp
} // namespace tallyvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    tallyvane::fuzz::TALLYVANE_FUZZ_TARGET(QByteArray(data, static_cast<qsizetype>(size)));
    return 0;
}
