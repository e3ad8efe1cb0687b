#include "ui/dashboard/main_window_model.h"

#include "core/preferences.h"
#include "history/calendar_days.h"
#include "ui/dashboard/relative_times.h"

#include <QtCore/QFile>

namespace tallyvane::ui {

MainWindowModel::MainWindowModel(MainWindowContext context)
    : m_with(std::move(context)),
      m_dashboard(m_with.model, m_with.clock, model::WeekdayTimeFormat(m_with.locale, m_with.zone),
                  m_with.website, m_with.codexProgram),
      m_launchPrompt(m_with.loginItem) {
    connect(&m_dashboard, &DashboardModel::refreshRequested, this,
            &MainWindowModel::refreshRequested);
    if (m_with.takeLaunchQuestion()) {
        m_launchPrompt.ask();
    }
}

void MainWindowModel::setHasStatusHost(bool hasStatusHost) {
    m_showsHostNotice = !hasStatusHost && !core::hidesStatusHostNotice(m_with.defaults);
}

void MainWindowModel::dismissHostNotice() {
    core::hideStatusHostNotice(m_with.defaults);
    m_showsHostNotice = false;
}

QString MainWindowModel::settingsFile() const {
    return m_with.codexProgram.shortened(QFile(m_with.defaults.path()).fileName());
}

HistoryModel* MainWindowModel::history() {
    if (!m_history) {
        m_history =
            std::make_unique<HistoryModel>(m_with.model, m_with.clock, calendar(), labels());
        waitForMidnight();
    }
    return m_history.get();
}

HeatmapModel* MainWindowModel::heatmap() {
    if (!m_heatmap) {
        m_heatmap = std::make_unique<HeatmapModel>(m_with.model, m_with.clock, m_with.appearance,
                                                   calendar(), labels());
    }
    return m_heatmap.get();
}

SettingsModel* MainWindowModel::settings() {
    if (!m_settings) {
        m_settings = std::make_unique<SettingsModel>(
            m_with.model, m_with.loginItem, m_with.notificationCentre, labels(),
            m_with.codexProgram, m_with.openNotificationSettings);
    }
    return m_settings.get();
}

const model::LocaleLabels& MainWindowModel::labels() {
    if (!m_labels) {
        m_labels = std::make_unique<model::LocaleLabels>(m_with.locale);
    }
    return *m_labels;
}

history::Calendar MainWindowModel::calendar() {
    return {.zone = m_with.zone, .firstWeekday = labels().firstWeekday()};
}

void MainWindowModel::waitForMidnight() {
    const model::Timestamp now = m_with.clock.now();
    const QDate tomorrow = history::localDay(now, m_with.zone).addDays(1);
    const auto wait = history::startOfDay(tomorrow, m_with.zone) - now;
    m_midnight = m_with.clock.after(
        std::max(std::chrono::ceil<std::chrono::milliseconds>(wait), shortestWait), [this] {
            m_history->update();
            heatmap()->update();
            waitForMidnight();
        });
}

} // namespace tallyvane::ui

#include "moc_main_window_model.cpp"
