#pragma once

#include "platform/linux/status_item/host_profile.h"
#include "platform/linux/status_item/item_content.h"

#include <QtCore/QObject>
#include <QtCore/QPoint>
#include <QtCore/QStringList>
#include <QtDBus/QDBusConnection>

#include <memory>

namespace tallyvane::platform {

class DBusMenu;
class StatusHostWatcher;
class StatusNotifierItem;

/// The program's item in the desktop's status area, by the StatusNotifierItem and dbusmenu
/// protocols. Registers itself with each status host that appears, and sends a host only values
/// that changed. Without a bus it does nothing. Never blocks or polls. Main thread only.
class StatusItem final : public QObject {
    Q_OBJECT

public:
    /// `id` is the application's, such as "org.example.Program". Hosts first see what has been set
    /// by the time control returns to the event loop.
    explicit StatusItem(const QString& id,
                        const QDBusConnection& bus = QDBusConnection::sessionBus());
    ~StatusItem() override;

    /// The name for lists of items.
    void setTitle(const QString& title);
    void setIcon(const ItemIcon& icon);
    /// Text beside the picture, on hosts that show one; may be empty. Hosts reserve the width of
    /// `widest`, the widest text to expect.
    void setLabel(const QString& text, const QString& widest);
    /// Plain text. Some hosts show only the first line.
    void setToolTip(const QStringList& lines);
    void setMenu(const QList<ItemMenuEntry>& entries);

    /// Of the current host, or else the last one.
    [[nodiscard]] HostProfile hostProfile() const;
    /// Whether a host shows items now.
    [[nodiscard]] bool isHostAvailable() const;

Q_SIGNALS:
    /// The item was clicked at `position` (see HostProfile::hasTrustedCoordinates). The token
    /// (xdg-activation) lets a window take the focus; empty when the host gives none.
    void activated(QPoint position, const QString& activationToken);
    /// An enabled entry was chosen. Emitted from the event loop, after the host's call has ended.
    void menuItemTriggered(int id);
    /// Emitted before the new host reads the item, so that handlers can adapt the values to it.
    void hostProfileChanged();
    void hostAvailableChanged();

private:
    std::unique_ptr<StatusNotifierItem> m_item;
    std::unique_ptr<DBusMenu> m_menu;
    std::unique_ptr<StatusHostWatcher> m_watcher;
};

} // namespace tallyvane::platform
