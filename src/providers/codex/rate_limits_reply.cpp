#include "providers/codex/rate_limits_reply.h"

#include "model/foreign_text.h"
#include "providers/json_members.h"
#include "providers/plan_name.h"

#include <cmath>

namespace tallyvane::providers {

namespace {

struct TimedWindow {
    model::QuotaWindowSnapshot quota;
    std::optional<double> minutes; ///< whole; a double, as no integer holds every JSON number
};

std::optional<TimedWindow> readTimedWindow(const QJsonObject& rateLimits, QLatin1StringView key) {
    const QJsonObject object = rateLimits[key].toObject();
    const std::optional<double> usedPercent =
        numberMember(object, QLatin1StringView{"usedPercent"});
    if (!usedPercent) {
        return std::nullopt;
    }
    TimedWindow window{.quota = {.usedPercent = *usedPercent}};
    if (const auto seconds = numberMember(object, QLatin1StringView{"resetsAt"})) {
        window.quota.resetsAt = model::timestampFromUnixSeconds(*seconds);
    }
    if (const auto minutes = numberMember(object, QLatin1StringView{"windowDurationMins"})) {
        window.minutes = std::trunc(*minutes);
    }
    return window;
}

bool isShort(const TimedWindow& window) {
    return window.minutes.value_or(0) <= 360;
}
bool isLong(const TimedWindow& window) {
    return window.minutes.value_or(0) >= 6000;
}

} // namespace

std::expected<model::ProviderQuotaSnapshot, CodexError>
parseRateLimitsReply(const QJsonObject& reply, model::Timestamp now) {
    if (const auto error = objectMember(reply, QLatin1StringView{"error"})) {
        const QString message = textMember(*error, QLatin1StringView{"message"})
                                    .value_or(QStringLiteral("Codex returned an unknown error."));
        return std::unexpected(
            ProcessRunnerError{ProcessRunnerError::Kind::failed, model::readableText(message)});
    }
    const QJsonObject result = reply[QLatin1StringView{"result"}].toObject();
    const auto rateLimits = objectMember(result, QLatin1StringView{"rateLimits"});
    if (!rateLimits) {
        return std::unexpected(CorruptReply{});
    }

    const auto primary = readTimedWindow(*rateLimits, QLatin1StringView{"primary"});
    const auto secondary = readTimedWindow(*rateLimits, QLatin1StringView{"secondary"});
    const auto choose = [&](bool (*fits)(const TimedWindow&),
                            const std::optional<TimedWindow>& standIn)
        -> std::optional<model::QuotaWindowSnapshot> {
        for (const auto* window : {&primary, &secondary}) {
            if (*window && fits(**window)) {
                return (*window)->quota;
            }
        }
        return standIn ? std::optional(standIn->quota) : std::nullopt;
    };

    model::ProviderQuotaSnapshot snapshot{.provider = model::AIProvider::codex,
                                          .fiveHour = choose(isShort, primary),
                                          .week = choose(isLong, secondary),
                                          .syncedAt = now,
                                          .syncState = model::QuotaSyncState::current};
    if (const auto planType = textMember(*rateLimits, QLatin1StringView{"planType"})) {
        snapshot.planName = planName(*planType);
    }
    return snapshot;
}

} // namespace tallyvane::providers
