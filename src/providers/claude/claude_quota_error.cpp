#include "providers/claude/claude_quota_error.h"

namespace tallyvane::providers {

namespace {

QString sentence(const ClaudeQuotaError& error) {
    switch (error.kind) {
    case ClaudeQuotaError::Kind::httpStatus:
        return error.httpStatus == 401
                   ? QStringLiteral("The Claude service did not accept the sign-in of Claude Code.")
                   : QStringLiteral("The Claude service answered with status %1.")
                         .arg(error.httpStatus);
    case ClaudeQuotaError::Kind::noCredentials:
        return error.keyringError.isEmpty()
                   ? QStringLiteral("No sign-in of Claude Code was found.")
                   : QStringLiteral("No file with a sign-in of Claude Code was found, and the "
                                    "keyring could not be asked: %1.")
                         .arg(error.keyringError);
    case ClaudeQuotaError::Kind::tokenExpired:
        return QStringLiteral("The sign-in of Claude Code has expired.");
    case ClaudeQuotaError::Kind::rateLimited:
        return QStringLiteral("The Claude service was asked too many times.");
    case ClaudeQuotaError::Kind::malformedResponse:
        break;
    }
    return QStringLiteral("The answer of the Claude service was not understood.");
}

QString sentence(const TransportError& error) {
    return QStringLiteral("The Claude service could not be reached: %1.").arg(error.reason);
}

std::optional<QString> shortText(const ClaudeQuotaError& error) {
    switch (error.kind) {
    case ClaudeQuotaError::Kind::noCredentials:
        return QStringLiteral("Keychain auth");
    case ClaudeQuotaError::Kind::tokenExpired:
        return QStringLiteral("Sign-in expired");
    case ClaudeQuotaError::Kind::rateLimited:
        return QStringLiteral("Rate limited");
    case ClaudeQuotaError::Kind::httpStatus:
        return error.httpStatus == 401 ? std::optional(QStringLiteral("Sign-in expired"))
                                       : std::nullopt;
    case ClaudeQuotaError::Kind::malformedResponse:
        break;
    }
    return std::nullopt;
}

std::optional<QString> shortText(const TransportError& /*error*/) {
    return QStringLiteral("Network error");
}

} // namespace

QuotaFailure quotaFailure(const ClaudeFetchError& error) {
    const auto failure = [](const auto& kind) {
        return QuotaFailure{.text = sentence(kind),
                            .shownAt = QuotaFailure::Place::besideFigures,
                            .shortText = shortText(kind)};
    };
    return std::visit(failure, error);
}

} // namespace tallyvane::providers
