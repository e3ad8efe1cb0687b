#pragma once

#include "platform/notification_centre.h"

#include <QtCore/QHash>
#include <QtCore/QObject>

#include <chrono>

namespace tallyvane::platform {

/// The notification daemon on the session bus, as the Desktop Notifications Specification 1.2 has
/// it. Calls wait in the event loop, each at most `patience`. Touches the bus only when used.
class DBusNotificationCentre final : public QObject, public NotificationCentre {
    Q_OBJECT

public:
    explicit DBusNotificationCentre(std::chrono::milliseconds patience = std::chrono::seconds{5})
        : m_patience(patience) {}

    void post(const Notification& notification) override;

    /// See areNotificationsOn().
    [[nodiscard]] QCoro::Task<bool> isAuthorized() override;

Q_SIGNALS:
    /// The user clicked one of our notifications. The token (xdg-activation) lets a window come to
    /// the front; empty when the daemon gives none.
    void activated(const QString& activationToken);

private Q_SLOTS:
    void keepToken(uint id, const QString& token);
    void activate(uint id, const QString& action);
    void forget(uint id);

private:
    void listen();

    std::chrono::milliseconds m_patience;
    bool m_isListening = false;
    QHash<uint, QString> m_tokens; ///< per notification on show: its activation token, if any yet
};

} // namespace tallyvane::platform
