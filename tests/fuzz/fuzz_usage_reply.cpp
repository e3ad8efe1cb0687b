#include "fuzz/fuzz_target.h"
#include "model/foreign_text.h"
#include "providers/claude/usage_reply.h"
#include "support/readable.h"

/// Whatever was read can be stored and shown.
void tallyvane::fuzz::check(const QByteArray& input) {
    const auto reply = providers::parseUsageReply(input, QString::fromUtf8(input), {});
    const model::QuotaSnapshot snapshot{
        .providers = {reply.value_or(model::ProviderQuotaSnapshot())}};
    const QString plan = snapshot.providers[0].planName.value_or(QString());
    require(model::encodeSnapshot(snapshot) &&
            tests::isReadableLine(plan, model::maximumPlanNameLength));
}
