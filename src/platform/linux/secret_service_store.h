#pragma once

#include "platform/secret_store.h"

#include <chrono>

namespace tallyvane::platform {

/// The keyring behind the freedesktop Secret Service (GNOME Keyring, KWallet, KeePassXC). Items
/// of locked collections are passed over: nothing is ever unlocked. A service that is missing holds
/// nothing. It is an error when the service has not answered within `patience`, or when there is no
/// thread or too few descriptors to ask it. The event loop runs meanwhile, and the end of the
/// program waits for no answer.
class SecretServiceStore final : public SecretStore {
public:
    explicit SecretServiceStore(std::chrono::milliseconds patience = std::chrono::seconds{3})
        : m_patience(patience) {}

    [[nodiscard]] QCoro::Task<SecretLookup> lookup(QString service) override;

private:
    std::chrono::milliseconds m_patience;
};

} // namespace tallyvane::platform
