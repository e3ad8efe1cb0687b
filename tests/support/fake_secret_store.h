#pragma once

#include "platform/secret_store.h"

#include <QtCore/QMap>

namespace tallyvane::tests {

/// A keyring in memory that counts how often it is asked.
class FakeSecretStore final : public platform::SecretStore {
public:
    QMap<QString, QByteArray> items;
    int lookups = 0;

    QCoro::Task<std::optional<QByteArray>> lookup(QString service) override {
        ++lookups;
        const auto item = items.constFind(service);
        co_return item != items.constEnd() ? std::optional(*item) : std::nullopt;
    }
};

} // namespace tallyvane::tests
