#pragma once

#include <QCoro/QCoroTask>
#include <QtCore/QObject>

namespace tallyvane::platform {

/// Plain texts without "&" and "<", which some desktops take for markup.
struct Notification {
    QString identifier; ///< unique per notification
    QString title;
    QString body;

    bool operator==(const Notification&) const = default;
};

/// Shows notifications on the desktop. Main thread only.
class NotificationCentre : public QObject {
    Q_OBJECT

public:
    /// Shows the notification at once, with the desktop's sound for messages, even while the
    /// program's own window has the focus. Drops it if it cannot be shown.
    virtual void post(const Notification& notification) = 0;

    /// Whether notifications reach the user: false if nothing shows them or the user turned them
    /// off, true if that is unknown. Takes a few seconds at most.
    [[nodiscard]] virtual QCoro::Task<bool> isAuthorized() = 0;

Q_SIGNALS:
    /// The answer of isAuthorized() may be another one now. Not emitted before the first question.
    void authorizationChanged();
};

} // namespace tallyvane::platform
