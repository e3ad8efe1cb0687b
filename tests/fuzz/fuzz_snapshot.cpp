#include "fuzz/fuzz_target.h"
#include "model/foreign_text.h"
#include "model/quota_snapshot.h"
#include "support/readable.h"

/// Whatever decodes must encode, decode to the same again, and have readable texts.
void tallyvane::fuzz::check(const QByteArray& input) {
    const auto snapshot = model::decodeSnapshot(input);
    if (!snapshot) {
        return;
    }
    const auto encoded = model::encodeSnapshot(*snapshot);
    require(encoded && model::decodeSnapshot(*encoded) == *snapshot);
    for (const model::ProviderQuotaSnapshot& entry : snapshot->providers) {
        require(tests::isReadableLine(entry.planName.value_or(QString()),
                                      model::maximumPlanNameLength) &&
                tests::isReadableLine(entry.statusMessage.value_or(QString()), 256));
    }
}
