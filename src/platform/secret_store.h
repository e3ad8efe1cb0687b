#pragma once

#include <QCoro/QCoroTask>
#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <expected>

namespace tallyvane::platform {

/// A type of its own because GCC 12 rejects tasks that return a std::expected of a QByteArray.
struct Secret {
    QByteArray bytes;
};

struct SecretStoreError {
    /// Why the keyring could not be read, such as "Too many open files"; empty if it has no such
    /// item.
    QString reason;
};

using SecretLookup = std::expected<Secret, SecretStoreError>;

/// The user's keyring. Main thread only.
class SecretStore {
public:
    virtual ~SecretStore() = default;

    /// Returns the secret of the first readable item whose attribute `service` has this value.
    /// Takes a few seconds at most, whatever the keyring does, and never makes it prompt the user.
    [[nodiscard]] virtual QCoro::Task<SecretLookup> lookup(QString service) = 0;
};

} // namespace tallyvane::platform
