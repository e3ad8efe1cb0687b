#pragma once

#include "platform/linux/status_item/host_profile.h"
#include "platform/linux/status_item/item_content.h"

#include <QtCore/QObject>
#include <QtCore/QPoint>
#include <QtCore/QStringList>

#include <memory>

class QDBusConnection;

namespace tallyvane::platform {

class DBusMenu;
class StatusHostWatcher;
class StatusNotifierItem;

/// The program's item in the desktop's status area, by the StatusNotifierItem and dbusmenu
/// protocols. It registers itself with each status host that comes, so that nothing is lost while
/// there is none; without a bus it does nothing. Nothing blocks and nothing ticks. A host is told
/// of a value only when that changed. Main thread.
class StatusItem final : public QObject {
    Q_OBJECT

public:
    /// On the given bus. `id` is the application's, such as "org.example.Program". What is set
    /// before the event loop runs on is there when a host first reads the item.
    StatusItem(const QString& id, const QDBusConnection& bus);
    /// On the session bus.
    explicit StatusItem(const QString& id);
    ~StatusItem() override;

    /// The program's name, for lists of items.
    void setTitle(const QString& title);
    void setIcon(const ItemIcon& icon);
    /// Text beside the picture, or none, on hosts that show one. `widest` is the widest text that
    /// is to come: hosts keep that much room.
    void setLabel(const QString& text, const QString& widest);
    /// Plain text; the first line is the one that every host shows.
    void setToolTip(const QStringList& lines);
    void setMenu(const QList<ItemMenuEntry>& entries);

    /// Of the present host, else of the last one.
    [[nodiscard]] HostProfile hostProfile() const;
    /// Whether something shows items now.
    [[nodiscard]] bool isHostAvailable() const;

Q_SIGNALS:
    /// The item was clicked at `position` (see HostProfile::hasTrustedCoordinates). The token lets
    /// a window take the focus; empty where the host gives none.
    void activated(QPoint position, const QString& activationToken);
    /// An enabled entry was chosen. Sent from the event loop, after the host has its answer.
    void menuItemTriggered(int id);
    /// Sent before the new host reads the item: what is set meanwhile is the first that it sees.
    void hostProfileChanged();
    void hostAvailableChanged();

private:
    std::unique_ptr<StatusNotifierItem> m_item;
    std::unique_ptr<DBusMenu> m_menu;
    std::unique_ptr<StatusHostWatcher> m_watcher;
};

} // namespace tallyvane::platform
