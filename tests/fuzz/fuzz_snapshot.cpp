#include "model/foreign_text.h"
#include "model/quota_snapshot.h"
#include "support/readable.h"

#include <cstdlib>

using namespace tallyvane;
using namespace tallyvane::model;

/// Whatever decodes must encode, and read back as equal; its texts can be shown.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray json(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (const auto snapshot = decodeSnapshot(json); snapshot) {
        const auto encoded = encodeSnapshot(*snapshot);
        if (!encoded || decodeSnapshot(*encoded) != *snapshot ||
            encodeSnapshot(*decodeSnapshot(*encoded)) != *encoded) {
            std::abort();
        }
        for (const ProviderQuotaSnapshot& entry : snapshot->providers) {
            if (!tests::isReadableLine(entry.planName.value_or(QString()), maximumPlanNameLength) ||
                !tests::isReadableLine(entry.statusMessage.value_or(QString()), 256)) {
                std::abort();
            }
        }
    }
    return 0;
}
