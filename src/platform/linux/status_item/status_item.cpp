#include "platform/linux/status_item/status_item.h"

#include "platform/linux/status_item/dbus_menu.h"
#include "platform/linux/status_item/status_host_watcher.h"
#include "platform/linux/status_item/status_notifier_item.h"

namespace tallyvane::platform {

StatusItem::StatusItem(const QString& id, const QDBusConnection& bus)
    : m_item(std::make_unique<StatusNotifierItem>(id, bus)),
      m_menu(std::make_unique<DBusMenu>(bus)),
      m_watcher(std::make_unique<StatusHostWatcher>(bus)) {
    connect(m_item.get(), &StatusNotifierItem::activated, this, &StatusItem::activated);
    connect(m_menu.get(), &DBusMenu::triggered, this, &StatusItem::menuItemTriggered);
    connect(m_watcher.get(), &StatusHostWatcher::profileChanged, this, [this] {
        m_item->setProfile(m_watcher->profile());
        Q_EMIT hostProfileChanged();
    });
    connect(m_watcher.get(), &StatusHostWatcher::availableChanged, this,
            &StatusItem::hostAvailableChanged);
}

StatusItem::~StatusItem() = default;

void StatusItem::setTitle(const QString& title) {
    m_item->setTitle(title);
}

void StatusItem::setIcon(const ItemIcon& icon) {
    m_item->setIcon(icon);
}

void StatusItem::setLabel(const QString& text, const QString& widest) {
    m_item->setLabel(text, widest);
}

void StatusItem::setToolTip(const QStringList& lines) {
    m_item->setToolTip(lines);
}

void StatusItem::setMenu(const QList<ItemMenuEntry>& entries) {
    m_menu->setEntries(entries);
}

HostProfile StatusItem::hostProfile() const {
    return m_watcher->profile();
}

bool StatusItem::isHostAvailable() const {
    return m_watcher->isAvailable();
}

} // namespace tallyvane::platform
