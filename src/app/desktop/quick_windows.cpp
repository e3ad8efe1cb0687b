#include "app/desktop/windows.h"
#include "core/launch_at_login.h"
#include "platform/application_id.h"
#include "ui/dashboard/main_window.h"
#include "ui/menubar/menu_bar_quota_view_model.h"
#include "ui/menubar/quota_panel.h"
#include "ui/style/appearance.h"
#include "ui/style/engine.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QIcon>
#include <QtQuick/QQuickWindow>

namespace tallyvane::app {

namespace {

class QuickWindows final : public Windows {
public:
    explicit QuickWindows(const WindowsContext& context)
        : m_appearance(context.model),
          m_engine(ui::makeEngine(m_appearance)),
          m_panelModel(context.model, context.clock),
          m_panel(engine(), m_panelModel),
          m_mainWindow(engine(), {.model = context.model,
                                  .defaults = context.defaults,
                                  .appearance = m_appearance,
                                  .clock = context.clock,
                                  .loginItem = context.loginItem,
                                  .notificationCentre = context.notificationCentre,
                                  .locale = context.timeLocale,
                                  .zone = context.zone,
                                  .website = QUrl(QStringLiteral(TALLYVANE_WEBSITE)),
                                  .version = QStringLiteral(TALLYVANE_VERSION),
                                  .dataFolder = context.dataFolder,
                                  .codexProgram = context.codexProgram,
                                  .statusHostAdvice = context.statusHostAdvice,
                                  .openNotificationSettings = context.openNotificationSettings,
                                  .takeLaunchQuestion = [&defaults = context.defaults,
                                                         launch = context.launchContext] {
                                      return core::takeLaunchQuestion(defaults, launch);
                                  }}) {
        core::AppModel& model = context.model;
        QObject::connect(&m_panelModel, &ui::MenuBarQuotaViewModel::openRequested, &m_mainWindow,
                         &ui::MainWindow::open);
        QObject::connect(&m_panelModel, &ui::MenuBarQuotaViewModel::settingsRequested,
                         &m_mainWindow, &ui::MainWindow::openSettings);
        QObject::connect(&m_panelModel, &ui::MenuBarQuotaViewModel::refreshRequested, &model,
                         &core::AppModel::startRefresh);
        QObject::connect(&m_panelModel, &ui::MenuBarQuotaViewModel::quitRequested, qApp,
                         &QGuiApplication::quit);
        QObject::connect(&m_mainWindow, &ui::MainWindow::refreshRequested, &model,
                         &core::AppModel::startRefresh);
        QObject::connect(&m_mainWindow, &ui::MainWindow::quitRequested, qApp,
                         &QGuiApplication::quit);
    }

    void togglePanel(std::optional<QPoint> itemPosition) override { m_panel.toggle(itemPosition); }
    void openMainWindow() override { m_mainWindow.open(); }
    void setSystemLook(const SystemLook& look) override {
        m_appearance.setSystemColourScheme(look.scheme);
        m_appearance.setMotionReduced(look.isMotionReduced);
        m_appearance.setHighContrast(look.isHighContrast);
    }
    void setStatusItemShown(bool isShown) override { m_mainWindow.setHasStatusHost(isShown); }

private:
    std::function<QQmlEngine&()> engine() {
        return [this]() -> QQmlEngine& { return *m_engine; };
    }

    ui::Appearance m_appearance;
    std::unique_ptr<QQmlEngine> m_engine;
    ui::MenuBarQuotaViewModel m_panelModel;
    ui::QuotaPanel m_panel;
    ui::MainWindow m_mainWindow;
};

} // namespace

} // namespace tallyvane::app

tallyvane::app::Windows* tallyvaneMakeWindows(const tallyvane::app::WindowsContext& context) {
    using namespace tallyvane;
    // The software renderer uses a third of the memory of software OpenGL and is as fast for
    // windows that change this little.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    // Not from the icon theme, which would be searched before the first frame; taskbars that follow
    // it find the icon by the desktop entry.
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/%1.svg").arg(platform::applicationId)));
    return std::make_unique<app::QuickWindows>(context).release();
}
