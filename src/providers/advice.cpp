#include "providers/advice.h"

#include <QtCore/QRegularExpression>

namespace tallyvane::providers {

QString advice(Trouble trouble) {
    switch (trouble) {
    case Trouble::noClaudeSignIn:
        return QStringLiteral("Start 'claude' in a terminal and sign in.");
    case Trouble::keyringLocked:
        return QStringLiteral("Unlock the keyring, for example in 'seahorse' (Passwords and Keys) "
                              "or by logging in with your password.");
    case Trouble::claudeSignInExpired:
        return QStringLiteral("Start 'claude' once; it renews its sign-in by itself.");
    case Trouble::claudeNotReached:
        return QStringLiteral("Check the network connection; 'tallyvane doctor --online' says "
                              "more.");
    case Trouble::claudeAnswer:
        return QStringLiteral("Nothing needs to be done; the next refresh asks again.");
    case Trouble::noCodex:
        return QStringLiteral("Install the Codex CLI, or choose its program in the settings.");
    case Trouble::codexElsewhere:
        return QStringLiteral("A Codex CLI was found in another place; it is used once you agree.");
    case Trouble::codexPathUnusable:
        return QStringLiteral("Choose another program in the settings, or go back to automatic "
                              "with 'tallyvane config unset codex-path'.");
    case Trouble::codexNotSignedIn:
        return QStringLiteral("Run 'codex login' in a terminal.");
    case Trouble::codexNotAnswering:
    case Trouble::codexAnswer:
        break;
    }
    return QStringLiteral("Start 'codex' in a terminal to see whether it works there.");
}

QString rateLimitAdvice(std::chrono::seconds pause) {
    const auto minutes = std::chrono::ceil<std::chrono::minutes>(pause).count();
    return minutes <= 5 ? QStringLiteral("It is asked again within five minutes.")
                        : QStringLiteral("It is asked again in about %1 minutes.").arg(minutes);
}

QString storedStatusAdvice(const QString& statusMessage) {
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
