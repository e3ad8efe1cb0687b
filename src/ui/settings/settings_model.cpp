#include "ui/settings/settings_model.h"

#include "core/launch_at_login.h"
#include "notify/notification_settings.h"

#include <utility>

namespace tallyvane::ui {

using notify::NotificationSettings;
using notify::NotificationWindow;

namespace {

constexpr int minutesPerDay = 24 * 60;
constexpr int minutesPerStep = 15;

/// Wraps `minutes` to 0 to 1439: the file of settings may hold any number.
int minuteOfDay(std::int64_t minutes) {
    return static_cast<int>((minutes % minutesPerDay + minutesPerDay) % minutesPerDay);
}

} // namespace

SettingsModel::SettingsModel(core::AppModel& model, platform::LoginItem& loginItem,
                             platform::NotificationCentre& notificationCentre,
                             const model::LocaleLabels& labels, core::ProgramSetting codexProgram,
                             std::function<void()> openNotificationSettings)
    : m_model(model),
      m_loginItem(loginItem),
      m_notificationCentre(notificationCentre),
      m_labels(labels),
      m_codexProgram(std::move(codexProgram)),
      m_openNotificationSettings(std::move(openNotificationSettings)) {
    connect(&model, &core::AppModel::appearanceChanged, this, &SettingsModel::appearanceChanged);
    connect(&model, &core::AppModel::onlyProviderChanged, this, &SettingsModel::providersChanged);
    connect(&model, &core::AppModel::preferencesReloaded, this,
            &SettingsModel::launchesAtLoginChanged);
    connect(&model, &core::AppModel::preferencesReloaded, this, &SettingsModel::codexChanged);
    connect(&model, &core::AppModel::snapshotChanged, this, &SettingsModel::codexChanged);
    connect(&model, &core::AppModel::notificationSettingsChanged, this, [this] {
        showWindows();
        Q_EMIT notificationSettingsChanged();
        Q_EMIT windowsNoteChanged();
    });
    connect(&model, &core::AppModel::warnsOfLowQuotaChanged, this, [this] {
        Q_EMIT warnsOfLowQuotaChanged();
        Q_EMIT windowsNoteChanged();
    });
    connect(&notificationCentre, &platform::NotificationCentre::authorizationChanged, this,
            &SettingsModel::readAuthorization);
    showWindows();
}

void SettingsModel::setAppearance(int appearance) {
    m_model.setAppearance(static_cast<model::AppAppearance>(appearance));
}

int SettingsModel::providers() const {
    const auto only = m_model.onlyProvider();
    return only ? 1 + std::to_underlying(*only) : 0;
}

void SettingsModel::setProviders(int providers) {
    m_model.setOnlyProvider(providers == 0
                                ? std::nullopt
                                : std::optional(static_cast<model::AIProvider>(providers - 1)));
}

bool SettingsModel::launchesAtLogin() const {
    return core::launchesAtLogin(m_loginItem);
}

void SettingsModel::show() {
    m_launchError = QString();
    m_historyMessage = QString();
    m_refusal = QString();
    Q_EMIT launchesAtLoginChanged();
    Q_EMIT codexChanged();
    readAuthorization();
}

void SettingsModel::setLaunchesAtLogin(bool wanted) {
    const auto done = core::setLaunchAtLogin(m_loginItem, wanted);
    m_launchError = done ? QString() : done.error();
    Q_EMIT launchesAtLoginChanged(); // after a failure too, so that the switch springs back
}

QString SettingsModel::codexPath() const {
    return m_codexProgram.shortened(m_codexProgram.state().chosen);
}

QString SettingsModel::codexState() const {
    if (!m_refusal.isEmpty()) {
        return m_refusal;
    }
    const core::ProgramSetting::State state = m_codexProgram.state();
    if (!state.error.isEmpty()) {
        return state.error;
    }
    //: %1 is a program's path
    return (state.chosen.isEmpty() ? tr("In use: %1, found by Tallyvane.")
                                   //: %1 is a program's path
                                   : tr("In use: %1, chosen by you."))
        .arg(m_codexProgram.shortened(state.path));
}

bool SettingsModel::isCodexFound() const {
    return m_refusal.isEmpty() && m_codexProgram.state().error.isEmpty();
}

void SettingsModel::setCodexPath(const QString& path) {
    const auto done = m_codexProgram.choose(m_codexProgram.expanded(path.trimmed()));
    m_refusal = done ? QString() : done.error();
    Q_EMIT codexChanged();
}

void SettingsModel::setNotifies(bool notifies) {
    NotificationSettings settings = m_model.notificationSettings();
    settings.enabled = notifies;
    m_model.setNotificationSettings(settings);
    if (notifies) {
        readAuthorization();
    }
}

void SettingsModel::setWarnsOfLowQuota(bool warns) {
    m_model.setWarnsOfLowQuota(warns);
    if (warns) {
        readAuthorization();
    }
}

QString SettingsModel::windowsNote() const {
    const NotificationSettings settings = m_model.notificationSettings();
    const bool isAny = settings.enabled || warnsOfLowQuota();
    if (!isAny || notify::allowsAnyTime(settings)) {
        return {};
    }
    return settings.windows.empty() ? tr("No notification can come: there is no time window.")
                                    : tr("No notification can come: no time window allows any.");
}

void SettingsModel::readAuthorization() {
    QCoro::connect(m_notificationCentre.isAuthorized(), this,
                   [this](bool isAuthorized) { m_isAuthorized = isAuthorized; });
}

void SettingsModel::openNotificationSettings() {
    m_openNotificationSettings();
}

void SettingsModel::addWindow() {
    NotificationSettings settings = m_model.notificationSettings();
    settings.windows.emplace_back();
    m_model.setNotificationSettings(settings);
}

template <typename Change>
void SettingsModel::changeWindow(const QString& windowId, Change change) {
    NotificationSettings settings = m_model.notificationSettings();
    const auto window =
        std::ranges::find(settings.windows, QUuid(windowId), &NotificationWindow::id);
    if (window != settings.windows.end()) {
        change(*window);
        m_model.setNotificationSettings(settings);
    }
}

void SettingsModel::changeWindow(const QString& windowId, bool allDay, int startMinutes,
                                 int endMinutes) {
    changeWindow(windowId, [=](NotificationWindow& window) {
        window.allDay = allDay;
        window.startMinutes = startMinutes;
        window.endMinutes = endMinutes;
    });
}

void SettingsModel::turnWindowOn(const QString& windowId) {
    changeWindow(windowId, [](NotificationWindow& window) { window.enabled = true; });
}

void SettingsModel::removeWindow(const QString& windowId) {
    NotificationSettings settings = m_model.notificationSettings();
    std::erase_if(settings.windows,
                  [&](const NotificationWindow& window) { return window.id == QUuid(windowId); });
    m_model.setNotificationSettings(settings);
}

void SettingsModel::clearHistory() {
    m_model.clearHistory();
    m_historyMessage = tr("Usage history cleared.");
}

QString SettingsModel::timeText(int minutes) const {
    return m_labels.timeOfDay(minutes);
}

int SettingsModel::minutesOf(const QString& text, int otherwise) const {
    return m_labels.parseTimeOfDay(text).value_or(otherwise);
}

int SettingsModel::stepped(int minutes, int steps) const {
    return minuteOfDay(minutes + std::int64_t{minutesPerStep} * steps);
}

void SettingsModel::showWindows() {
    std::vector<TimeWindow> rows;
    for (const NotificationWindow& window : m_model.notificationSettings().windows) {
        rows.push_back(
            {.windowId = window.id.toString(),
             .allDay = window.allDay,
             .startMinutes = minuteOfDay(window.startMinutes),
             .endMinutes = minuteOfDay(window.endMinutes),
             .isOn = window.enabled,
             .note = !window.enabled ? tr("This window is off; no notification comes in it.")
                     : notify::isEmpty(window) ? tr("No time lies between this start and end.")
                                               : QString()});
    }
    m_windows.setRecords(std::move(rows));
}

} // namespace tallyvane::ui

#include "moc_settings_model.cpp"
