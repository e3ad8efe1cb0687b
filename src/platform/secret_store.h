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
    enum class Kind {
        noItem, ///< the keyring has no such item
        locked, ///< the item, or else the whole keyring
        absent, ///< there is no session bus, or no keyring on it
        failed, ///< it could not be asked
    };

    Kind kind = Kind::noItem;
    /// For `locked` and `failed`: why the keyring could not be read, such as "Too many open files".
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
