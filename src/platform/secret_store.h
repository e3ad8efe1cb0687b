#pragma once

#include <QCoro/QCoroTask>
#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

namespace tallyvane::platform {

/// The user's keyring. Main thread only.
class SecretStore {
public:
    virtual ~SecretStore() = default;

    /// The secret of the first readable item whose attribute `service` has this value; nothing
    /// when there is none. Answers within a few seconds, whatever the keyring does, and never makes
    /// it ask the user.
    [[nodiscard]] virtual QCoro::Task<std::optional<QByteArray>> lookup(QString service) = 0;
};

} // namespace tallyvane::platform
