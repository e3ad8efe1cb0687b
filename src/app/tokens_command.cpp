#include "app/commands.h"
#include "history/session_log_scan.h"
#include "model/quota_display.h"
#include "platform/linux/boot_clock.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace tallyvane::app {

using history::SkipReason;

namespace {

QString words(SkipReason reason) {
    switch (reason) {
    case SkipReason::tooOld:
        return QStringLiteral("older than 35 days");
    case SkipReason::overLimit:
        return QStringLiteral("beyond the 400 newest");
    case SkipReason::tooLarge:
        return QStringLiteral("of 25 MB or more");
    case SkipReason::notUtf8:
        return QStringLiteral("not UTF-8");
    case SkipReason::unreadable:
        return QStringLiteral("not readable");
    case SkipReason::vanished:
        return QStringLiteral("removed meanwhile");
    }
    return {};
}

QString tokensText(const history::ScanReport& report, double seconds) {
    QString text;
    for (const auto& [provider, tokens] : report.totals) {
        text += QStringLiteral("%1: %2 tokens\n").arg(model::displayName(provider)).arg(tokens);
    }
    text += QStringLiteral("%1 files counted, %2 bytes in %3 s\n")
                .arg(report.countedFiles)
                .arg(report.readBytes)
                .arg(seconds, 0, 'f', 3);
    for (const auto& [reason, files] : report.skippedFiles) {
        text += QStringLiteral("%1 files skipped: %2\n").arg(files).arg(words(reason));
    }
    return text;
}

QString tokensJson(const history::ScanReport& report, double seconds) {
    QJsonObject totals;
    for (const auto& [provider, tokens] : report.totals) {
        totals[model::rawValue(provider)] = static_cast<qint64>(tokens);
    }
    QJsonObject skipped;
    for (const SkipReason reason : model::allCases<SkipReason>) {
        const auto found = report.skippedFiles.find(reason);
        skipped[model::rawValue(reason)] = found != report.skippedFiles.end() ? found->second : 0;
    }
    const QJsonObject object{{QStringLiteral("totals"), totals},
                             {QStringLiteral("countedFiles"), report.countedFiles},
                             {QStringLiteral("skippedFiles"), skipped},
                             {QStringLiteral("readBytes"), static_cast<qint64>(report.readBytes)},
                             {QStringLiteral("seconds"), seconds}};
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + u'\n';
}

} // namespace

ExitCode runTokens(const Environment& environment, OutputFormat format) {
    QElapsedTimer timer;
    timer.start();
    const history::ScanReport report = history::scanSessionLogs(history::logRoots(environment.home),
                                                                platform::BootClock().now(), {});
    if (report.error) {
        printError(history::scanFailureText(report.error));
        return ExitCode::failure;
    }
    const double seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    const bool isPrinted = print(format == OutputFormat::json ? tokensJson(report, seconds)
                                                              : tokensText(report, seconds));
    return isPrinted ? ExitCode::success : ExitCode::failure;
}

} // namespace tallyvane::app
