#pragma once

#include "ui/dashboard/dashboard_model.h"
#include "ui/history/heatmap_model.h"
#include "ui/history/history_model.h"
#include "ui/settings/launch_prompt_model.h"
#include "ui/settings/settings_model.h"

namespace tallyvane::ui {

/// What the main window works with; all that is a reference outlives the window.
struct MainWindowContext {
    core::AppModel& model;
    const Appearance& appearance;
    platform::Clock& clock;
    platform::LoginItem& loginItem;
    platform::NotificationCentre& notificationCentre;
    std::string locale; ///< POSIX or BCP 47; of times, days and numbers
    model::LocalZone zone;
    QUrl website; ///< the maker's
    /// Opens the desktop's own settings of notifications; empty where there are none.
    std::function<void()> openNotificationSettings;
    /// Whether the window, now shown, is to ask if the program shall start at login.
    std::function<bool()> takeLaunchQuestion;
};

/// What one main window shows; made and destroyed with it.
class MainWindowModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the main window")
    Q_PROPERTY(tallyvane::ui::DashboardModel* dashboard READ dashboard CONSTANT)
    Q_PROPERTY(tallyvane::ui::HistoryModel* history READ history CONSTANT)
    Q_PROPERTY(tallyvane::ui::HeatmapModel* heatmap READ heatmap CONSTANT)
    Q_PROPERTY(tallyvane::ui::SettingsModel* settings READ settings CONSTANT)
    Q_PROPERTY(tallyvane::ui::LaunchPromptModel* launchPrompt READ launchPrompt CONSTANT)
    Q_PROPERTY(bool hasStatusHost READ hasStatusHost NOTIFY hasStatusHostChanged)

public:
    explicit MainWindowModel(MainWindowContext context);
    ~MainWindowModel() override;

    [[nodiscard]] DashboardModel* dashboard() { return &m_dashboard; }
    // Made when their page is first shown.
    [[nodiscard]] HistoryModel* history();
    [[nodiscard]] HeatmapModel* heatmap();
    [[nodiscard]] SettingsModel* settings();
    [[nodiscard]] LaunchPromptModel* launchPrompt() { return &m_launchPrompt; }

    /// Whether the desktop shows status items, so that a closed window can be opened again there.
    [[nodiscard]] bool hasStatusHost() const { return m_hasStatusHost; }
    void setHasStatusHost(bool hasStatusHost);

Q_SIGNALS:
    void hasStatusHostChanged();
    // The user's commands.
    void refreshRequested();
    void closeRequested();
    void quitRequested();

private:
    const model::LocaleLabels& labels();
    const history::Calendar& calendar();
    void waitForMidnight();

    MainWindowContext m_with;
    bool m_hasStatusHost = true;
    std::unique_ptr<model::LocaleLabels> m_labels;
    std::optional<history::Calendar> m_calendar;
    DashboardModel m_dashboard;
    LaunchPromptModel m_launchPrompt;
    std::unique_ptr<HistoryModel> m_history;
    std::unique_ptr<HeatmapModel> m_heatmap;
    std::unique_ptr<SettingsModel> m_settings;
    std::unique_ptr<platform::Alarm> m_midnight;
};

} // namespace tallyvane::ui
