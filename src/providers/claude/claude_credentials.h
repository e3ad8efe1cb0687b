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
    QByteArray accessToken; ///< a secret; UTF-8, not empty, without control characters
    std::optional<model::Timestamp> expiresAt;
    std::optional<QString> subscriptionType; ///< the plan's identifier, such as "claude_max"

    bool operator==(const Credentials&) const = default;
};

/// Reads the record that Claude Code keeps:
///
///     {"claudeAiOauth": {"accessToken": text, "expiresAt": milliseconds since 1970,
///                        "subscriptionType": text, ...}, ...}
///
/// Nothing without a token that can be sent in an HTTP header. An expiry that is no number and a
/// plan that is no text are absent; an expiry outside the years 0000 to 9999 is the nearest in
/// them.
[[nodiscard]] std::optional<Credentials> parseSignInRecord(const QByteArray& json);

/// Reads the stored record: the keyring's item of service `keychainService`, or, when there is none
/// or it is unusable, or the keyring cannot be asked, `file`. Without either the error is
/// `noCredentials`. `store` must outlive the task.
[[nodiscard]] QCoro::Task<std::expected<Credentials, ClaudeQuotaError>>
readStoredCredentials(platform::SecretStore* store, QString keychainService,
                      std::filesystem::path file);

/// The last record read, kept in memory so that the keyring is not asked on every refresh.
class TokenCache {
public:
    /// The record if it is known to be valid for more than another minute after `now`. A record
    /// without an expiry never is.
    [[nodiscard]] std::optional<Credentials> usableAt(model::Timestamp now) const;

    void replace(Credentials credentials) { m_value = std::move(credentials); }
    void clear() { m_value.reset(); }

private:
    std::optional<Credentials> m_value;
};

} // namespace tallyvane::providers
