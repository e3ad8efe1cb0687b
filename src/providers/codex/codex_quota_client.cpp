#include "providers/codex/codex_quota_client.h"

#include "providers/codex/rate_limits_reply.h"

namespace tallyvane::providers {

namespace {

constexpr char requests[] = R"({"method":"initialize","id":0,"params":{"clientInfo":)"
                            R"({"name":"tallyvane","title":"Tallyvane","version":"1.0"}}})"
                            "\n"
                            R"({"method":"initialized","params":{}})"
                            "\n"
                            R"({"method":"account/rateLimits/read","id":1,"params":null})"
                            "\n";

constexpr std::chrono::seconds timeout{20};

} // namespace

QStringList codexCandidates(const QString& homeDirectory) {
    return {QStringLiteral("/opt/homebrew/bin/codex"), QStringLiteral("/usr/local/bin/codex"),
            homeDirectory + QStringLiteral("/.local/bin/codex")};
}

QCoro::Task<QuotaResult> CodexQuotaClient::fetch(AskedBy /*askedBy*/) {
    const std::optional<QString> executable = findExecutable(m_candidates);
    if (!executable) {
        const ProcessRunnerError notFound{ProcessRunnerError::Kind::executableNotFound,
                                          QStringLiteral("Codex CLI")};
        co_return std::unexpected(QuotaFailure{description(notFound)});
    }
    const QStringList arguments{QStringLiteral("app-server")};
    const QByteArray input(requests);
    const CommandReply reply =
        co_await m_runner.requestRateLimits(*executable, arguments, input, timeout);
    if (!reply) {
        co_return std::unexpected(QuotaFailure{description(reply.error())});
    }
    co_return parseRateLimitsReply(*reply, m_clock.now());
}

} // namespace tallyvane::providers
