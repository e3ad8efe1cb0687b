#include "app/environment.h"

#include "core/preferences.h"

#include <QtCore/QFile>
#include <QtCore/QProcessEnvironment>

#include <array>
#include <pwd.h>
#include <unistd.h>

namespace tallyvane::app {

namespace {

namespace fs = std::filesystem;

/// The paths in a colon-separated variable. Relative ones are ignored, as the XDG Base Directory
/// Specification demands, so that nothing is written to the working directory.
std::vector<fs::path> absolutePaths(const char* name) {
    std::vector<fs::path> paths;
    for (const QByteArray& value : qgetenv(name).split(':')) {
        if (fs::path path = value.toStdString(); path.is_absolute()) {
            paths.push_back(std::move(path));
        }
    }
    return paths;
}

/// The one path in a variable; a colon is part of it.
fs::path absolutePath(const char* name, const fs::path& otherwise) {
    const fs::path path = qgetenv(name).toStdString();
    return path.is_absolute() ? path : otherwise;
}

/// The home directory in the user database.
fs::path registeredHome() {
    std::array<char, 65536> texts{};
    passwd user{};
    passwd* found = nullptr;
    ::getpwuid_r(::getuid(), &user, texts.data(), texts.size(), &found);
    const fs::path home = found != nullptr ? user.pw_dir : "/";
    return home.is_absolute() ? home : "/";
}

fs::path homeDirectory() {
    const fs::path home = absolutePath("HOME", {});
    return home.empty() ? registeredHome() : home;
}

/// The POSIX locale of a category such as "LC_TIME".
QByteArray localeOf(const char* category) {
    for (const char* name : {"LC_ALL", category, "LANG"}) {
        if (QByteArray value = qgetenv(name); !value.isEmpty()) {
            return value;
        }
    }
    return "C";
}

/// As gettext has it: $LANGUAGE counts unless the locale is "C".
QStringList languages() {
    const QString locale = QString::fromLocal8Bit(localeOf("LC_MESSAGES"));
    const QString language = locale.section(u'.', 0, 0);
    if (language == QLatin1StringView("C") || language == QLatin1StringView("POSIX")) {
        return {};
    }
    return qEnvironmentVariable("LANGUAGE").split(u':', Qt::SkipEmptyParts) << locale;
}

std::vector<fs::path> systemConfigDirectories() {
    std::vector<fs::path> directories = absolutePaths("XDG_CONFIG_DIRS");
    return directories.empty() ? std::vector<fs::path>{"/etc/xdg"} : directories;
}

QStringList searchPath() {
    QStringList folders;
    for (const fs::path& folder : absolutePaths("PATH")) {
        folders.append(QFile(folder).fileName());
    }
    // Qt searches the variable itself when it is given no folders.
    return folders.isEmpty() ? QStringList{QStringLiteral("/usr/bin"), QStringLiteral("/bin")}
                             : folders;
}

QString activationToken() {
    const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qEnvironmentVariable("DESKTOP_STARTUP_ID") : token;
}

/// Lower-case names take precedence over upper-case ones.
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

bool hasDumbTerminal() {
    return qgetenv("TERM") == "dumb";
}

ColourUse colourUse() {
    if (!qEnvironmentVariableIsEmpty("NO_COLOR")) {
        return ColourUse::never;
    }
    if (const QByteArray force = qgetenv("CLICOLOR_FORCE"); !force.isEmpty() && force != "0") {
        return ColourUse::always;
    }
    return hasDumbTerminal() ? ColourUse::never : ColourUse::onTerminal;
}

} // namespace

Environment readEnvironment() {
    const fs::path home = homeDirectory();
    return {.locations = {.dataHome = absolutePath("XDG_DATA_HOME", home / ".local" / "share"),
                          .configHome = absolutePath("XDG_CONFIG_HOME", home / ".config")},
            .home = home,
            .systemConfigDirectories = systemConfigDirectories(),
            .searchPath = searchPath(),
            .runtimeDirectory = absolutePath("XDG_RUNTIME_DIR", {}),
            .currentDesktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP"),
            .activationToken = activationToken(),
            .x11Display = qEnvironmentVariable("DISPLAY"),
            .waylandDisplay = qEnvironmentVariable("WAYLAND_DISPLAY"),
            .launchContext =
                core::launchContext(QProcessEnvironment::systemEnvironment().toStringList()),
            .network = networkVariables(),
            .codexHome = absolutePath("CODEX_HOME", {}),
            .claudeDirectory = absolutePath("CLAUDE_CONFIG_DIR", {}),
            .languages = languages(),
            .timeLocale = localeOf("LC_TIME").toStdString(),
            .zone = model::LocalZone::ofSystem(qEnvironmentVariableIsSet("TZ")
                                                   ? model::ZoneSource::variable
                                                   : model::ZoneSource::file),
            .colour = colourUse(),
            .hasDumbTerminal = hasDumbTerminal()};
}

model::DefaultsStore openDefaults(const Environment& environment) {
    return model::DefaultsStore::openFirst(environment.locations.defaultsSuite(),
                                           environment.locations.standardDefaults());
}

std::optional<model::AIProvider> onlyProvider(const Environment& environment) {
    return core::loadOnlyProvider(openDefaults(environment));
}

} // namespace tallyvane::app
