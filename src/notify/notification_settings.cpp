#include "notify/notification_settings.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <algorithm>
#include <ranges>

namespace tallyvane::notify {

using model::JsonReader;

namespace {

const QString settingsKey = QStringLiteral("notificationSettings");

bool matches(const NotificationWindow& window, std::int64_t minute) {
    if (!window.enabled || window.allDay) {
        return window.enabled;
    }
    const bool hasStarted = minute >= window.startMinutes;
    const bool hasEnded = minute >= window.endMinutes;
    if (window.startMinutes <= window.endMinutes) {
        return hasStarted && !hasEnded;
    }
    return hasStarted || !hasEnded;
}

} // namespace

bool allows(const NotificationSettings& settings, model::Timestamp moment,
            const model::LocalZone& zone) {
    const model::LocalTime time = zone.localTime(moment);
    const auto sinceMidnight = time - std::chrono::floor<std::chrono::days>(time);
    const std::int64_t minute = std::chrono::floor<std::chrono::minutes>(sinceMidnight).count();
    return settings.enabled &&
           std::ranges::any_of(settings.windows, [minute](const NotificationWindow& window) {
               return matches(window, minute);
           });
}

bool isEmpty(const NotificationWindow& window) {
    const auto minutes = std::views::iota(0, 24 * 60);
    return std::ranges::none_of(minutes, [&](int minute) { return matches(window, minute); });
}

bool allowsAnyTime(const NotificationSettings& settings) {
    return !std::ranges::all_of(settings.windows, isEmpty);
}

QByteArray encodeNotificationSettings(const NotificationSettings& settings) {
    QJsonArray windows;
    for (const NotificationWindow& window : settings.windows) {
        windows.append(QJsonObject{{QStringLiteral("id"), window.id.toString(QUuid::WithoutBraces)},
                                   {QStringLiteral("enabled"), window.enabled},
                                   {QStringLiteral("allDay"), window.allDay},
                                   {QStringLiteral("startMinutes"), qint64{window.startMinutes}},
                                   {QStringLiteral("endMinutes"), qint64{window.endMinutes}}});
    }
    const QJsonObject object{{QStringLiteral("enabled"), settings.enabled},
                             {QStringLiteral("windows"), windows}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::expected<NotificationSettings, model::DecodeError>
decodeNotificationSettings(const QByteArray& json) {
    const auto readWindow = [](const JsonReader& window) {
        return NotificationWindow{
            .id = window.uuid(QLatin1StringView{"id"}),
            .enabled = window.boolean(QLatin1StringView{"enabled"}),
            .allDay = window.boolean(QLatin1StringView{"allDay"}),
            .startMinutes = window.integer(QLatin1StringView{"startMinutes"}),
            .endMinutes = window.integer(QLatin1StringView{"endMinutes"}),
        };
    };
    return model::decodeJson<NotificationSettings>(json, [&](const JsonReader& reader) {
        return NotificationSettings{
            .enabled = reader.boolean(QLatin1StringView{"enabled"}),
            .windows = reader.list<NotificationWindow>(QLatin1StringView{"windows"}, readWindow),
        };
    });
}

NotificationSettings loadNotificationSettings(model::DefaultsStore& defaults) {
    return decodeNotificationSettings(defaults.data(settingsKey)).value_or(NotificationSettings{});
}

std::expected<void, model::FileError>
saveNotificationSettings(model::DefaultsStore& defaults, const NotificationSettings& settings) {
    return defaults.setData(settingsKey, encodeNotificationSettings(settings));
}

} // namespace tallyvane::notify
