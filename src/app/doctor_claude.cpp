#include "app/doctor_checks.h"
#include "model/foreign_text.h"
#include "providers/advice.h"
#include "providers/claude/claude_credentials.h"

#include <QtCore/QFile>

#include <cerrno>

namespace tallyvane::app {

using platform::SecretStoreError;
using providers::Credentials;
using providers::Trouble;

namespace {

struct FoundSignIn {
    Check check;
    std::optional<Credentials> credentials;
};

FoundSignIn inKeyring(const platform::SecretLookup& lookup) {
    FoundSignIn found{.check = {.id = QStringLiteral("claude.keyring")}};
    Check& check = found.check;
    using Kind = SecretStoreError::Kind;
    if (lookup) {
        found.credentials = providers::parseSignInRecord(lookup->bytes);
        check.state = found.credentials ? CheckState::fine : CheckState::attention;
        check.text = found.credentials
                         ? QStringLiteral("The keyring holds a sign-in")
                         : QStringLiteral("What the keyring holds is no sign-in of Claude Code");
        check.advice = found.credentials ? QString() : advice(Trouble::noClaudeSignIn).text();
        return found;
    }
    switch (lookup.error().kind) {
    case Kind::noItem:
        check.text = QStringLiteral("The keyring has no item of Claude Code");
        break;
    case Kind::absent:
        check.text = QStringLiteral("There is no keyring in this session");
        break;
    case Kind::locked:
        check.state = CheckState::attention;
        check.text = QStringLiteral("The keyring is locked, and may hold a sign-in");
        check.advice = advice(Trouble::keyringLocked).text();
        break;
    case Kind::failed:
        check.state = CheckState::attention;
        check.text = QStringLiteral("The keyring could not be asked: %1")
                         .arg(model::readableLine(lookup.error().reason));
        check.advice = QStringLiteral("Log out and in, which starts the keyring again.");
        break;
    }
    return found;
}

FoundSignIn inFile(const std::filesystem::path& path, const Environment& environment) {
    const QString name = model::readableLine(QFile(path).fileName());
    const QString word = providers::shellWord(QFile(path).fileName());
    FoundSignIn found{.check = {.id = QStringLiteral("claude.file")}};
    Check& check = found.check;
    struct stat status{};
    if (::stat(path.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR)) {
        check.text = QStringLiteral("%1 does not exist").arg(name);
        const std::filesystem::path other = environment.claudeDirectory / ".credentials.json";
        std::error_code error;
        if (!environment.claudeDirectory.empty() && std::filesystem::exists(other, error)) {
            check.state = CheckState::attention;
            check.text += QStringLiteral(", but CLAUDE_CONFIG_DIR is set, and its folder has one");
            check.advice = model::readableLine(
                QStringLiteral("To have it used: mkdir -p %1 && ln -sfT %2 %3")
                    .arg(providers::shellWord(QFile(path.parent_path()).fileName()),
                         providers::shellWord(QFile(other).fileName()), word));
        }
        return found;
    }
    const auto bytes = model::readFile(path, providers::maximumRecordSize);
    if (!bytes) {
        check.state = CheckState::broken;
        check.text = QStringLiteral("%1 cannot be read").arg(name);
        check.advice = QStringLiteral("Make it readable: chmod 600 %1").arg(word);
        return found;
    }
    found.credentials = providers::parseSignInRecord(*bytes);
    if (!found.credentials) {
        check.state = CheckState::broken;
        check.text = QStringLiteral("%1 holds no sign-in of Claude Code").arg(name);
        check.advice = advice(Trouble::noClaudeSignIn).text();
        return found;
    }
    check.state = CheckState::fine;
    check.text = QStringLiteral("%1 holds a sign-in").arg(name);
    if ((status.st_mode & (S_IRWXG | S_IRWXO)) != 0) {
        check.state = CheckState::attention;
        check.text += QStringLiteral(", and other users may read it");
        check.advice = QStringLiteral("Keep it to yourself: chmod 600 %1").arg(word);
    }
    return found;
}

Check signInCheck(const std::optional<Credentials>& credentials, const QString& place,
                  model::Timestamp now, Trouble trouble) {
    Check check{.id = QStringLiteral("claude.signIn"), .state = CheckState::broken};
    if (!credentials) {
        check.text = QStringLiteral("No sign-in can be used");
        check.advice = advice(trouble).text();
        return check;
    }
    const std::optional<model::Timestamp> expiry = credentials->expiresAt;
    if (expiry && *expiry <= now) {
        check.text =
            QStringLiteral("The sign-in %1 expired %2 ago")
                .arg(place, durationText(std::chrono::floor<std::chrono::seconds>(now - *expiry)));
        check.advice = advice(Trouble::claudeSignInExpired).text();
        return check;
    }
    check.state = CheckState::fine;
    check.text =
        expiry
            ? QStringLiteral("The sign-in %1 is used; it expires in %2")
                  .arg(place, durationText(std::chrono::floor<std::chrono::seconds>(*expiry - now)))
            : QStringLiteral("The sign-in %1 is used; it does not say when it expires").arg(place);
    return check;
}

} // namespace

QString durationText(std::chrono::seconds duration) {
    using namespace std::chrono;
    const auto text = [duration](auto unit, const QString& name) {
        return QStringLiteral("%1 %2").arg(duration / unit).arg(name);
    };
    return duration < hours{1}    ? text(minutes{1}, QStringLiteral("min"))
           : duration < hours{48} ? text(hours{1}, QStringLiteral("h"))
                                  : text(days{1}, QStringLiteral("d"));
}

QCoro::Task<Checks> claudeSignInChecks(QuotaSources* sources, Environment environment) {
    const QString service = providers::ClaudeQuotaSource{}.keychainService;
    platform::SecretLookup lookup;
    if (const auto part = sources->claude.part(); part) {
        lookup = co_await (*part)->secrets().lookup(service);
    } else {
        lookup = std::unexpected(
            SecretStoreError{.kind = SecretStoreError::Kind::failed, .reason = part.error()});
    }
    const FoundSignIn keyring = inKeyring(lookup);
    const FoundSignIn file = inFile(claudeCredentialsFile(environment), environment);
    const bool isLocked = !lookup && lookup.error().kind == SecretStoreError::Kind::locked;
    const bool usesKeyring = keyring.credentials.has_value();
    const QString place =
        usesKeyring ? QStringLiteral("in the keyring") : QStringLiteral("in the file");
    const Check signIn = signInCheck(usesKeyring ? keyring.credentials : file.credentials, place,
                                     sources->clock.now(),
                                     isLocked ? Trouble::keyringLocked : Trouble::noClaudeSignIn);
    Checks checks;
    checks << keyring.check << file.check << signIn;
    co_return checks;
}

QCoro::Task<Checks> claudeServiceCheck(QuotaSources* sources) {
    Check check{.id = QStringLiteral("claude.service")};
    const auto answer = co_await sources->claude.fetch(providers::AskedBy::user);
    if (answer) {
        check.state = CheckState::fine;
        check.text = QStringLiteral("The Claude service gives figures");
    } else {
        check.state = CheckState::broken;
        check.text =
            QStringLiteral("The Claude service gives no figures: %1")
                .arg(model::maskedAddresses(model::readableLine(answer.error().text.text())));
        const bool isUnreached = answer.error().advice == advice(Trouble::claudeNotReached);
        check.advice = isUnreached ? QStringLiteral("Check the network connection, and what is "
                                                    "said about the proxy.")
                                   : answer.error().advice.text();
    }
    co_return Checks(1, check);
}

} // namespace tallyvane::app
