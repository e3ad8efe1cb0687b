#include "providers/codex/codex_quota_client.h"

#include "providers/advice.h"
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

QuotaFailure CodexQuotaClient::noProgram(const ProcessRunnerError& error) const {
    const Trouble trouble =
        m_program.chosen().isEmpty() ? Trouble::noCodex : Trouble::codexPathUnusable;
    QuotaFailure failure{.text = description(error), .advice = advice(trouble)};
    if (const QStringList found = m_program.findElsewhere(); !found.isEmpty()) {
        failure.foundProgram = found.constFirst();
        failure.advice = advice(Trouble::codexElsewhere);
    }
    return failure;
}

QCoro::Task<QuotaResult> CodexQuotaClient::fetch(AskedBy /*askedBy*/) {
    const auto executable = m_program.path();
    if (!executable) {
        co_return std::unexpected(noProgram(executable.error()));
    }
    const QStringList arguments{QStringLiteral("app-server")};
    const QByteArray input(requests);
    const CommandReply reply =
        co_await m_runner.requestRateLimits(*executable, arguments, input, timeout);
    if (!reply) {
        co_return std::unexpected(QuotaFailure{.text = description(reply.error()),
                                               .advice = advice(Trouble::codexNotAnswering)});
    }
    co_return parseRateLimitsReply(*reply, m_clock.now());
}

} // namespace tallyvane::providers
