#include "providers/codex/rate_limits_reply.h"

#include "model/foreign_text.h"
#include "providers/advice.h"
#include "providers/process_runner_error.h"
#include "providers/reply_reading.h"

#include <cmath>

namespace tallyvane::providers {

namespace {

struct TimedWindow {
    model::QuotaWindowSnapshot quota;
    std::optional<double> minutes; ///< whole; a double because JSON numbers exceed any integer
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

QuotaResult parseRateLimitsReply(const QJsonObject& reply, model::Timestamp now) {
    if (const QJsonValue error = reply[QLatin1StringView{"error"}]; error.isObject()) {
        const QString message = error[QLatin1StringView{"message"}].toString(
            QString::fromLatin1(QT_TRANSLATE_NOOP("Message", "Codex returned an unknown error.")));
        const ProcessRunnerError failed{ProcessRunnerError::Kind::failed,
                                        model::readableText(message)};
        // "codex account authentication required to read rate limits" (CLI 0.169)
        const bool isNotSignedIn = message.contains(QStringLiteral("authentication required"));
        return std::unexpected(QuotaFailure{
            .text = description(failed),
            .advice = advice(isNotSignedIn ? Trouble::codexNotSignedIn : Trouble::codexAnswer)});
    }
    const QJsonValue limits =
        reply[QLatin1StringView{"result"}].toObject()[QLatin1StringView{"rateLimits"}];
    if (!limits.isObject()) {
        return std::unexpected(
            QuotaFailure{.text = model::Message(QT_TRANSLATE_NOOP(
                             "Message", "The reply of the Codex CLI could not be read.")),
                         .advice = advice(Trouble::codexAnswer)});
    }
    const QJsonObject rateLimits = limits.toObject();

    const auto primary = readTimedWindow(rateLimits, QLatin1StringView{"primary"});
    const auto secondary = readTimedWindow(rateLimits, QLatin1StringView{"secondary"});
    const auto choose = [&](bool (*fits)(const TimedWindow&),
                            const std::optional<TimedWindow>& fallback)
        -> std::optional<model::QuotaWindowSnapshot> {
        for (const auto* window : {&primary, &secondary}) {
            if (*window && fits(**window)) {
                return (*window)->quota;
            }
        }
        return fallback ? std::optional(fallback->quota) : std::nullopt;
    };

    model::ProviderQuotaSnapshot snapshot{.provider = model::AIProvider::codex,
                                          .fiveHour = choose(isShort, primary),
                                          .week = choose(isLong, secondary),
                                          .syncedAt = now,
                                          .syncState = model::QuotaSyncState::current};
    if (const auto planType = textMember(rateLimits, QLatin1StringView{"planType"})) {
        snapshot.planName = planName(*planType);
    }
    return snapshot;
}

} // namespace tallyvane::providers
