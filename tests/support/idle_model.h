#pragma once

#include "core/app_model.h"
#include "core/program_setting.h"
#include "platform/linux/dbus_widget_centre.h"
#include "providers/claude/claude_quota_client.h"
#include "providers/codex/codex_quota_client.h"
#include "support/fake_notification_centre.h"
#include "support/fake_secret_store.h"
#include "support/manual_clock.h"

#include <QtCore/QTemporaryDir>

namespace tallyvane::tests {

/// An AppModel for views, in a home of its own. Neither assistant is signed in; the Codex CLI is
/// installed once a test puts a program named "codex" there.
class IdleModel {
    QTemporaryDir m_home;
    std::filesystem::path m_root{m_home.path().toStdString()};
    model::StoreLocations m_locations{.dataHome = m_root / "data", .configHome = m_root / "config"};

public:
    /// `now` is the clock's time.
    explicit IdleModel(const model::QuotaSnapshot& snapshot, model::Timestamp now = {},
                       const history::UsageHistory& history = {})
        : clock(now),
          model({.store = m_store,
                 .defaults = defaults,
                 .quotaClients = {m_codexClient, m_claudeClient},
                 .tokenEstimator = m_tokenEstimator,
                 .notifier = m_notifier,
                 .widgetCentre = m_widgetCentre,
                 .clock = clock,
                 .zone = model::LocalZone(QTimeZone::utc())},
                snapshot, history) {}

    [[nodiscard]] QDir home() const { return QDir(m_home.path()); }

    [[nodiscard]] core::ProgramSetting codexSetting() {
        const auto state = [this]() -> core::ProgramSetting::State {
            const auto path = m_codexProgram.path();
            return {.path = path.value_or(QString()),
                    .chosen = m_codexProgram.chosen(),
                    .error = path ? QString() : providers::description(path.error()).text()};
        };
        const auto choose = [this](const QString& path) { return m_codexProgram.choose(path); };
        return {.state = state, .choose = choose, .home = m_home.path()};
    }

    ManualClock clock;
    model::DefaultsStore defaults = model::DefaultsStore::openFirst(m_locations.defaultsSuite(),
                                                                    m_locations.standardDefaults());
    FakeNotificationCentre notificationCentre;

private:
    FakeSecretStore m_secrets;
    platform::DBusWidgetCentre m_widgetCentre;
    model::SharedStore m_store{m_locations};
    providers::CodexProgram m_codexProgram{
        defaults,
        {.standard = {m_home.filePath(QStringLiteral("codex"))},
         .others = {m_home.filePath(QStringLiteral(".nvm/versions/node/*/bin"))}}};
    providers::ProcessRunner m_runner{clock, QProcessEnvironment::systemEnvironment()};
    providers::CodexQuotaClient m_codexClient{m_codexProgram, m_runner, clock};
    providers::ClaudeQuotaClient m_claudeClient{
        {.credentialsFile = m_root / "credentials.json"}, m_secrets, clock};
    history::LocalTokenEstimator m_tokenEstimator{m_root};
    notify::QuotaNotifier m_notifier{notificationCentre};

public:
    core::AppModel model;
};

} // namespace tallyvane::tests
