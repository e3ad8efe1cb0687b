#include "providers/claude/usage_reply.h"

#include <cstdlib>

using namespace tallyvane;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const QByteArray body(data, static_cast<qsizetype>(size));
    const auto reply = providers::parseUsageReply(body, QString::fromUtf8(body), {});
    // Whatever was read can be stored.
    const model::QuotaSnapshot snapshot{
        .providers = {reply.value_or(model::ProviderQuotaSnapshot())}};
    if (!model::encodeSnapshot(snapshot)) {
        std::abort();
    }
    return 0;
}
