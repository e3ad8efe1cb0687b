#pragma once

#include "platform/secret_store.h"

#include <chrono>

namespace tallyvane::platform {

/// The keyring behind the freedesktop Secret Service (GNOME Keyring, KWallet, KeePassXC). Skips
/// locked items: nothing is ever unlocked. A service that gives an error counts as absent. Fails if
/// it does not answer within `patience`, or if there are too few threads or descriptors left. Does
/// not block the event loop, nor delay the end of the program.
class SecretServiceStore final : public SecretStore {
public:
    explicit SecretServiceStore(std::chrono::milliseconds patience = std::chrono::seconds{3})
        : m_patience(patience) {}

    [[nodiscard]] QCoro::Task<SecretLookup> lookup(QString service) override;

private:
    std::chrono::milliseconds m_patience;
};

} // namespace tallyvane::platform
