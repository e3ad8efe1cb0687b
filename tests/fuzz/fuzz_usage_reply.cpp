#include "model/foreign_text.h"
#include "providers/claude/usage_reply.h"
#include "support/readable.h"

#include <cstdlib>

using namespace tallyvane;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const QByteArray body(data, static_cast<qsizetype>(size));
    const auto reply = providers::parseUsageReply(body, QString::fromUtf8(body), {});
    // Whatever was read can be stored and shown.
    const model::QuotaSnapshot snapshot{
        .providers = {reply.value_or(model::ProviderQuotaSnapshot())}};
    const QString plan = snapshot.providers[0].planName.value_or(QString());
    if (!model::encodeSnapshot(snapshot) ||
        !tests::isReadableLine(plan, model::maximumPlanNameLength)) {
        std::abort();
    }
    return 0;
}
