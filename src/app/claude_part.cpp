#include "app/claude_part.h"

#include "platform/linux/secret_service_store.h"
#include "providers/claude/claude_quota_client.h"

#include <QCoro/QCoroFuture>

namespace tallyvane::app {

namespace {

class LoadedClaudePart final : public ClaudePart {
public:
    LoadedClaudePart(const providers::ClaudeQuotaSource& source, platform::Clock& clock)
        : m_source(source), m_client(source, m_secrets, clock) {}

    [[nodiscard]] providers::QuotaClient& client() override { return m_client; }
    [[nodiscard]] platform::SecretStore& secrets() override { return m_secrets; }

    [[nodiscard]] QCoro::Task<ProxyAnswer> proxy() override {
        const QFuture<providers::NetworkSetupFinder::Result> search =
            m_finder.find(m_source.usageURL, m_source.network, std::nullopt);
        const providers::NetworkSetupFinder::Result setup = co_await search;
        ProxyAnswer answer;
        if (setup) {
            answer.address = providers::proxyAddress(setup->proxy);
        } else {
            answer.fault = setup.error();
        }
        co_return answer;
    }

    [[nodiscard]] qsizetype certificateCount() const override {
        return providers::certificateCount(m_source.network);
    }

private:
    providers::ClaudeQuotaSource m_source;
    platform::SecretServiceStore m_secrets;
    providers::NetworkSetupFinder m_finder;
    providers::ClaudeQuotaClient m_client;
};

} // namespace

} // namespace tallyvane::app

tallyvane::app::ClaudePart*
tallyvaneMakeClaudePart(const tallyvane::providers::ClaudeQuotaSource& source,
                        tallyvane::platform::Clock& clock) {
    return new tallyvane::app::LoadedClaudePart(source, clock);
}
