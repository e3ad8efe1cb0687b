#pragma once

#include "platform/notification_centre.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <chrono>
#include <filesystem>

namespace tallyvane::platform {

/// The notification daemon on the session bus (Desktop Notifications Specification 1.2). Does not
/// connect to the bus before its first use.
class DBusNotificationCentre final : public NotificationCentre {
    Q_OBJECT

public:
    /// `searchPath` holds the folders of $PATH, `configHome` is $XDG_CONFIG_HOME; each question
    /// waits at most `patience`.
    DBusNotificationCentre(QStringList searchPath, std::filesystem::path configHome,
                           std::chrono::milliseconds patience = std::chrono::seconds{5})
        : m_searchPath(std::move(searchPath)),
          m_configHome(std::move(configHome)),
          m_patience(patience) {}

    void post(const Notification& notification) override;
    /// Daemons accept notifications even while the user has them off. Off is, as seen in
    /// - dunst 1.9: property `paused` of org.dunstproject.cmd0
    /// - xfce4-notifyd 0.7: `/do-not-disturb` of the Xfconf channel xfce4-notifyd, or
    ///   `/applications/muted_applications` there names us
    /// - Plasma 5.27: property `Inhibited` of org.freedesktop.Notifications, or `ShowPopups` of our
    ///   application in plasmanotifyrc is false
    /// - GNOME Shell 43: GSettings `show-banners`, or `enable` of our application, is false
    ///
    /// An unknown daemon counts as on, as does one that gives no usable answer in time. Without a
    /// session bus or a daemon: off. Starts the daemon if need be, but not again after the bus has
    /// told of one: one that ends at once would be started for ever by whoever follows
    /// authorizationChanged().
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
    std::filesystem::path m_configHome;
    std::chrono::milliseconds m_patience;
    bool m_isListening = false;
    bool m_mayStartDaemon = true;
    QHash<uint, QString> m_tokens; ///< activation tokens, by id of the notification
};

} // namespace tallyvane::platform
