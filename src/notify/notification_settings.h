#pragma once

namespace tallyvane::notify {

/// Whether and when the user wants to be told of a reset; off unless turned on.
struct NotificationSettings {
    bool enabled = false;

    bool operator==(const NotificationSettings&) const = default;
};

} // namespace tallyvane::notify
