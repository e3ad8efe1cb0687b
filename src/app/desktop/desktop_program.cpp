#include "app/desktop/desktop_program.h"

#include "app/refresh_result.h"
#include "model/quota_display.h"
#include "platform/application_id.h"
#include "platform/linux/desktop_report.h"
#include "platform/linux/notification_settings_page.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtGui/QDesktopServices>

#include <algorithm>

namespace tallyvane::app {

namespace {

std::filesystem::path iconFolder(const Environment& environment) {
    return environment.runtimeDirectory.empty() ? std::filesystem::path()
                                                : environment.runtimeDirectory / "tallyvane";
}

/// Puts the token that lets a new window take the focus into the environment during its lifetime.
class ActivationToken {
public:
    explicit ActivationToken(const QString& token) {
        if (!token.isEmpty()) {
            qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
        }
    }
    ~ActivationToken() { qunsetenv("XDG_ACTIVATION_TOKEN"); }
    ActivationToken(const ActivationToken&) = delete;
    ActivationToken& operator=(const ActivationToken&) = delete;
};

} // namespace

DesktopProgram::DesktopProgram(const Environment& environment)
    : m_environment(environment),
      m_statusItem(QString(platform::applicationId)),
      m_composition(environment),
      m_loginItem(
          autostartPlaces(environment, QCoreApplication::arguments().constFirst().toStdString())),
      m_lowQuotaNotifier(m_composition.notificationCentre, m_composition.defaults,
                         environment.timeLocale),
      m_statusArea(m_statusItem, m_composition.model, m_appearance, m_composition.clock,
                   iconFolder(environment)),
      m_application([this] { return refreshAndReport(); }) {
    connect(&m_statusArea, &StatusArea::clicked, this,
            [this](std::optional<QPoint> position, const QString& token) {
                const ActivationToken passedOn(token);
                if (Windows* shown = windows()) {
                    shown->togglePanel(position);
                }
            });
    connect(&m_statusArea, &StatusArea::openRequested, this, [this] { openMainWindow({}); });
    connect(&m_statusArea, &StatusArea::refreshRequested, &m_composition.model,
            &core::AppModel::startRefresh);
    connect(&m_statusArea, &StatusArea::usagePageRequested, this, [](model::AIProvider provider) {
        QDesktopServices::openUrl(QUrl(model::usagePage(provider)));
    });
    connect(&m_statusArea, &StatusArea::quitRequested, qApp, &QCoreApplication::quit);
    connect(&m_application, &platform::DBusApplication::activated, this,
            &DesktopProgram::openMainWindow);
    connect(&m_application, &platform::DBusApplication::refreshRequested, &m_composition.model,
            &core::AppModel::startRefresh);
    connect(&m_application, &platform::DBusApplication::reloadRequested, this,
            &DesktopProgram::reloadSettings);
    // Queued, so that the caller gets its reply first.
    connect(&m_application, &platform::DBusApplication::quitRequested, qApp,
            &QCoreApplication::quit, Qt::QueuedConnection);
    connect(&m_composition.model, &core::AppModel::onlyProviderChanged, this,
            &DesktopProgram::refreshNewlyShown);
    connect(&m_composition.model, &core::AppModel::isRefreshingChanged, this,
            &DesktopProgram::warnOfLowQuota);
    connect(&m_composition.notificationCentre, &platform::DBusNotificationCentre::activated, this,
            &DesktopProgram::openMainWindow);
}

std::optional<ExitCode> DesktopProgram::start(StartMode mode) {
    using Registration = platform::DBusApplication::Registration;
    // Another instance may have started at the same time.
    if (m_application.registerOnBus() == Registration::alreadyRunning) {
        const bool isToShow = mode != StartMode::background;
        return !isToShow || platform::activateRunning(m_environment.activationToken)
                   ? ExitCode::success
                   : reportNoAnswer();
    }
    m_composition.model.startAutoRefresh(m_environment.launchContext);
    if (mode != StartMode::background) {
        openMainWindow(m_environment.activationToken);
    }
    return std::nullopt;
}

QCoro::Task<platform::DBusApplication::RefreshAnswer> DesktopProgram::refreshAndReport() {
    const core::RefreshReport report = co_await m_composition.model.refreshOrJoin();
    platform::DBusApplication::RefreshAnswer answer;
    answer.isStored = report.outcome == core::RefreshReport::Outcome::published;
    answer.report = QString::fromUtf8(
        encodeRefreshResult({.report = report, .snapshot = m_composition.model.wholeSnapshot()}));
    co_return answer;
}

void DesktopProgram::reloadSettings() {
    m_composition.model.reloadPreferences();
    refreshWithChosenCodex();
}

void DesktopProgram::refreshWithChosenCodex() {
    const QString chosen = m_composition.codexProgram.chosen();
    if (std::exchange(m_chosenCodex, chosen) != chosen) {
        refreshAnew();
    }
}

void DesktopProgram::refreshNewlyShown() {
    const std::vector<model::AIProvider> shown = m_composition.model.shownProviders();
    const std::vector<model::AIProvider> before = std::exchange(m_shown, shown);
    if (!std::ranges::includes(before, shown) && !m_environment.launchContext.isFixtureMode) {
        refreshAnew();
    }
}

void DesktopProgram::warnOfLowQuota() {
    const core::AppModel& model = m_composition.model;
    if (!model.isRefreshing()) {
        m_lowQuotaNotifier.process(model.snapshot(), model.warnsOfLowQuota(),
                                   model.notificationSettings(), m_composition.clock.now(),
                                   m_environment.zone, model.recentRates());
    }
}

void DesktopProgram::refreshAnew() {
    core::AppModel& model = m_composition.model;
    if (model.isRefreshing()) { // with the settings of before
        connect(&model, &core::AppModel::isRefreshingChanged, &model, &core::AppModel::startRefresh,
                static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    } else {
        model.startRefresh();
    }
}

core::ProgramSetting DesktopProgram::codexSetting() {
    const auto state = [this]() -> core::ProgramSetting::State {
        const providers::CodexProgram& program = m_composition.codexProgram;
        const auto path = program.path();
        return {.path = path.value_or(QString()),
                .chosen = program.chosen(),
                .error = path ? QString() : providers::description(path.error()).text()};
    };
    const auto choose = [this](const QString& path) {
        auto chosen = m_composition.codexProgram.choose(path);
        refreshWithChosenCodex();
        return chosen;
    };
    return {.state = state, .choose = choose, .home = QFile(m_environment.home).fileName()};
}

void DesktopProgram::openMainWindow(const QString& activationToken) {
    const ActivationToken passedOn(activationToken);
    if (Windows* shown = windows()) {
        shown->openMainWindow();
    }
}

WindowsContext DesktopProgram::windowsContext() {
    const auto page =
        platform::notificationSettingsPage(m_environment.currentDesktop, m_environment.searchPath);
    return {.model = m_composition.model,
            .defaults = m_composition.defaults,
            .clock = m_composition.clock,
            .loginItem = m_loginItem,
            .notificationCentre = m_composition.notificationCentre,
            .codexProgram = codexSetting(),
            .statusHostAdvice = platform::statusHostAdvice(m_environment.currentDesktop),
            .dataFolder = QFile(m_composition.store.baseURL()).fileName(),
            .launchContext = m_environment.launchContext,
            .timeLocale = m_environment.timeLocale,
            .zone = m_environment.zone,
            .openNotificationSettings =
                page ? [page] { QProcess::startDetached(page->program, page->arguments); }
                     : std::function<void()>()};
}

Windows* DesktopProgram::windows() {
    if (!m_windows) {
        auto loaded = m_windowsLibrary.makeWindows(windowsContext());
        if (!loaded) {
            // Usually nobody sees standard error.
            printError(loaded.error());
            m_composition.notificationCentre.post({.identifier = QStringLiteral("windows"),
                                                   .title = QStringLiteral("Tallyvane"),
                                                   .body = loaded.error()});
            return nullptr;
        }
        m_windows = std::move(*loaded);
        const auto follow = [this] {
            m_windows->setSystemLook(
                {.scheme = m_appearance.colourPreference(),
                 .isMotionReduced = m_appearance.isMotionReduced(),
                 .isHighContrast = m_appearance.isHighContrast() ||
                                   m_statusArea.panelColours().isHighContrast()});
            m_windows->setStatusItemShown(m_statusArea.isShown());
        };
        connect(&m_appearance, &platform::SystemAppearance::changed, this, follow);
        connect(&m_statusArea.panelColours(), &platform::PanelColourPreference::changed, this,
                follow);
        connect(&m_statusArea, &StatusArea::isShownChanged, this, follow);
        follow();
    }
    return m_windows.get();
}

} // namespace tallyvane::app

#include "moc_desktop_program.cpp"
