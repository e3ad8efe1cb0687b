#pragma once

#include "model/timestamp.h"
#include "platform/secret_store.h"
#include "providers/claude/claude_quota_error.h"

#include <QtCore/QByteArray>

#include <expected>
#include <filesystem>
#include <optional>

namespace tallyvane::providers {

/// The sign-in of the user's own Claude Code.
struct Credentials {
    QByteArray accessToken; ///< secret; UTF-8, not empty, no control characters
    std::optional<model::Timestamp> expiresAt;
    std::optional<QString> subscriptionType; ///< the plan's identifier, such as "claude_max"
};

/// In bytes; a larger file with a sign-in record counts as unreadable.
inline constexpr qsizetype maximumRecordSize = 1024 * 1024;

/// Reads the record that Claude Code keeps:
///
///     {"claudeAiOauth": {"accessToken": text, "expiresAt": milliseconds since 1970,
///                        "subscriptionType": text, ...}, ...}
///
/// Returns nullopt unless the token can be sent in an HTTP header. An expiry that is not a number
/// and a plan that is not a string are ignored; an expiry outside the years 0000 to 9999 is
/// clamped.
[[nodiscard]] std::optional<Credentials> parseSignInRecord(const QByteArray& json);

/// Reads the record from the keyring item of service `keychainService`, falling back to `file` if
/// there is no usable item. Fails with `noCredentials`. `store` must outlive the task.
[[nodiscard]] QCoro::Task<std::expected<Credentials, ClaudeQuotaError>>
readStoredCredentials(platform::SecretStore* store, QString keychainService,
                      std::filesystem::path file);

/// Keeps the last record in memory so that the keyring is not read on every refresh.
class TokenCache {
public:
    /// The record if it expires more than a minute after `now`; never one without an expiry.
    [[nodiscard]] std::optional<Credentials> usableAt(model::Timestamp now) const;

    void replace(Credentials credentials) { m_value = std::move(credentials); }
    void clear() { m_value.reset(); }

private:
    std::optional<Credentials> m_value;
};

} // namespace tallyvane::providers
