#include "app/commands.h"
#include "app/session_log_notes.h"
#include "model/quota_display.h"
#include "platform/linux/boot_clock.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace tallyvane::app {

using history::SkipReason;

namespace {

QString tokensText(const history::ScanReport& report, double seconds,
                   const QList<SessionLogNote>& notes) {
    QString text;
    for (const auto& [provider, tokens] : report.totals) {
        text += QStringLiteral("%1: %2 tokens\n").arg(model::displayName(provider)).arg(tokens);
    }
    text += QStringLiteral("%1 files counted, %2 bytes in %3 s\n")
                .arg(report.countedFiles)
                .arg(report.readBytes)
                .arg(seconds, 0, 'f', 3);
    for (const auto& [reason, files] : report.skippedFiles) {
        text += QStringLiteral("%1 files skipped: %2\n").arg(files).arg(skipText(reason));
    }
    for (const SessionLogNote& note : notes) {
        text += QStringLiteral("! %1\n  %2\n").arg(note.text, note.advice);
    }
    return text;
}

QString tokensJson(const history::ScanReport& report, double seconds,
                   const QList<SessionLogNote>& notes) {
    QJsonObject totals;
    for (const auto& [provider, tokens] : report.totals) {
        totals[model::rawValue(provider)] = static_cast<qint64>(tokens);
    }
    QJsonObject skipped;
    for (const SkipReason reason : model::allCases<SkipReason>) {
        const auto found = report.skippedFiles.find(reason);
        skipped[model::rawValue(reason)] = found != report.skippedFiles.end() ? found->second : 0;
    }
    QJsonArray noteObjects;
    for (const SessionLogNote& note : notes) {
        noteObjects.append(QJsonObject{{QStringLiteral("text"), note.text},
                                       {QStringLiteral("advice"), note.advice}});
    }
    const QJsonObject object{{QStringLiteral("totals"), totals},
                             {QStringLiteral("countedFiles"), report.countedFiles},
                             {QStringLiteral("skippedFiles"), skipped},
                             {QStringLiteral("readBytes"), static_cast<qint64>(report.readBytes)},
                             {QStringLiteral("seconds"), seconds},
                             {QStringLiteral("notes"), noteObjects}};
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + u'\n';
}

} // namespace

ExitCode runTokens(const Environment& environment, OutputFormat format) {
    QElapsedTimer timer;
    timer.start();
    const history::ScanReport report = history::scanSessionLogs(history::logRoots(environment.home),
                                                                platform::BootClock().now(), {});
    if (report.error) {
        printError(history::scanFailureText(report.error).text());
        return ExitCode::failure;
    }
    const double seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    const QList<SessionLogNote> notes = sessionLogNotes(environment);
    const bool isPrinted = print(format == OutputFormat::json ? tokensJson(report, seconds, notes)
                                                              : tokensText(report, seconds, notes));
    return isPrinted ? ExitCode::success : ExitCode::failure;
}

} // namespace tallyvane::app
