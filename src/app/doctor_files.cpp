#include "app/doctor_checks.h"
#include "app/session_log_notes.h"
#include "history/usage_history.h"
#include "model/foreign_text.h"
#include "model/quota_display.h"
#include "platform/linux/lock_holder.h"
#include "providers/advice.h"

#include <QtCore/QFile>

#include <cerrno>

namespace tallyvane::app {

namespace {

namespace fs = std::filesystem;

constexpr qsizetype maximumOwnFileSize = qsizetype{64} << 20;

using IsParsable = bool (*)(const QByteArray& content);

struct OwnFile {
    QString id;
    QString name; ///< as the user knows it
    fs::path path;
    IsParsable isParsable = nullptr; ///< none for the lock, which is only opened
    QString damageText;              ///< of one that is not parsable
};

QString shown(const fs::path& path) {
    return model::readableLine(QFile(path).fileName());
}

QString advised(const QString& command, const fs::path& path) {
    return model::readableLine(command.arg(providers::shellWord(QFile(path).fileName())));
}

/// The nearest that exists.
fs::path existing(fs::path directory) {
    std::error_code error;
    while (!fs::exists(directory, error) && directory.has_relative_path()) {
        directory = directory.parent_path();
    }
    return directory;
}

/// `access` is what the program needs.
void checkAccess(Check& check, const fs::path& path, const struct stat& status, int access) {
    if (!S_ISREG(status.st_mode)) {
        check.state = CheckState::broken;
        check.text += QStringLiteral(", is no regular file");
        check.advice = advised(QStringLiteral("Move it away: mv -T %1 %1-before"), path);
    } else if (::access(path.c_str(), access) != 0) {
        check.state = CheckState::broken;
        check.text += ::access(path.c_str(), R_OK) == 0 ? QStringLiteral(", is read-only")
                                                        : QStringLiteral(", is not readable");
        check.advice =
            status.st_uid == ::geteuid()
                ? advised(QStringLiteral("Make it writable: chmod u+rw %1"), path)
                : advised(QStringLiteral("Make it yours: sudo chown \"$USER\" %1"), path);
    }
}

Check ownFileCheck(const OwnFile& file, model::Timestamp now) {
    Check check{.id = file.id, .text = file.name + QStringLiteral(": ") + shown(file.path)};
    struct stat status{};
    if (::stat(file.path.c_str(), &status) != 0) {
        const bool isMissing = errno == ENOENT;
        check.text +=
            isMissing ? QStringLiteral(", not there yet") : QStringLiteral(", cannot be reached");
        const fs::path folder = existing(file.path.parent_path());
        if (!isMissing || ::access(folder.c_str(), W_OK | X_OK) != 0) {
            check.state = CheckState::broken;
            check.text += QStringLiteral(", and %1 is not writable").arg(shown(folder));
            check.advice = advised(QStringLiteral("Make it writable: chmod u+rwx %1"), folder);
        }
        return check;
    }
    check.state = CheckState::fine;
    const auto written = std::chrono::floor<std::chrono::microseconds>(
        std::chrono::sys_seconds{std::chrono::seconds{status.st_mtim.tv_sec}});
    check.text += QStringLiteral(", mode %1").arg(status.st_mode & 07777U, 4, 8, QChar(u'0'));
    if (file.isParsable == nullptr) {
        checkAccess(check, file.path, status, R_OK);
        return check;
    }
    check.text += QStringLiteral(", written %1").arg(model::ageText(written, now));
    checkAccess(check, file.path, status, R_OK | W_OK);
    if (check.state != CheckState::fine) {
        return check;
    }
    const fs::path folder = file.path.parent_path();
    const auto content = model::readFile(file.path, maximumOwnFileSize);
    if (::access(folder.c_str(), W_OK | X_OK) != 0) {
        check.state = CheckState::broken;
        check.text += QStringLiteral(", in a folder that is not writable");
        check.advice = advised(QStringLiteral("Make it writable: chmod u+rwx %1"), folder);
    } else if (!content || !file.isParsable(*content)) {
        check.state = CheckState::attention;
        check.text += QStringLiteral(", ") + file.damageText;
        check.advice = advised(QStringLiteral("Move it away: mv -T %1 %1-before"), file.path);
    }
    return check;
}

Check lockCheck(const fs::path& lock, model::Timestamp now) {
    Check check = ownFileCheck({.id = QStringLiteral("files.lock"),
                                .name = QStringLiteral("Lock"),
                                .path = lock,
                                .damageText = {}},
                               now);
    if (const auto holder = platform::lockHolder(lock)) {
        check.state = CheckState::attention;
        check.text +=
            QStringLiteral(", held by process %1 (%2)").arg(holder->process).arg(holder->name);
        check.advice = QStringLiteral("No other program can refresh meanwhile. If that lasts "
                                      "longer than two minutes, end it with 'kill %1'.")
                           .arg(holder->process);
    }
    return check;
}

} // namespace

Checks ownFileChecks(const Environment& environment, model::Timestamp now) {
    const model::StoreLocations& locations = environment.locations;
    const model::StoreFiles files =
        model::StoreLocations::filesIn(locations.container(locations.containerSource()));
    const IsParsable isSnapshot = [](const QByteArray& json) {
        return model::decodeSnapshot(json).has_value();
    };
    const IsParsable isHistory = [](const QByteArray& json) {
        return history::decodeHistory(json).has_value();
    };
    const IsParsable isSettings = [](const QByteArray& ini) {
        return model::IniText::parse(ini).has_value();
    };
    const QString unreadable = QStringLiteral("cannot be understood");
    Checks checks{
        ownFileCheck({QStringLiteral("files.snapshot"), QStringLiteral("Figures"), files.snapshot,
                      isSnapshot, unreadable + QStringLiteral("; the next refresh replaces it")},
                     now),
        ownFileCheck({QStringLiteral("files.history"), QStringLiteral("History"), files.history,
                      isHistory, unreadable + QStringLiteral("; the next refresh replaces it")},
                     now),
        lockCheck(files.lock, now),
        ownFileCheck({QStringLiteral("files.settings"), QStringLiteral("Settings"),
                      locations.defaultsSuite(), isSettings,
                      unreadable + QStringLiteral(", so tallyvane.conf is used")},
                     now)};
    std::error_code error;
    if (fs::exists(locations.standardDefaults(), error)) {
        checks.append(ownFileCheck({QStringLiteral("files.standardSettings"),
                                    QStringLiteral("Settings for when those cannot be used"),
                                    locations.standardDefaults(), isSettings, unreadable},
                                   now));
    }
    return checks;
}

Checks sessionLogChecks(const Environment& environment, model::Timestamp now) {
    Checks checks;
    for (const auto& [provider, root] : history::logRoots(environment.home)) {
        Check check{.id = QStringLiteral("logs.") + model::rawValue(provider)};
        const history::ScanReport report = history::scanSessionLogs({{provider, root}}, now, {});
        std::error_code error;
        if (report.error) {
            check.state = CheckState::broken;
            check.text = history::scanFailureText(report.error).text();
            check.advice = QStringLiteral("Close other programs; the system has no more open "
                                          "files to give.");
        } else if (!fs::is_directory(root, error)) {
            check.text =
                QStringLiteral("%1 does not exist, so nothing is counted").arg(shown(root));
        } else if (::access(root.c_str(), R_OK | X_OK) != 0) {
            check.state = CheckState::broken;
            check.text = QStringLiteral("%1 cannot be read").arg(shown(root));
            check.advice = advised(QStringLiteral("Make it readable: chmod u+rx %1"), root);
        } else {
            check.state = CheckState::fine;
            check.text =
                QStringLiteral("%1: %2 files counted").arg(shown(root)).arg(report.countedFiles);
            for (const auto& [reason, files] : report.skippedFiles) {
                check.text += QStringLiteral(", %1 skipped (%2)").arg(files).arg(skipText(reason));
            }
        }
        checks.append(check);
    }
    for (const SessionLogNote& note : sessionLogNotes(environment)) {
        checks.append({.id = QStringLiteral("logs.elsewhere"),
                       .state = CheckState::attention,
                       .text = note.text,
                       .advice = note.advice});
    }
    return checks;
}

} // namespace tallyvane::app
