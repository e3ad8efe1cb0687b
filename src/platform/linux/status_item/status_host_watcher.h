#pragma once

#include "platform/linux/status_item/host_profile.h"

#include <QtCore/QObject>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusServiceWatcher>

#include <functional>
#include <optional>

class QDBusMessage;

namespace tallyvane::platform {

/// Follows who owns org.kde.StatusNotifierWatcher, and registers the item of this connection with
/// each new owner.
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
    /// `processId` is the bus's answer about the owner, whose profile is taken first.
    void registerItem(const QString& owner, const QDBusMessage& processId);
    void setAvailable(bool isAvailable);
    /// An answer that comes after the owner changed is dropped.
    void ask(const QDBusMessage& question, std::function<void(const QDBusMessage&)> take);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_names;
    std::optional<QString> m_owner; ///< unique name; empty: there is none; nothing: not known yet
    HostProfile m_profile;
    bool m_isAvailable = false;
};

} // namespace tallyvane::platform
