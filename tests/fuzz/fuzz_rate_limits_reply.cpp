// Whatever Codex replies can be stored and shown.

#include "model/foreign_text.h"
#include "providers/codex/rate_limits_reply.h"
#include "providers/reply_reading.h"
#include "support/readable.h"

#include <cstdlib>

using namespace tallyvane;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const auto reply = providers::parseObject(QByteArray(data, static_cast<qsizetype>(size)));
    if (!reply) {
        return 0;
    }
    const auto entry = providers::parseRateLimitsReply(*reply, {});
    if (!entry) {
        constexpr qsizetype maximumLength = 4096 + sizeof "Command failed (-1): ";
        if (!tests::isReadable(entry.error().text, maximumLength)) {
            std::abort();
        }
        return 0;
    }
    const auto json = model::encodeSnapshot({.providers = {*entry}});
    const auto stored = json ? model::decodeSnapshot(*json).value_or(model::QuotaSnapshot())
                             : model::QuotaSnapshot();
    if (stored.providers.size() != 1 || stored.providers[0].planName != entry->planName ||
        !tests::isReadableLine(entry->planName.value_or(QString()), model::maximumPlanNameLength)) {
        std::abort();
    }
    return 0;
}
