#pragma once

#include "app/commands.h"
#include "app/composition.h"
#include "app/desktop/status_area.h"
#include "app/desktop/windows_library.h"
#include "notify/low_quota_notifier.h"
#include "platform/linux/autostart_entry.h"
#include "platform/linux/dbus_application.h"

namespace tallyvane::app {

/// The desktop program: one model, the status item, and windows on demand. Must outlive the event
/// loop: suspended coroutines resume on it.
class DesktopProgram : public QObject {
    Q_OBJECT

public:
    explicit DesktopProgram(const Environment& environment);

    /// Returns the exit code, or nullopt when the event loop should run.
    [[nodiscard]] std::optional<ExitCode> start(StartMode mode);

private:
    void reloadSettings();
    /// Does nothing unless the choice has changed since the last call.
    void refreshWithChosenCodex();
    /// Does nothing unless a provider was hidden at the last call and is shown now.
    void refreshNewlyShown();
    /// Refreshes now, or again when the refresh in progress has ended.
    void refreshAnew();
    /// Call after each refresh.
    void warnOfLowQuota();
    [[nodiscard]] core::ProgramSetting codexSetting();
    QCoro::Task<platform::DBusApplication::RefreshAnswer> refreshAndReport();
    void openMainWindow(const QString& activationToken);
    [[nodiscard]] WindowsContext windowsContext();
    [[nodiscard]] Windows* windows();

    Environment m_environment;
    /// First, so that it is registered while the rest is made. Hosts see what it holds afterwards.
    platform::StatusItem m_statusItem;
    Composition m_composition;
    QString m_chosenCodex = m_composition.codexProgram.chosen(); ///< at the last look
    std::vector<model::AIProvider> m_shown = m_composition.model.shownProviders(); ///< likewise
    platform::AutostartEntry m_loginItem;
    platform::SystemAppearance m_appearance;
    notify::LowQuotaNotifier m_lowQuotaNotifier;
    StatusArea m_statusArea;
    platform::DBusApplication m_application;
    WindowsLibrary m_windowsLibrary;
    std::unique_ptr<Windows> m_windows;
};

} // namespace tallyvane::app
