#pragma once

#include <QCoro/QCoroTask>
#include <QtCore/QString>

namespace tallyvane::platform {

/// What the user is told. Plain texts without "&" and "<", which some desktops take for markup.
struct Notification {
    QString identifier; ///< a new one for each notification
    QString title;
    QString body;

    bool operator==(const Notification&) const = default;
};

/// The desktop's place for notifications. Main thread only.
class NotificationCentre {
public:
    virtual ~NotificationCentre() = default;

    /// Shows the notification at once, with the desktop's sound for messages, also while the
    /// program's own window is in front. One that cannot be shown is dropped.
    virtual void post(const Notification& notification) = 0;

    /// Whether notifications reach the user: false when nothing here shows any, or when the user
    /// turned them off; true when that cannot be found out. Answers within seconds.
    [[nodiscard]] virtual QCoro::Task<bool> isAuthorized() = 0;
};

} // namespace tallyvane::platform
