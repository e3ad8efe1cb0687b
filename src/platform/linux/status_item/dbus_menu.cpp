#include "platform/linux/status_item/dbus_menu.h"

#include <QtCore/QLocale>
#include <QtDBus/QDBusMetaType>

#include <algorithm>

namespace tallyvane::platform {

namespace {

QVariantMap allValues(const ItemMenuEntry& entry) {
    if (entry.isSeparator) {
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    }
    QString label = entry.text;
    label.replace(u'_', QLatin1StringView("__")); // a single one marks the access key
    return {{QStringLiteral("label"), label}, {QStringLiteral("enabled"), entry.isEnabled}};
}

bool isSameKind(const ItemMenuEntry& a, const ItemMenuEntry& b) {
    return a.id == b.id && a.isSeparator == b.isSeparator;
}

} // namespace

void registerDBusMenuRecords() {
    qDBusRegisterMetaType<DBusMenuProperties>();
    qDBusRegisterMetaType<QList<DBusMenuProperties>>();
    qDBusRegisterMetaType<DBusMenuRemovedProperties>();
    qDBusRegisterMetaType<QList<DBusMenuRemovedProperties>>();
    qDBusRegisterMetaType<DBusMenuLayout>();
    qDBusRegisterMetaType<DBusMenuEvent>();
    qDBusRegisterMetaType<QList<DBusMenuEvent>>();
    qDBusRegisterMetaType<QList<int>>();
}

DBusMenu::DBusMenu(const QDBusConnection& bus) {
    registerDBusMenuRecords();
    QDBusConnection(bus).registerObject(QStringLiteral("/MenuBar"), this,
                                        QDBusConnection::ExportScriptableContents |
                                            QDBusConnection::ExportAllProperties);
}

void DBusMenu::setEntries(const QList<ItemMenuEntry>& entries) {
    const QList<ItemMenuEntry> old = std::exchange(m_entries, entries);
    if (!std::ranges::equal(old, entries, isSameKind)) {
        Q_EMIT LayoutUpdated(++m_revision, 0);
        return;
    }
    QList<DBusMenuProperties> updated;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (entries.at(i) != old.at(i)) {
            updated.append({entries.at(i).id, allValues(entries.at(i))});
        }
    }
    if (!updated.isEmpty()) {
        Q_EMIT ItemsPropertiesUpdated(updated, {});
    }
}

QString DBusMenu::textDirection() const {
    return QLocale().textDirection() == Qt::RightToLeft ? QStringLiteral("rtl")
                                                        : QStringLiteral("ltr");
}

uint DBusMenu::GetLayout(int parentId, int depth, const QStringList& names,
                         DBusMenuLayout& layout) {
    if (requireEntry(parentId)) {
        layout = {parentId, valuesOf(parentId, names), {}};
        if (parentId == 0 && depth != 0) {
            for (const ItemMenuEntry& entry : std::as_const(m_entries)) {
                const DBusMenuLayout child{entry.id, valuesOf(entry.id, names), {}};
                layout.children.append(QDBusVariant(QVariant::fromValue(child)));
            }
        }
    }
    return m_revision;
}

QList<DBusMenuProperties> DBusMenu::GetGroupProperties(const QList<int>& ids,
                                                       const QStringList& names) {
    QList<int> wanted = ids;
    if (ids.isEmpty()) {
        wanted.append(0);
        std::ranges::transform(m_entries, std::back_inserter(wanted), &ItemMenuEntry::id);
    }
    QList<DBusMenuProperties> properties;
    for (const int id : std::as_const(wanted)) {
        if (exists(id)) {
            properties.append({id, valuesOf(id, names)});
        }
    }
    return properties;
}

QDBusVariant DBusMenu::GetProperty(int id, const QString& name) {
    const QVariant value = valuesOf(id, {name}).value(name);
    if (requireEntry(id) && !value.isValid()) {
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("the entry has no %1").arg(name));
    }
    return QDBusVariant(value);
}

void DBusMenu::Event(int id, const QString& name, const QDBusVariant& /*data*/,
                     uint /*timestamp*/) {
    if (requireEntry(id) && name == QLatin1StringView("clicked")) {
        trigger(id);
    }
}

QList<int> DBusMenu::EventGroup(const QList<DBusMenuEvent>& events) {
    QList<int> unknownIds;
    for (const DBusMenuEvent& event : events) {
        if (!exists(event.id)) {
            unknownIds.append(event.id);
        } else if (event.name == QLatin1StringView("clicked")) {
            trigger(event.id);
        }
    }
    return unknownIds;
}

bool DBusMenu::AboutToShow(int id) {
    requireEntry(id);
    return false; // hosts hear of every change as it happens
}

QList<int> DBusMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& unknownIds) {
    std::ranges::copy_if(ids, std::back_inserter(unknownIds),
                         [this](int id) { return !exists(id); });
    return {};
}

const ItemMenuEntry* DBusMenu::find(int id) const {
    const auto entry = std::ranges::find(m_entries, id, &ItemMenuEntry::id);
    return entry != m_entries.end() ? &*entry : nullptr;
}

QVariantMap DBusMenu::valuesOf(int id, const QStringList& names) const {
    QVariantMap values;
    if (const ItemMenuEntry* entry = find(id)) {
        values = allValues(*entry);
    } else if (id == 0) {
        values = {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    }
    if (!names.isEmpty()) {
        values.removeIf([&names](const auto& value) { return !names.contains(value.key()); });
    }
    return values;
}

bool DBusMenu::requireEntry(int id) const {
    if (!exists(id)) {
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("there is no entry %1").arg(id));
        return false;
    }
    return true;
}

void DBusMenu::trigger(int id) {
    const ItemMenuEntry* entry = find(id);
    if (entry != nullptr && entry->isEnabled && !entry->isSeparator) {
        QMetaObject::invokeMethod(this, [this, id] { Q_EMIT triggered(id); }, Qt::QueuedConnection);
    }
}

} // namespace tallyvane::platform

#include "moc_dbus_menu.cpp"
