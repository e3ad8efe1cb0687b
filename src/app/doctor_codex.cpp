#include "app/doctor_checks.h"
#include "model/foreign_text.h"
#include "providers/advice.h"

#include <QtCore/QFileInfo>

namespace tallyvane::app {

using namespace std::chrono_literals;

namespace {

QString canonical(const QString& path) {
    return QFileInfo(path).canonicalFilePath();
}

QString masked(const QString& foreign) {
    return model::maskedAddresses(model::readableLine(foreign));
}

QString foundProgramLine(const QString& path) {
    return QStringLiteral("To use the one found in another place: %1")
        .arg(model::readableLine(providers::codexPathCommand(path)));
}

} // namespace

Checks codexProgramChecks(const providers::CodexProgram& program) {
    const auto path = program.path();
    const QStringList standard = program.places().standard;
    const bool isChosen = !program.chosen().isEmpty();
    QStringList elsewhere = program.findElsewhere();
    Checks checks;
    if (path) {
        checks.append({.id = QStringLiteral("codex.program"),
                       .state = CheckState::fine,
                       .text = (isChosen ? QStringLiteral("In use: %1, chosen in the settings")
                                         : QStringLiteral("In use: %1, a standard place"))
                                   .arg(model::readableLine(*path)),
                       .advice = {}});
        elsewhere.removeIf(
            [used = canonical(*path)](const QString& other) { return canonical(other) == used; });
    } else {
        const auto trouble =
            isChosen ? providers::Trouble::codexPathUnusable : providers::Trouble::noCodex;
        QString text = providers::description(path.error()).text();
        text.chop(text.endsWith(u'.') ? 1 : 0);
        checks.append({.id = QStringLiteral("codex.program"),
                       .state = CheckState::broken,
                       .text = masked(text),
                       .advice = elsewhere.isEmpty() ? advice(trouble).text()
                                                     : foundProgramLine(elsewhere.takeFirst())});
    }
    if (!isChosen) {
        checks.append({.id = QStringLiteral("codex.places"),
                       .state = CheckState::unknown,
                       .text = QStringLiteral("Tried, in this order: %1")
                                   .arg(standard.join(QStringLiteral(", "))),
                       .advice = {}});
    }
    for (const QString& other : elsewhere) {
        checks.append({.id = QStringLiteral("codex.elsewhere"),
                       .state = CheckState::unknown,
                       .text = QStringLiteral("There is a program at %1, which is not used")
                                   .arg(model::readableLine(other)),
                       .advice = foundProgramLine(other)});
    }
    return checks;
}

QCoro::Task<Checks> codexVersionCheck(QuotaSources* sources) {
    Check check{.id = QStringLiteral("codex.version")};
    const auto path = sources->codexProgram.path();
    if (!path) {
        co_return {};
    }
    const QStringList arguments{QStringLiteral("--version")};
    const QString version = co_await sources->processRunner.firstLine(*path, arguments, 5s);
    if (version.isEmpty()) {
        check.state = CheckState::attention;
        check.text = QStringLiteral("'codex --version' said nothing within 5 s");
        check.advice = advice(providers::Trouble::codexNotAnswering).text();
    } else {
        check.state = CheckState::fine;
        check.text = QStringLiteral("Version: %1").arg(masked(version));
    }
    co_return Checks(1, check);
}

QCoro::Task<Checks> codexAnswerCheck(QuotaSources* sources) {
    Check check{.id = QStringLiteral("codex.answer"), .state = CheckState::broken};
    if (!sources->codexProgram.path()) {
        co_return {};
    }
    const auto answer = co_await sources->codexClient.fetch(providers::AskedBy::user);
    if (answer) {
        check.state = CheckState::fine;
        check.text = QStringLiteral("Signed in, and it gives figures");
    } else {
        check.text =
            QStringLiteral("It gives no figures: %1").arg(masked(answer.error().text.text()));
        check.advice = answer.error().advice.text();
    }
    co_return Checks(1, check);
}

} // namespace tallyvane::app
