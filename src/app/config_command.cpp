#include "app/commands.h"
#include "app/composition.h"
#include "app/resource_check.h"
#include "app/usage.h"
#include "core/launch_at_login.h"
#include "core/preferences.h"
#include "platform/linux/dbus_application.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <functional>

namespace tallyvane::app {

using notify::NotificationSettings;
using notify::NotificationWindow;

namespace {

using Saved = std::expected<void, QString>;

constexpr QLatin1StringView allProviders("both");

struct Setting {
    SettingUsage usage;
    QString standard;
    std::function<QString()> value;
    /// nullopt if the text is no such value
    std::function<std::optional<Saved>(const QString& text)> set;
};

Saved saved(const std::expected<void, model::FileError>& result) {
    return result ? Saved() : std::unexpected(result.error().message.text());
}

QString onOrOff(bool isOn) {
    return isOn ? QStringLiteral("on") : QStringLiteral("off");
}

std::optional<bool> parseSwitch(const QString& text) {
    const bool isOn = text == u"on";
    return isOn || text == u"off" ? std::optional(isOn) : std::nullopt;
}

QString clockTime(std::int64_t minutes) {
    return QStringLiteral("%1:%2")
        .arg(minutes / 60, 2, 10, QChar(u'0'))
        .arg(minutes % 60, 2, 10, QChar(u'0'));
}

QString windowText(const NotificationWindow& window) {
    const QString off = window.enabled ? QString() : QStringLiteral("off ");
    return off + (window.allDay
                      ? QStringLiteral("all-day")
                      : clockTime(window.startMinutes) + u'-' + clockTime(window.endMinutes));
}

std::optional<NotificationWindow> parseWindow(const QString& text) {
    static const QRegularExpression form(QStringLiteral(
        "^(off +)?(?:(all-day)|([01]\\d|2[0-3]):([0-5]\\d)-([01]\\d|2[0-3]):([0-5]\\d))$"));
    const QRegularExpressionMatch match = form.match(text.trimmed());
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    NotificationWindow window;
    window.enabled = match.captured(1).isEmpty();
    window.allDay = !match.captured(2).isEmpty();
    if (!window.allDay) {
        window.startMinutes = match.captured(3).toInt() * 60 + match.captured(4).toInt();
        window.endMinutes = match.captured(5).toInt() * 60 + match.captured(6).toInt();
    }
    return window;
}

QString windowsText(const std::vector<NotificationWindow>& windows) {
    QStringList texts;
    std::ranges::transform(windows, std::back_inserter(texts), windowText);
    return texts.isEmpty() ? QStringLiteral("none") : texts.join(QStringLiteral(", "));
}

std::optional<std::vector<NotificationWindow>> parseWindows(const QString& text) {
    std::vector<NotificationWindow> windows;
    if (text == u"none") {
        return windows;
    }
    for (const QString& part : text.split(u',')) {
        const auto window = parseWindow(part);
        if (!window) {
            return std::nullopt;
        }
        windows.push_back(*window);
    }
    return windows;
}

/// Everything that the references name must outlive the result.
QList<Setting> settings(model::DefaultsStore& defaults, platform::LoginItem& loginItem,
                        providers::CodexProgram& codex) {
    const auto changeNotifications = [&defaults](const auto& change) {
        NotificationSettings changed = notify::loadNotificationSettings(defaults);
        change(changed);
        return saved(notify::saveNotificationSettings(defaults, changed));
    };
    return {
        {.usage = appearanceSetting,
         .standard = QStringLiteral("system"),
         .value = [&] { return QString(model::rawValue(core::loadAppearance(defaults))); },
         .set = [&](const QString& text) -> std::optional<Saved> {
             const auto value = model::fromRawValue<model::AppAppearance>(text);
             return value ? std::optional(saved(core::saveAppearance(defaults, *value)))
                          : std::nullopt;
         }},
        {.usage = providersSetting,
         .standard = QString(allProviders),
         .value =
             [&] {
                 const auto only = core::loadOnlyProvider(defaults);
                 return QString(only ? model::rawValue(*only) : allProviders);
             },
         .set = [&](const QString& text) -> std::optional<Saved> {
             const auto only = model::fromRawValue<model::AIProvider>(text);
             return only || text == allProviders
                        ? std::optional(saved(core::saveOnlyProvider(defaults, only)))
                        : std::nullopt;
         }},
        {.usage = launchAtLoginSetting,
         .standard = QStringLiteral("off"),
         .value = [&] { return onOrOff(core::launchesAtLogin(loginItem)); },
         .set = [&](const QString& text) -> std::optional<Saved> {
             const auto value = parseSwitch(text);
             return value ? std::optional(core::setLaunchAtLogin(loginItem, *value)) : std::nullopt;
         }},
        {.usage = notificationsSetting,
         .standard = QStringLiteral("off"),
         .value = [&] { return onOrOff(notify::loadNotificationSettings(defaults).enabled); },
         .set = [=](const QString& text) -> std::optional<Saved> {
             const auto value = parseSwitch(text);
             return value ? std::optional(changeNotifications(
                                [&](NotificationSettings& changed) { changed.enabled = *value; }))
                          : std::nullopt;
         }},
        {.usage = notificationWindowsSetting,
         .standard = QStringLiteral("09:00-18:00"),
         .value = [&] { return windowsText(notify::loadNotificationSettings(defaults).windows); },
         .set = [=](const QString& text) -> std::optional<Saved> {
             const auto value = parseWindows(text);
             return value ? std::optional(changeNotifications(
                                [&](NotificationSettings& changed) { changed.windows = *value; }))
                          : std::nullopt;
         }},
        {.usage = lowQuotaSetting,
         .standard = QStringLiteral("off"),
         .value = [&] { return onOrOff(core::loadWarnsOfLowQuota(defaults)); },
         .set = [&](const QString& text) -> std::optional<Saved> {
             const auto value = parseSwitch(text);
             return value ? std::optional(saved(core::saveWarnsOfLowQuota(defaults, *value)))
                          : std::nullopt;
         }},
        {.usage = codexPathSetting,
         .standard = QString(),
         .value = [&] { return codex.chosen(); },
         .set = [&](const QString& text) -> std::optional<Saved> { return codex.choose(text); }},
    };
}

/// Lets a running program take the change over.
ExitCode announce() {
    leaveSilentSessionBus();
    const auto reloaded = platform::reloadRunning();
    return !reloaded && reloaded.error() == platform::CallError::noAnswer ? reportNoAnswer()
                                                                          : ExitCode::success;
}

ExitCode change(const Setting& setting, const QString& text) {
    const std::optional<Saved> result = setting.set(text);
    if (!result) {
        return reportMisuse(QStringLiteral("'%1' is %2, not '%3'.")
                                .arg(setting.usage.key, setting.usage.text, text));
    }
    if (!*result) {
        printError(result->error());
        return ExitCode::failure;
    }
    return announce();
}

ExitCode list(const QList<Setting>& settings) {
    QString text;
    for (const Setting& setting : settings) {
        text += QStringLiteral("%1 = %2\n").arg(setting.usage.key, setting.value());
    }
    return print(text) ? ExitCode::success : ExitCode::failure;
}

} // namespace

ExitCode runConfig(const Environment& environment, const QStringList& words) {
    if (!checkResources(refreshResources)) {
        return ExitCode::failure;
    }
    model::DefaultsStore defaults = openDefaults(environment);
    platform::AutostartEntry loginItem(
        autostartPlaces(environment, QCoreApplication::applicationFilePath().toStdString()));
    providers::CodexProgram codex(defaults, codexPlaces(environment));
    const QList<Setting> known = settings(defaults, loginItem, codex);

    const QString verb = words.value(0, QStringLiteral("list"));
    const auto word = std::ranges::find(configWordUsages, verb, &ConfigWordUsage::name);
    if (word == std::end(configWordUsages)) {
        return reportMisuse(
            QStringLiteral("Unknown word '%1' after config; known are list, get, set "
                           "and unset.")
                .arg(verb));
    }
    if (std::max<qsizetype>(words.size() - 1, 0) != word->argumentCount()) {
        return reportMisuse(
            QStringLiteral("It is 'tallyvane config list', 'config get KEY', 'config "
                           "set KEY VALUE' or 'config unset KEY'."));
    }
    if (verb == u"list") {
        return list(known);
    }
    const auto setting = std::ranges::find(
        known, words[1], [](const Setting& candidate) { return candidate.usage.key; });
    if (setting == known.end()) {
        return reportMisuse(
            QStringLiteral("Unknown setting '%1'; 'tallyvane config list' shows them all.")
                .arg(words[1]));
    }
    if (verb == u"get") {
        return print(setting->value() + u'\n') ? ExitCode::success : ExitCode::failure;
    }
    return change(*setting, verb == u"set" ? words[2] : setting->standard);
}

} // namespace tallyvane::app
