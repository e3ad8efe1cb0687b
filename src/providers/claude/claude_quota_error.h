#pragma once

#include "providers/quota_client.h"

#include <chrono>

namespace tallyvane::providers {

/// Why the Claude service gave no figures.
struct ClaudeQuotaError {
    enum class Kind {
        httpStatus,        ///< any status other than 200 and 429
        noCredentials,     ///< no usable sign-in record is stored
        tokenExpired,      ///< the stored token has expired
        rateLimited,       ///< status 429
        malformedResponse, ///< not HTTP, too large, not JSON, or JSON that is not an object
        transport,         ///< no connection, no trusted server, time-out, cut off
    };

    Kind kind = Kind::malformedResponse;
    int httpStatus = 0; ///< for `Kind::httpStatus` only
    /// In English. For `Kind::transport`, what went wrong. For `Kind::noCredentials`, why the
    /// keyring could not be read, or empty if it could.
    QString reason;
    bool isKeyringLocked = false; ///< for `Kind::noCredentials`
    std::chrono::seconds pause{}; ///< for `Kind::rateLimited`: what is left of the service's pause

    bool operator==(const ClaudeQuotaError&) const = default;
};

/// The failure to show beside the Claude figures.
[[nodiscard]] QuotaFailure quotaFailure(const ClaudeQuotaError& error);

} // namespace tallyvane::providers
