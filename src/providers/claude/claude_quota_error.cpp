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

} // namespace

QString description(const ClaudeFetchError& error) {
    return std::visit([](const auto& kind) { return sentence(kind); }, error);
}

} // namespace tallyvane::providers
