#pragma once

#include "platform/clock.h"
#include "platform/secret_store.h"
#include "providers/claude/claude_quota_source.h"
#include "providers/quota_client.h"

namespace tallyvane::app {

/// How the Claude service is reached.
struct ProxyAnswer {
    QString address; ///< "http://host:port"; empty for a direct connection
    QString fault;   ///< why the proxy cannot be used, in English; else empty
};

/// What asks the Claude service and the keyring. Main thread, but for what says otherwise; must
/// outlive its tasks.
class ClaudePart {
public:
    ClaudePart() = default;
    virtual ~ClaudePart() = default;
    ClaudePart(const ClaudePart&) = delete;
    ClaudePart& operator=(const ClaudePart&) = delete;

    [[nodiscard]] virtual providers::QuotaClient& client() = 0;
    [[nodiscard]] virtual platform::SecretStore& secrets() = 0;
    [[nodiscard]] virtual QCoro::Task<ProxyAnswer> proxy() = 0;
    /// The number of trusted roots in what the variables name. Blocks; any thread.
    [[nodiscard]] virtual qsizetype certificateCount() const = 0;
};

} // namespace tallyvane::app

/// Entry point of the library of this part. The caller owns the result, which `clock` must outlive.
extern "C" Q_DECL_EXPORT tallyvane::app::ClaudePart*
tallyvaneMakeClaudePart(const tallyvane::providers::ClaudeQuotaSource& source,
                        tallyvane::platform::Clock& clock);
