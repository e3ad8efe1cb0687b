#include "providers/claude/claude_quota_error.h"

#include "providers/advice.h"

namespace tallyvane::providers {

QuotaFailure quotaFailure(const ClaudeQuotaError& error) {
    const auto failure = [](const QString& text, const QString& advice,
                            const std::optional<QString>& shortText) {
        return QuotaFailure{.text = text,
                            .advice = advice,
                            .shownAt = QuotaFailure::Place::besideFigures,
                            .shortText = shortText};
    };
    using Kind = ClaudeQuotaError::Kind;
    switch (error.kind) {
    case Kind::httpStatus:
        if (error.httpStatus == 401) {
            return failure(
                QStringLiteral("The Claude service did not accept the sign-in of Claude Code."),
                advice(Trouble::claudeSignInExpired), QStringLiteral("Sign-in expired"));
        }
        return failure(
            QStringLiteral("The Claude service answered with status %1.").arg(error.httpStatus),
            advice(Trouble::claudeAnswer), std::nullopt);
    case Kind::noCredentials:
        return failure(
            error.reason.isEmpty()
                ? QStringLiteral("No sign-in of Claude Code was found.")
                : QStringLiteral("No file with a sign-in of Claude Code was found, and "
                                 "the keyring could not be asked: %1.")
                      .arg(error.reason),
            advice(error.isKeyringLocked ? Trouble::keyringLocked : Trouble::noClaudeSignIn),
            QStringLiteral("Keychain auth"));
    case Kind::tokenExpired:
        return failure(QStringLiteral("The sign-in of Claude Code has expired."),
                       advice(Trouble::claudeSignInExpired), QStringLiteral("Sign-in expired"));
    case Kind::rateLimited:
        return failure(QStringLiteral("The Claude service was asked too many times."),
                       rateLimitAdvice(error.pause), QStringLiteral("Rate limited"));
    case Kind::transport:
        return failure(
            QStringLiteral("The Claude service could not be reached: %1.").arg(error.reason),
            advice(Trouble::claudeNotReached), QStringLiteral("Network error"));
    case Kind::malformedResponse:
        break;
    }
    return failure(QStringLiteral("The answer of the Claude service was not understood."),
                   advice(Trouble::claudeAnswer), std::nullopt);
}

} // namespace tallyvane::providers
