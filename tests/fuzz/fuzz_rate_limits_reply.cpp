#include "fuzz/fuzz_target.h"
#include "model/foreign_text.h"
#include "providers/codex/rate_limits_reply.h"
#include "providers/reply_reading.h"
#include "support/readable.h"

/// Whatever Codex replies can be stored and shown.
void tallyvane::fuzz::check(const QByteArray& input) {
    const auto reply = providers::parseObject(input);
    if (!reply) {
        return;
    }
    const auto entry = providers::parseRateLimitsReply(*reply, {});
    if (!entry) {
        constexpr qsizetype maximumLength = 4096 + sizeof "Command failed (-1): ";
        require(tests::isReadable(entry.error().text, maximumLength));
        return;
    }
    const auto json = model::encodeSnapshot({.providers = {*entry}});
    require(json.has_value());
    const auto stored = model::decodeSnapshot(*json);
    require(
        stored && stored->providers.size() == 1 &&
        stored->providers[0].planName == entry->planName &&
        tests::isReadableLine(entry->planName.value_or(QString()), model::maximumPlanNameLength));
}
