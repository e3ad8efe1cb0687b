#pragma once

#include "platform/linux/status_item/dbus_menu_records.h"
#include "platform/linux/status_item/item_content.h"

#include <QtCore/QObject>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusContext>

namespace tallyvane::platform {

// The names of slots, signals and properties are the protocol's.
// NOLINTBEGIN(readability-identifier-naming)

/// A menu without submenus, as com.canonical.dbusmenu (version 3) at /MenuBar. Entry 0 is the menu
/// itself.
class DBusMenu final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    explicit DBusMenu(const QDBusConnection& bus);

    /// Sends the host only what changed.
    void setEntries(const QList<ItemMenuEntry>& entries);

    [[nodiscard]] uint version() const { return 3; }
    [[nodiscard]] QString status() const { return QStringLiteral("normal"); }
    [[nodiscard]] QString textDirection() const;
    [[nodiscard]] QStringList iconThemePath() const { return {}; }

Q_SIGNALS:
    /// An enabled entry was chosen. Emitted from the event loop, after the host's call has ended.
    void triggered(int id);

    Q_SCRIPTABLE void LayoutUpdated(uint revision, int parent);
    Q_SCRIPTABLE void
    ItemsPropertiesUpdated(const QList<tallyvane::platform::DBusMenuProperties>& updated,
                           const QList<tallyvane::platform::DBusMenuRemovedProperties>& removed);

public Q_SLOTS:
    /// Returns the revision; `layout` is the entry `parentId` with `depth` levels of children (-1:
    /// all).
    Q_SCRIPTABLE uint GetLayout(int parentId, int depth, const QStringList& names,
                                tallyvane::platform::DBusMenuLayout& layout);
    /// An empty list of ids or names stands for all of them.
    Q_SCRIPTABLE QList<tallyvane::platform::DBusMenuProperties>
    GetGroupProperties(const QList<int>& ids, const QStringList& names);
    Q_SCRIPTABLE QDBusVariant GetProperty(int id, const QString& name);
    Q_SCRIPTABLE void Event(int id, const QString& name, const QDBusVariant& data, uint timestamp);
    /// Returns the ids that do not exist.
    Q_SCRIPTABLE QList<int> EventGroup(const QList<tallyvane::platform::DBusMenuEvent>& events);
    /// Whether the host must read the menu again.
    Q_SCRIPTABLE bool AboutToShow(int id);
    Q_SCRIPTABLE QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& unknownIds);

private:
    [[nodiscard]] const ItemMenuEntry* find(int id) const;
    [[nodiscard]] bool exists(int id) const { return id == 0 || find(id) != nullptr; }
    [[nodiscard]] QVariantMap valuesOf(int id, const QStringList& names) const;
    /// Answers the current call with an error and returns false if there is no such entry.
    bool requireEntry(int id) const;
    void trigger(int id);

    QList<ItemMenuEntry> m_entries;
    uint m_revision = 1;
};

// NOLINTEND(readability-identifier-naming)

} // namespace tallyvane::platform
