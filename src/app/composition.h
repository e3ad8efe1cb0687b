#pragma once

#include "app/claude_access.h"
#include "app/environment.h"
#include "core/app_model.h"
#include "platform/linux/autostart_entry.h"
#include "platform/linux/boot_clock.h"
#include "platform/linux/dbus_notification_centre.h"
#include "platform/linux/dbus_widget_centre.h"
#include "providers/codex/codex_quota_client.h"

namespace tallyvane::app {

[[nodiscard]] providers::CodexPlaces codexPlaces(const Environment& environment);

/// `program` is what to start at login, an absolute path.
[[nodiscard]] platform::AutostartPlaces autostartPlaces(const Environment& environment,
                                                        const std::filesystem::path& program);

/// Where Claude Code keeps its sign-in when there is no keyring.
[[nodiscard]] std::filesystem::path claudeCredentialsFile(const Environment& environment);

/// Makes this program run without a session bus that accepts connections but does not answer. Call
/// it before anything uses the bus.
void leaveSilentSessionBus();

/// Where figures come from. Creates no file or folder. Must outlive the event loop: suspended
/// coroutines resume on it.
struct QuotaSources {
    explicit QuotaSources(const Environment& environment);

    platform::BootClock clock;
    model::DefaultsStore defaults;
    providers::CodexProgram codexProgram;
    providers::ProcessRunner processRunner;
    providers::CodexQuotaClient codexClient;
    ClaudeAccess claude;
};

/// The model and its collaborators, in order of construction. Must outlive the event loop. In
/// fixture mode the model starts from the fixtures.
struct Composition : QuotaSources {
    explicit Composition(const Environment& environment);
    /// Flushes the session bus, since the program ends next.
    ~Composition();
    Composition(const Composition&) = delete;
    Composition& operator=(const Composition&) = delete;

    platform::DBusWidgetCentre widgetCentre;
    platform::DBusNotificationCentre notificationCentre;
    model::SharedStore store;
    history::LocalTokenEstimator tokenEstimator;
    notify::QuotaNotifier notifier;
    core::AppModel model;
};

} // namespace tallyvane::app
