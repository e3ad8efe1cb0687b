#pragma once

#include <QCoro/QCoroTask>
#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <expected>

namespace tallyvane::platform {

/// The bytes of an item. A type of their own, since GCC 12 compiles no task that gives a
/// std::expected of a QByteArray.
struct Secret {
    QByteArray bytes;
};

/// Why there is no secret.
struct SecretStoreError {
    /// Why the keyring could not be asked, such as "Too many open files"; empty when it was asked
    /// and has no such item.
    QString reason;
};

using SecretLookup = std::expected<Secret, SecretStoreError>;

/// The user's keyring. Main thread only.
class SecretStore {
public:
    virtual ~SecretStore() = default;

    /// The secret of the first readable item whose attribute `service` has this value. Answers
    /// within a few seconds, whatever the keyring does, and never makes it ask the user.
    [[nodiscard]] virtual QCoro::Task<SecretLookup> lookup(QString service) = 0;
};

} // namespace tallyvane::platform
