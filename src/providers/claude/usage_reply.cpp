#include "providers/claude/usage_reply.h"

#include "providers/reply_reading.h"

namespace tallyvane::providers {

namespace {

model::QuotaWindowSnapshot readWindow(const QJsonObject& reply, QLatin1StringView key) {
    const QJsonObject member = reply[key].toObject();
    const auto utilization = numberMember(member, QLatin1StringView("utilization"));
    if (!utilization) {
        return {};
    }
    const auto reset = textMember(member, QLatin1StringView("resets_at"));
    return {.usedPercent = *utilization,
            .resetsAt = reset ? model::parseTimestamp(*reset, model::FractionalSeconds::allowed)
                              : std::nullopt};
}

} // namespace

std::expected<model::ProviderQuotaSnapshot, ClaudeQuotaError>
parseUsageReply(const QByteArray& body, const std::optional<QString>& planIdentifier,
                model::Timestamp now) {
    const auto reply = parseObject(body);
    if (!reply) {
        return std::unexpected(ClaudeQuotaError{ClaudeQuotaError::Kind::malformedResponse});
    }
    return model::ProviderQuotaSnapshot{
        .provider = model::AIProvider::claude,
        .planName = planIdentifier ? std::optional(planName(*planIdentifier)) : std::nullopt,
        .fiveHour = readWindow(*reply, QLatin1StringView("five_hour")),
        .week = readWindow(*reply, QLatin1StringView("seven_day")),
        .syncedAt = now,
        .syncState = model::QuotaSyncState::current};
}

} // namespace tallyvane::providers
