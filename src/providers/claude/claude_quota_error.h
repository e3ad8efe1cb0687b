#pragma once

#include "providers/quota_client.h"

#include <variant>

namespace tallyvane::providers {

/// Why the Claude service gave no figures, though the network worked.
struct ClaudeQuotaError {
    enum class Kind {
        httpStatus,        ///< an answer with any status other than 200 and 429
        noCredentials,     ///< no usable sign-in record is stored
        tokenExpired,      ///< the stored token's time has passed
        rateLimited,       ///< status 429
        malformedResponse, ///< no HTTP, too large, no JSON, or JSON that is no object
    };

    Kind kind = Kind::malformedResponse;
    int httpStatus = 0; ///< of `Kind::httpStatus` alone
    /// Of `Kind::noCredentials` alone: why the keyring could not be asked; empty when it was.
    QString keyringError;

    bool operator==(const ClaudeQuotaError&) const = default;
};

/// The request got no whole answer: no connection, no trusted server, time-out, cut off.
struct TransportError {
    QString reason; ///< as the network library words it, in English

    bool operator==(const TransportError&) const = default;
};

using ClaudeFetchError = std::variant<ClaudeQuotaError, TransportError>;

/// As the user gets to know it: beside the Claude figures, and never in the program's error line.
[[nodiscard]] QuotaFailure quotaFailure(const ClaudeFetchError& error);

} // namespace tallyvane::providers
