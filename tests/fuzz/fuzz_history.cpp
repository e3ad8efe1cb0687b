#include "history/usage_history.h"

#include <cstdlib>

using namespace tallyvane::history;

/// Whatever decodes must encode, and read back as equal.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray json(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (const auto history = decodeHistory(json); history) {
        const auto encoded = encodeHistory(*history);
        if (!encoded || decodeHistory(*encoded) != *history) {
            std::abort();
        }
    }
    return 0;
}
