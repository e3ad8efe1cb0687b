#pragma once

#include "platform/notification_centre.h"

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <chrono>

namespace tallyvane::platform {

/// The notification daemon on the session bus (Desktop Notifications Specification 1.2). Does not
/// connect to the bus before its first use.
class DBusNotificationCentre final : public QObject, public NotificationCentre {
    Q_OBJECT

public:
    /// `searchPath` holds the folders of $PATH; each question waits at most `patience`.
    explicit DBusNotificationCentre(QStringList searchPath,
                                    std::chrono::milliseconds patience = std::chrono::seconds{5})
        : m_searchPath(std::move(searchPath)), m_patience(patience) {}

    void post(const Notification& notification) override;
    /// Daemons accept notifications even while the user has them off, and each has its own way to
    /// tell:
    ///
    /// | daemon | off when | seen in |
    /// |---|---|---|
    /// | dunst | property `paused` of org.dunstproject.cmd0 | 1.9 |
    /// | xfce4-notifyd | `/do-not-disturb` of the Xfconf channel xfce4-notifyd, or
    /// `/applications/muted_applications` there names us | 0.7 | | Plasma | property `Inhibited` of
    /// org.freedesktop.Notifications | 5.27 | | GNOME Shell | GSettings `show-banners`, or `enable`
    /// of our application, is false | 43 |
    ///
    /// An unknown daemon counts as on, as does one that gives no usable answer in time. Without a
    /// session bus or a daemon: off.
    [[nodiscard]] QCoro::Task<bool> isAuthorized() override;

Q_SIGNALS:
    /// The user clicked one of our notifications. The token (xdg-activation) lets a window take the
    /// focus; empty when the daemon gives none.
    void activated(const QString& activationToken);

private Q_SLOTS:
    void keepToken(uint id, const QString& token);
    void activate(uint id, const QString& action);
    void forget(uint id);

private:
    void listen();

    QStringList m_searchPath;
    std::chrono::milliseconds m_patience;
    bool m_isListening = false;
    QHash<uint, QString> m_tokens; ///< activation tokens, by id of the notification
};

} // namespace tallyvane::platform
