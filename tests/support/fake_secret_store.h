#pragma once

#include "platform/secret_store.h"

#include <QtCore/QMap>

namespace tallyvane::tests {

/// A keyring in memory that counts how often it is asked.
class FakeSecretStore final : public platform::SecretStore {
public:
    QMap<QString, QByteArray> items;
    int lookups = 0;

    QCoro::Task<platform::SecretLookup> lookup(QString service) override {
        ++lookups;
        const auto item = items.constFind(service);
        if (item == items.constEnd()) {
            co_return std::unexpected(platform::SecretStoreError{});
        }
        co_return platform::Secret{*item};
    }
};

} // namespace tallyvane::tests
