#include "providers/claude/claude_quota_error.h"

#include "providers/advice.h"

namespace tallyvane::providers {

using model::Message;

QuotaFailure quotaFailure(const ClaudeQuotaError& error) {
    const auto failure = [](const Message& text, const Message& advice, const char* shortText) {
        return QuotaFailure{.text = text,
                            .advice = advice,
                            .shownAt = QuotaFailure::Place::besideFigures,
                            .shortText = shortText == nullptr
                                             ? std::nullopt
                                             : std::optional(QString::fromUtf8(shortText))};
    };
    using Kind = ClaudeQuotaError::Kind;
    switch (error.kind) {
    case Kind::httpStatus:
        if (error.httpStatus == 401) {
            return failure(
                Message(QT_TRANSLATE_NOOP(
                    "Message", "The Claude service did not accept the sign-in of Claude Code.")),
                advice(Trouble::claudeSignInExpired),
                QT_TRANSLATE_NOOP("Message", "Sign-in expired"));
        }
        return failure(
            Message(QT_TRANSLATE_NOOP("Message", "The Claude service answered with status %1."),
                    {QString::number(error.httpStatus)}),
            advice(Trouble::claudeAnswer), nullptr);
    case Kind::noCredentials:
        return failure(
            error.reason.isEmpty()
                ? Message(QT_TRANSLATE_NOOP("Message", "No sign-in of Claude Code was found."))
                : Message(QT_TRANSLATE_NOOP("Message",
                                            "No file with a sign-in of Claude Code was found, and "
                                            "the keyring could not be asked: %1."),
                          {error.reason}),
            advice(error.isKeyringLocked ? Trouble::keyringLocked : Trouble::noClaudeSignIn),
            QT_TRANSLATE_NOOP("Message", "Keychain auth"));
    case Kind::tokenExpired:
        return failure(
            Message(QT_TRANSLATE_NOOP("Message", "The sign-in of Claude Code has expired.")),
            advice(Trouble::claudeSignInExpired), QT_TRANSLATE_NOOP("Message", "Sign-in expired"));
    case Kind::rateLimited:
        return failure(
            Message(QT_TRANSLATE_NOOP("Message", "The Claude service was asked too many times.")),
            rateLimitAdvice(error.pause), QT_TRANSLATE_NOOP("Message", "Rate limited"));
    case Kind::transport:
        return failure(
            Message(QT_TRANSLATE_NOOP("Message", "The Claude service could not be reached: %1."),
                    {error.reason}),
            advice(Trouble::claudeNotReached), QT_TRANSLATE_NOOP("Message", "Network error"));
    case Kind::malformedResponse:
        break;
    }
    return failure(Message(QT_TRANSLATE_NOOP(
                       "Message", "The answer of the Claude service was not understood.")),
                   advice(Trouble::claudeAnswer), nullptr);
}

} // namespace tallyvane::providers
