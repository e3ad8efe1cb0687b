#pragma once

#include "ui/dashboard/dashboard_model.h"
#include "ui/history/heatmap_model.h"
#include "ui/history/history_model.h"
#include "ui/settings/launch_prompt_model.h"
#include "ui/settings/settings_model.h"

namespace tallyvane::ui {

/// What the main window works with. The references must outlive it.
struct MainWindowContext {
    core::AppModel& model;
    model::DefaultsStore& defaults;
    const Appearance& appearance;
    platform::Clock& clock;
    platform::LoginItem& loginItem;
    platform::NotificationCentre& notificationCentre;
    std::string locale; ///< of times, days and numbers; a POSIX or BCP 47 name
    model::LocalZone zone;
    QUrl website; ///< the maker's
    QString version;
    QString dataFolder; ///< where figures and history are stored
    core::ProgramSetting codexProgram;
    QString statusHostAdvice; ///< what to install where no status item can be seen; may be empty
    /// Opens the desktop's notification settings; empty on a desktop without any.
    std::function<void()> openNotificationSettings;
    /// Called when the window opens: whether it should ask if the program may start at login.
    std::function<bool()> takeLaunchQuestion;
};

/// What the main window shows. Lives as long as the window is open.
class MainWindowModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the main window")
    Q_PROPERTY(tallyvane::ui::DashboardModel* dashboard READ dashboard CONSTANT)
    Q_PROPERTY(tallyvane::ui::HistoryModel* history READ history CONSTANT)
    Q_PROPERTY(tallyvane::ui::HeatmapModel* heatmap READ heatmap CONSTANT)
    Q_PROPERTY(tallyvane::ui::SettingsModel* settings READ settings CONSTANT)
    Q_PROPERTY(tallyvane::ui::LaunchPromptModel* launchPrompt READ launchPrompt CONSTANT)
    Q_PROPERTY(bool showsHostNotice READ showsHostNotice NOTIFY showsHostNoticeChanged)
    Q_PROPERTY(QString hostAdvice READ hostAdvice CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(QString dataFolder READ dataFolder CONSTANT)
    Q_PROPERTY(QString settingsFile READ settingsFile CONSTANT)

public:
    explicit MainWindowModel(MainWindowContext context);

    [[nodiscard]] DashboardModel* dashboard() { return &m_dashboard; }
    // Created when their page is first shown.
    [[nodiscard]] HistoryModel* history();
    [[nodiscard]] HeatmapModel* heatmap();
    [[nodiscard]] SettingsModel* settings();
    [[nodiscard]] LaunchPromptModel* launchPrompt() { return &m_launchPrompt; }

    /// Whether to tell that no status item can be seen, from which a closed window can be reopened.
    [[nodiscard]] bool showsHostNotice() const { return m_showsHostNotice; }
    /// What to do about it; may be empty.
    [[nodiscard]] QString hostAdvice() const { return m_with.statusHostAdvice; }
    Q_INVOKABLE void dismissHostNotice(); ///< for good

    [[nodiscard]] QString version() const { return m_with.version; }
    // With "~" for the home directory.
    [[nodiscard]] QString dataFolder() const {
        return m_with.codexProgram.shortened(m_with.dataFolder);
    }
    [[nodiscard]] QString settingsFile() const;

    /// Whether the desktop shows status items.
    void setHasStatusHost(bool hasStatusHost);

Q_SIGNALS:
    void showsHostNoticeChanged();
    // The user's commands.
    void refreshRequested();
    void closeRequested();
    void quitRequested();

private:
    const model::LocaleLabels& labels();
    history::Calendar calendar();
    void waitForMidnight();

    MainWindowContext m_with;
    Q_OBJECT_BINDABLE_PROPERTY(MainWindowModel, bool, m_showsHostNotice,
                               &MainWindowModel::showsHostNoticeChanged)
    std::unique_ptr<model::LocaleLabels> m_labels;
    DashboardModel m_dashboard;
    LaunchPromptModel m_launchPrompt;
    std::unique_ptr<HistoryModel> m_history;
    std::unique_ptr<HeatmapModel> m_heatmap;
    std::unique_ptr<SettingsModel> m_settings;
    std::unique_ptr<platform::Alarm> m_midnight;
};

} // namespace tallyvane::ui
