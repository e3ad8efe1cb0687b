#include "app/commands.h"
#include "app/doctor_checks.h"
#include "app/resource_check.h"
#include "core/preferences.h"
#include "platform/spawn.h"

#include <QtCore/QEventLoop>
#include <QtCore/QFutureWatcher>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QPromise>
#include <QtCore/QTimer>

#include <memory>
#include <system_error>
#include <thread>

namespace tallyvane::app {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds checkPatience = 25s;

/// Checks that go on side by side with the others.
struct Part {
    QString id;    ///< of the line when they do not end
    QString asked; ///< what has to answer
    QFuture<Checks> checks;
};

QCoro::Task<> deliver(QCoro::Task<Checks> task, std::shared_ptr<QPromise<Checks>> promise) {
    const Checks checks = co_await task;
    promise->addResult(checks);
    promise->finish();
}

QFuture<Checks> started(QCoro::Task<Checks> task) {
    const auto promise = std::make_shared<QPromise<Checks>>();
    promise->start();
    QFuture<Checks> checks = promise->future();
    platform::spawn(deliver(std::move(task), promise));
    return checks;
}

/// For checks that block; nobody waits for the thread when the program ends.
QFuture<Checks> startedInThread(std::function<Checks()> task) {
    const auto promise = std::make_shared<QPromise<Checks>>();
    promise->start();
    const auto run = [promise, task = std::move(task)] {
        promise->addResult(task());
        promise->finish();
    };
    try {
        std::thread(run).detach();
    } catch (const std::system_error&) {
        run();
    }
    return promise->future();
}

QFuture<Checks> serviceCheck(QuotaSources& sources, bool isOnline) {
    if (isOnline) {
        return started(claudeServiceCheck(&sources));
    }
    const Check notAsked{.id = QStringLiteral("claude.service"),
                         .state = CheckState::unknown,
                         .text = QStringLiteral("The Claude service was not asked; 'tallyvane "
                                                "doctor --online' would"),
                         .advice = {}};
    return startedInThread([notAsked] { return Checks(1, notAsked); });
}

Part hiddenPart(const QString& id) {
    QPromise<Checks> promise;
    promise.start();
    promise.addResult(Checks{{.id = id,
                              .state = CheckState::unknown,
                              .text = QStringLiteral("Hidden, and not asked; 'tallyvane config set "
                                                     "providers both' shows it"),
                              .advice = {}}});
    promise.finish();
    return {.id = id, .asked = {}, .checks = promise.future()};
}

/// In the order in which they are shown. `sources` must outlive the event loop.
QList<Part> startChecks(const Environment& environment, QuotaSources& sources, bool isOnline) {
    const model::Timestamp now = sources.clock.now();
    const auto own = [](const char* text) { return QString::fromLatin1(text); };
    const auto only = core::loadOnlyProvider(sources.defaults);
    const LoadedClaude claude = sources.claude.part();
    QList<Part> parts;
    if (only == model::AIProvider::claude) {
        parts += hiddenPart(own("codex.hidden"));
    } else {
        parts +=
            {{own("codex.program"), own("the folders of programs"),
              startedInThread([&sources] { return codexProgramChecks(sources.codexProgram); })},
             {own("codex.version"), own("the Codex CLI"), started(codexVersionCheck(&sources))},
             {own("codex.answer"), own("the Codex CLI"), started(codexAnswerCheck(&sources))}};
    }
    if (only == model::AIProvider::codex) {
        parts += hiddenPart(own("claude.hidden"));
    } else {
        parts +=
            {{own("claude.signIn"), own("the keyring"),
              started(claudeSignInChecks(&sources, environment))},
             {own("claude.service"), own("the Claude service"), serviceCheck(sources, isOnline)}};
    }
    parts += {
        {own("network.proxy"), own("the desktop's proxy setting"),
         started(proxyCheck(claude, environment.network))},
        {own("network.certificates"), own("the certificates"),
         startedInThread([=] { return certificateChecks(claude, environment.network); })},
        {own("logs.codex"), own("the folders of the session logs"),
         startedInThread([environment, now] { return sessionLogChecks(environment, now); })},
        {own("files.snapshot"), own("the folders of the own files"),
         startedInThread([environment, now] { return ownFileChecks(environment, now); })},
        {own("desktop.bus"), own("the session bus"), started(desktopChecks(environment))},
    };
    return parts;
}

/// Runs the event loop until all have ended or the patience has.
void wait(const QList<Part>& parts) {
    QEventLoop loop;
    QTimer::singleShot(checkPatience, &loop, &QEventLoop::quit);
    qsizetype open = parts.size();
    for (const Part& part : parts) {
        auto* watcher = new QFutureWatcher<Checks>(&loop);
        QObject::connect(watcher, &QFutureWatcherBase::finished, &loop, [&open, &loop] {
            if (--open == 0) {
                loop.quit();
            }
        });
        watcher->setFuture(part.checks);
    }
    loop.exec();
}

Checks resultOf(const Part& part) {
    if (part.checks.isFinished()) {
        return part.checks.result();
    }
    return {{.id = part.id,
             .state = CheckState::broken,
             .text = QStringLiteral("No answer from %1 within 25 s").arg(part.asked),
             .advice = QStringLiteral("Mend that first; whatever asks it waits in vain.")}};
}

/// Whether a refresh would store figures of at least one provider, as far as that was tried.
bool wouldRefresh(const Checks& checks, bool isOnline) {
    const auto isIn = [&checks](const char* id, CheckState state) {
        return std::ranges::any_of(checks, [&](const Check& check) {
            return check.id == QLatin1StringView(id) && check.state == state;
        });
    };
    const char* const claude = isOnline ? "claude.service" : "claude.signIn";
    const bool isAnyFine = isIn("codex.answer", CheckState::fine) || isIn(claude, CheckState::fine);
    return isAnyFine && !isIn("files.snapshot", CheckState::broken) &&
           !isIn("files.lock", CheckState::broken);
}

QString heading(const QString& section) {
    const std::pair<const char*, const char*> headings[] = {
        {"codex", "Codex"},       {"claude", "Claude"},   {"network", "Network and proxy"},
        {"logs", "Session logs"}, {"files", "Own files"}, {"desktop", "Desktop"}};
    for (const auto& [name, text] : headings) {
        if (section == QLatin1StringView(name)) {
            return QString::fromLatin1(text);
        }
    }
    return section;
}

QChar sign(CheckState state) {
    switch (state) {
    case CheckState::fine:
        return u'✓';
    case CheckState::attention:
        return u'!';
    case CheckState::broken:
        return u'✗';
    case CheckState::unknown:
        break;
    }
    return u'–';
}

QString doctorText(const Checks& checks, bool works) {
    QString text;
    QString section;
    for (const Check& check : checks) {
        const QString its = check.id.section(u'.', 0, 0);
        if (std::exchange(section, its) != its) {
            text += heading(its) + u'\n';
        }
        text += QStringLiteral("  ") + sign(check.state) + u' ' + check.text + u'\n';
        if (!check.advice.isEmpty()) {
            text += QStringLiteral("      ") + check.advice + u'\n';
        }
    }
    return text + (works ? QStringLiteral("A refresh would work.\n")
                         : QStringLiteral("A refresh would not work.\n"));
}

QByteArray doctorJson(const Checks& checks, bool works) {
    QJsonArray list;
    for (const Check& check : checks) {
        list.append(QJsonObject{{QStringLiteral("id"), check.id},
                                {QStringLiteral("state"), model::rawValue(check.state)},
                                {QStringLiteral("text"), check.text},
                                {QStringLiteral("advice"), check.advice}});
    }
    const QJsonObject object{{QStringLiteral("checks"), list}, {QStringLiteral("works"), works}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

Checks runChecks(const Environment& environment, QuotaSources& sources, bool isOnline) {
    const ProgressLine progress(environment.hasDumbTerminal ? QString()
                                                            : QStringLiteral("Checking ..."));
    const QList<Part> parts = startChecks(environment, sources, isOnline);
    wait(parts);
    Checks checks;
    for (const Part& part : parts) {
        checks += resultOf(part);
    }
    return checks;
}

} // namespace

ExitCode runDoctor(const Environment& environment, OutputFormat format, bool isOnline) {
    if (!checkResources(refreshResources)) {
        return ExitCode::failure;
    }
    leaveSilentSessionBus();
    // Outlives this function: checks that hang still refer to it.
    auto* const sources = new QuotaSources(environment);
    const Checks checks = runChecks(environment, *sources, isOnline);
    const bool works = wouldRefresh(checks, isOnline);
    const bool isPrinted = format == OutputFormat::json ? printJson(doctorJson(checks, works))
                                                        : print(doctorText(checks, works));
    if (!isPrinted) {
        return ExitCode::failure;
    }
    return works ? ExitCode::success : ExitCode::providerFailed;
}

} // namespace tallyvane::app
