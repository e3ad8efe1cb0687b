#include "platform/linux/autostart_entry.h"

#include "model/file_io.h"
#include "platform/application_id.h"
#include "platform/linux/desktop_entry.h"

#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

#include <algorithm>

namespace tallyvane::platform {

namespace {

constexpr qsizetype maximumSize = 65536;

std::filesystem::path entryIn(const std::filesystem::path& directory) {
    return directory / (std::string(applicationId.data()) + ".desktop");
}

bool isTrue(const QString& value) {
    return value == u"true" || value == u"1"; // the latter in old files
}

/// Stores of packages give each version a folder of its own, and remove those of old versions.
bool isInStore(const QString& path) {
    return path.startsWith(QStringLiteral("/nix/store/")) ||
           path.startsWith(QStringLiteral("/gnu/store/"));
}

/// What an update leaves where it is: the program itself if its folder is in $PATH, else a link to
/// it there, as those who install each version into its own folder make it.
QString lastingPath(const QString& program, const QStringList& searchPath) {
    const QFileInfo file(program);
    if (!isInStore(program) && searchPath.contains(file.path())) {
        return program;
    }
    for (const QString& folder : searchPath) {
        const QFileInfo candidate(folder + u'/' + file.fileName());
        if (!isInStore(folder) && candidate.exists() &&
            candidate.canonicalFilePath() == file.canonicalFilePath()) {
            return candidate.filePath();
        }
    }
    return isInStore(program) ? file.fileName() : program;
}

} // namespace

AutostartEntry::AutostartEntry(AutostartPlaces places)
    : m_places(std::move(places)), m_file(entryIn(m_places.userDirectory)) {}

LoginItemStatus AutostartEntry::status() const {
    auto file = model::readFile(m_file, maximumSize);
    for (const std::filesystem::path& directory : m_places.systemDirectories) {
        if (!file) {
            file = model::readFile(entryIn(directory), maximumSize);
        }
    }
    if (!file) {
        return LoginItemStatus::notRegistered;
    }
    const auto entry = readKeyFile(*file, u"[Desktop Entry]");
    // The settings of other desktops use GNOME's key too.
    const QString gnomeSwitch = entry.value(QStringLiteral("X-GNOME-Autostart-enabled"));
    if (isTrue(entry.value(QStringLiteral("Hidden"))) ||
        !(gnomeSwitch.isEmpty() || isTrue(gnomeSwitch))) {
        return LoginItemStatus::requiresApproval;
    }
    const auto isThere = [this](const QString& program) {
        return !QStandardPaths::findExecutable(program, m_places.searchPath).isEmpty();
    };
    const QString tried = entry.value(QStringLiteral("TryExec"));
    return isThere(programOfExec(entry.value(QStringLiteral("Exec")))) &&
                   (tried.isEmpty() || isThere(tried))
               ? LoginItemStatus::enabled
               : LoginItemStatus::notFound;
}

std::expected<void, QString> AutostartEntry::enable() {
    return write({});
}

std::expected<void, QString> AutostartEntry::disable() {
    std::error_code error;
    const auto isThere = [&error](const std::filesystem::path& directory) {
        return std::filesystem::exists(entryIn(directory), error);
    };
    if (std::ranges::any_of(m_places.systemDirectories, isThere)) {
        return write(QStringLiteral("Hidden=true\n"));
    }
    std::filesystem::remove(m_file, error);
    if (error) {
        return std::unexpected(
            model::Message(QT_TRANSLATE_NOOP("Message", "Could not remove %1: %2."),
                           {QFile(m_file).fileName(), qt_error_string(error.value())})
                .text());
    }
    return {};
}

std::expected<void, QString> AutostartEntry::write(const QString& lastLines) const {
    const QString program = lastingPath(QFile(m_places.program).fileName(), m_places.searchPath);
    const QString exec = quotedArgument(program) + QStringLiteral(" --background");
    const QString text = QStringLiteral("[Desktop Entry]\n"
                                        "Type=Application\n"
                                        "Name=Tallyvane\n"
                                        "Icon=") +
                         applicationId + QStringLiteral("\nTryExec=") + escapedValue(program) +
                         QStringLiteral("\nExec=") + escapedValue(exec) + u'\n' + lastLines;
    if (const auto saved = model::saveFile(m_file, text.toUtf8()); !saved) {
        return std::unexpected(saved.error().message.text());
    }
    return {};
}

} // namespace tallyvane::platform
