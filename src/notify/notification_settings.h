#pragma once

#include "model/defaults_store.h"
#include "model/json_coding.h"
#include "model/local_zone.h"

#include <QtCore/QUuid>

#include <cstdint>
#include <vector>

namespace tallyvane::notify {

/// A range of the day in which notifications may appear. Minutes are normally 0 to 1439, but other
/// values are not rejected.
struct NotificationWindow {
    QUuid id = QUuid::createUuid();     ///< unique in a list
    bool enabled = true;                ///< a disabled window never matches
    bool allDay = false;                ///< matches every minute
    std::int64_t startMinutes = 9 * 60; ///< minutes after local midnight
    std::int64_t endMinutes = 18 * 60; ///< exclusive; less than the start for a range past midnight

    bool operator==(const NotificationWindow&) const = default;
};

/// Whether and when to notify of resets.
struct NotificationSettings {
    bool enabled = false;
    std::vector<NotificationWindow> windows = {NotificationWindow{}}; ///< in display order

    bool operator==(const NotificationSettings&) const = default;
};

/// Whether a notification may appear at `moment`, that is, whether any window contains its minute
/// in `zone`. A window with equal start and end is empty.
[[nodiscard]] bool allows(const NotificationSettings& settings, model::Timestamp moment,
                          const model::LocalZone& zone);

/// Whether a window matches no minute of the day.
[[nodiscard]] bool isEmpty(const NotificationWindow& window);

/// Whether any minute of the day is allowed. Regardless of the master switch.
[[nodiscard]] bool allowsAnyTime(const NotificationSettings& settings);

/// The JSON form, one line. Keys are the field names, ids are RFC 9562 texts. Decoding requires
/// each key and ignores others.
[[nodiscard]] QByteArray encodeNotificationSettings(const NotificationSettings& settings);
[[nodiscard]] std::expected<NotificationSettings, model::DecodeError>
decodeNotificationSettings(const QByteArray& json);

/// Reads the settings under "notificationSettings"; the defaults if they cannot be decoded.
[[nodiscard]] NotificationSettings loadNotificationSettings(model::DefaultsStore& defaults);

/// Stores the settings there.
std::expected<void, model::FileError>
saveNotificationSettings(model::DefaultsStore& defaults, const NotificationSettings& settings);

} // namespace tallyvane::notify
