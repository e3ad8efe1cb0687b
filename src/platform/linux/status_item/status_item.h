#pragma once

#include "platform/linux/status_item/host_profile.h"
#include "platform/linux/status_item/item_content.h"

#include <QtCore/QPoint>
#include <QtCore/QStringList>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusVirtualObject>

#include <memory>

namespace tallyvane::platform {

class DBusMenu;
class StatusHostWatcher;

/// The program's item in the desktop's status area: org.kde.StatusNotifierItem at
/// /StatusNotifierItem, with Ayatana's label properties on hosts that understand them, and a menu
/// by the dbusmenu protocol. Registers itself with each status host that appears, and sends a host
/// only values that changed. Without a bus it does nothing. Never blocks or polls. Main thread
/// only.
class StatusItem final : public QDBusVirtualObject {
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

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override;

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
    [[nodiscard]] QVariantMap properties() const;
    [[nodiscard]] QString iconThemePath() const;
    [[nodiscard]] QDBusMessage answerAboutProperties(const QDBusMessage& call) const;
    void send(const QString& signal, const QVariantList& arguments = {});

    QDBusConnection m_bus;
    QString m_id;
    std::unique_ptr<DBusMenu> m_menu;
    std::unique_ptr<StatusHostWatcher> m_watcher;
    QString m_title;
    ItemIcon m_icon;
    QString m_label;
    QString m_widestLabel;
    QString m_toolTip; ///< lines separated by "\n"
    QString m_activationToken;
};

} // namespace tallyvane::platform
