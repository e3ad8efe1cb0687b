#pragma once

#include "platform/secret_store.h"

#include <chrono>

namespace tallyvane::platform {

/// The keyring behind the freedesktop Secret Service (GNOME Keyring, KWallet, KeePassXC). Items
/// of locked collections are passed over: nothing is ever unlocked. A service that is missing, or
/// that has not answered within `patience`, holds nothing; the event loop runs meanwhile, and the
/// end of the program waits for no answer.
class SecretServiceStore final : public SecretStore {
public:
    explicit SecretServiceStore(std::chrono::milliseconds patience = std::chrono::seconds{3})
        : m_patience(patience) {}

    [[nodiscard]] QCoro::Task<std::optional<QByteArray>> lookup(QString service) override;

private:
    std::chrono::milliseconds m_patience;
};

} // namespace tallyvane::platform
