#include "model/quota_snapshot.h"

#include <cstdlib>

using namespace tallyvane::model;

/// Whatever decodes must encode, and read back as equal.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray json(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (const auto snapshot = decodeSnapshot(json); snapshot) {
        const auto encoded = encodeSnapshot(*snapshot);
        if (!encoded || decodeSnapshot(*encoded) != *snapshot ||
            encodeSnapshot(*decodeSnapshot(*encoded)) != *encoded) {
            std::abort();
        }
    }
    return 0;
}
