#pragma once

#include "model/defaults_store.h"
#include "model/json_coding.h"
#include "model/local_zone.h"

#include <QtCore/QUuid>

#include <cstdint>
#include <vector>

namespace tallyvane::notify {

/// A range of the day in which notifications may appear. Every value of the minutes is taken as it
/// is; those of the day are 0 to 1439.
struct NotificationWindow {
    QUuid id = QUuid::createUuid();     ///< tells the windows of a list apart
    bool enabled = true;                ///< a disabled window never matches
    bool allDay = false;                ///< matches every minute
    std::int64_t startMinutes = 9 * 60; ///< minutes after local midnight
    std::int64_t endMinutes = 18 * 60;  ///< exclusive; before the start: the range passes midnight

    bool operator==(const NotificationWindow&) const = default;
};

/// Whether and when the user wants to be told of a reset; off unless turned on.
struct NotificationSettings {
    bool enabled = false;
    std::vector<NotificationWindow> windows = {NotificationWindow{}}; ///< in the user's order

    bool operator==(const NotificationSettings&) const = default;
};

/// Whether a notification may appear at `moment`: some window holds its minute in `zone`. A window
/// that starts where it ends is empty.
[[nodiscard]] bool allows(const NotificationSettings& settings, model::Timestamp moment,
                          const model::LocalZone& zone);

/// One line of JSON. Keys are the field names, ids as in RFC 9562; every key is required when
/// reading, others are ignored.
[[nodiscard]] QByteArray encodeNotificationSettings(const NotificationSettings& settings);
[[nodiscard]] std::expected<NotificationSettings, model::DecodeError>
decodeNotificationSettings(const QByteArray& json);

/// The settings under "notificationSettings"; the defaults when there are none that decode.
[[nodiscard]] NotificationSettings loadNotificationSettings(model::DefaultsStore& defaults);

/// Replaces the stored settings.
std::expected<void, model::FileError>
saveNotificationSettings(model::DefaultsStore& defaults, const NotificationSettings& settings);

} // namespace tallyvane::notify
