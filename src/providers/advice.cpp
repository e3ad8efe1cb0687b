#include "providers/advice.h"

#include <QtCore/QRegularExpression>

namespace tallyvane::providers {

using model::Message;

Message advice(Trouble trouble) {
    switch (trouble) {
    case Trouble::noClaudeSignIn:
        return Message(QT_TRANSLATE_NOOP("Message", "Start 'claude' in a terminal and sign in."));
    case Trouble::keyringLocked:
        return Message(QT_TRANSLATE_NOOP(
            "Message", "Unlock the keyring, for example in 'seahorse' (Passwords and Keys) "
                       "or by logging in with your password."));
    case Trouble::claudeSignInExpired:
        return Message(
            QT_TRANSLATE_NOOP("Message", "Start 'claude' once; it renews its sign-in by itself."));
    case Trouble::claudeNotReached:
        return Message(QT_TRANSLATE_NOOP(
            "Message", "Check the network connection; 'tallyvane doctor --online' says "
                       "more."));
    case Trouble::claudeAnswer:
        return Message(
            QT_TRANSLATE_NOOP("Message", "Nothing needs to be done; the next refresh asks again."));
    case Trouble::noCodex:
        return Message(QT_TRANSLATE_NOOP(
            "Message", "Install the Codex CLI, or choose its program in the settings."));
    case Trouble::codexElsewhere:
        return Message(QT_TRANSLATE_NOOP(
            "Message", "A Codex CLI was found in another place; it is used once you agree."));
    case Trouble::codexPathUnusable:
        return Message(QT_TRANSLATE_NOOP(
            "Message", "Choose another program in the settings, or go back to automatic "
                       "with 'tallyvane config unset codex-path'."));
    case Trouble::codexNotSignedIn:
        return Message(QT_TRANSLATE_NOOP("Message", "Run 'codex login' in a terminal."));
    case Trouble::codexNotAnswering:
    case Trouble::codexAnswer:
        break;
    }
    return Message(
        QT_TRANSLATE_NOOP("Message", "Start 'codex' in a terminal to see whether it works there."));
}

Message rateLimitAdvice(std::chrono::seconds pause) {
    const auto minutes = std::chrono::ceil<std::chrono::minutes>(pause).count();
    return minutes <= 5
               ? Message(QT_TRANSLATE_NOOP("Message", "It is asked again within five minutes."))
               : Message(QT_TRANSLATE_NOOP("Message", "It is asked again in about %1 minutes."),
                         {QString::number(minutes)});
}

Message storedStatusAdvice(const QString& statusMessage) {
    if (statusMessage == QLatin1StringView("Keychain auth")) {
        return advice(Trouble::noClaudeSignIn);
    }
    if (statusMessage == QLatin1StringView("Sign-in expired")) {
        return advice(Trouble::claudeSignInExpired);
    }
    if (statusMessage == QLatin1StringView("Rate limited")) {
        return rateLimitAdvice({});
    }
    if (statusMessage == QLatin1StringView("Network error")) {
        return advice(Trouble::claudeNotReached);
    }
    return {};
}

QString shellWord(const QString& text) {
    static const QRegularExpression plain(QStringLiteral("^[\\w/.+@:,-]+$"));
    return plain.match(text).hasMatch()
               ? text
               : u'\'' + QString(text).replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

QString codexPathCommand(const QString& path) {
    return QStringLiteral("tallyvane config set codex-path ") + shellWord(path);
}

} // namespace tallyvane::providers
