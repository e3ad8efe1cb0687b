#include "app/environment.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QStandardPaths>

namespace tallyvane::app {

namespace {

std::filesystem::path toPath(const QString& path) {
    return QFile(path).filesystemFileName();
}

std::string timeLocale() {
    for (const char* name : {"LC_ALL", "LC_TIME", "LANG"}) {
        if (std::string value = qgetenv(name).toStdString(); !value.empty()) {
            return value;
        }
    }
    return "C";
}

/// All folders but the first, which is the user's own.
std::vector<std::filesystem::path> systemConfigDirectories() {
    std::vector<std::filesystem::path> directories;
    for (const QString& directory :
         QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation).sliced(1)) {
        directories.push_back(toPath(directory));
    }
    return directories;
}

QString activationToken() {
    const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qEnvironmentVariable("DESKTOP_STARTUP_ID") : token;
}

/// By their usual names; those in capitals count where the others are empty.
providers::NetworkVariables networkVariables() {
    const auto value = [](const char* name) {
        const QString usual = qEnvironmentVariable(name);
        return usual.isEmpty() ? qEnvironmentVariable(QByteArray(name).toUpper()) : usual;
    };
    return {.proxy = {.httpsProxy = value("https_proxy"),
                      .allProxy = value("all_proxy"),
                      .noProxy = value("no_proxy")},
            .certificateFile = qgetenv("SSL_CERT_FILE"),
            .certificateDirectories = qgetenv("SSL_CERT_DIR")};
}

} // namespace

Environment readEnvironment() {
    const QString dataHome = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QString configHome =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return {.locations = {.dataHome = toPath(dataHome), .configHome = toPath(configHome)},
            .home = toPath(QDir::homePath()),
            .systemConfigDirectories = systemConfigDirectories(),
            .searchPath = qEnvironmentVariable("PATH").split(u':', Qt::SkipEmptyParts),
            .runtimeDirectory = toPath(qEnvironmentVariable("XDG_RUNTIME_DIR")),
            .currentDesktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP"),
            .activationToken = activationToken(),
            .launchContext =
                core::launchContext(QProcessEnvironment::systemEnvironment().toStringList()),
            .network = networkVariables(),
            .timeLocale = timeLocale(),
            .wantsColour = qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb"};
}

} // namespace tallyvane::app
