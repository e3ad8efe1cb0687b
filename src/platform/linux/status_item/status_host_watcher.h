#pragma once

#include "platform/linux/status_item/host_profile.h"

#include <QCoro/QCoroTask>
#include <QtCore/QObject>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusServiceWatcher>

#include <optional>

namespace tallyvane::platform {

/// Registers this connection's item with each owner of the name org.kde.StatusNotifierWatcher.
class StatusHostWatcher final : public QObject {
    Q_OBJECT

public:
    explicit StatusHostWatcher(const QDBusConnection& bus);

    [[nodiscard]] HostProfile profile() const { return m_profile; }
    /// Whether the watcher knows a host that shows items.
    [[nodiscard]] bool isAvailable() const { return m_isAvailable; }

Q_SIGNALS:
    void profileChanged(); ///< before the registration
    void availableChanged();

private Q_SLOTS:
    void askForHost();

private:
    void takeOwner(const QString& owner);
    /// Registers with `watcher`, a unique name or the well-known one. What it is, is asked first
    /// and at the same time, and so is known before the new host reads the item.
    void registerItem(const QString& watcher);
    void takeProfile(uint processId);
    void setAvailable(bool isAvailable);
    /// Drops a reply that arrives after the owner has changed.
    template <typename Reply, typename Take>
    void ask(QCoro::Task<Reply> call, Take take);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_names;
    std::optional<QString> m_owner; ///< unique name; empty: there is none; nullopt: unknown yet
    int m_changes = 0;              ///< of the owner
    HostProfile m_profile;
    bool m_isAvailable = false;
};

} // namespace tallyvane::platform
