#include "platform/linux/notification_settings_page.h"

#include <QtCore/QHash>
#include <QtCore/QStandardPaths>

namespace tallyvane::platform {

std::optional<ProgramCall> notificationSettingsPage(const QString& currentDesktop,
                                                    const QStringList& searchPath) {
    const QHash<QString, ProgramCall> pages{
        {QStringLiteral("GNOME"),
         {QStringLiteral("gnome-control-center"), {QStringLiteral("notifications")}}},
        {QStringLiteral("KDE"),
         {QStringLiteral("systemsettings"), {QStringLiteral("kcm_notifications")}}},
        {QStringLiteral("XFCE"), {QStringLiteral("xfce4-notifyd-config"), {}}},
        {QStringLiteral("MATE"), {QStringLiteral("mate-notification-properties"), {}}},
        {QStringLiteral("LXQt"), {QStringLiteral("lxqt-config-notificationd"), {}}},
        {QStringLiteral("X-Cinnamon"),
         {QStringLiteral("cinnamon-settings"), {QStringLiteral("notifications")}}},
    };
    for (const QString& desktop : currentDesktop.split(u':')) {
        ProgramCall page = pages.value(desktop);
        page.program = QStandardPaths::findExecutable(page.program, searchPath);
        if (!page.program.isEmpty()) {
            return page;
        }
    }
    return std::nullopt;
}

} // namespace tallyvane::platform
