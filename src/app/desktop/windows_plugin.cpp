#include "app/desktop/windows_plugin.h"

#include "ui/menubar/menu_bar_quota_view_model.h"
#include "ui/menubar/quota_panel.h"
#include "ui/style/appearance.h"
#include "ui/style/engine.h"

#include <QtQuick/QQuickWindow>

namespace tallyvane::app {

namespace {

class QuickWindows final : public Windows {
public:
    explicit QuickWindows(const WindowsContext& context)
        : m_appearance(context.model.appearance()),
          m_engine(ui::makeEngine(m_appearance)),
          m_panelModel(context.model),
          m_panel([this]() -> QQmlEngine& { return *m_engine; }, m_panelModel) {
        QObject::connect(
            &context.model, &core::AppModel::appearanceChanged, &m_appearance,
            [this, &model = context.model] { m_appearance.setChoice(model.appearance()); });
        QObject::connect(&m_panelModel, &ui::MenuBarQuotaViewModel::openRequested, &m_panel,
                         [this] { openMainWindow(); });
        QObject::connect(&m_panelModel, &ui::MenuBarQuotaViewModel::refreshRequested,
                         &context.model, &core::AppModel::startRefresh);
        QObject::connect(&m_panelModel, &ui::MenuBarQuotaViewModel::quitRequested, &m_panel,
                         context.quit);
    }

    void togglePanel(QPoint itemPosition) override { m_panel.toggle(itemPosition); }
    void openMainWindow() override {}
    void setSystemColourScheme(platform::ColourScheme scheme) override {
        m_appearance.setSystemColourScheme(scheme);
    }
    void setStatusItemShown(bool /*isShown*/) override {}

private:
    ui::Appearance m_appearance;
    std::unique_ptr<QQmlEngine> m_engine;
    ui::MenuBarQuotaViewModel m_panelModel;
    ui::QuotaPanel m_panel;
};

} // namespace

std::unique_ptr<Windows> QuickWindowsPlugin::makeWindows(const WindowsContext& context) {
    // Drawing by the processor takes a third of the memory that OpenGL in software takes, and no
    // longer for windows as calm as these.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    return std::make_unique<QuickWindows>(context);
}

} // namespace tallyvane::app
