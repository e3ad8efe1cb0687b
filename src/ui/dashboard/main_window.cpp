#include "ui/dashboard/main_window.h"

#include "core/preferences.h"
#include "ui/style/engine.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickView>

namespace tallyvane::ui {

class MainWindow::Window : public QQuickView {
public:
    Window(MainWindow& owner, QQmlEngine& engine)
        : QQuickView(&engine, nullptr), m_owner(owner), m_model(owner.m_with) {
        m_model.setHasStatusHost(owner.m_hasStatusHost);
        connect(&m_model, &MainWindowModel::refreshRequested, &owner,
                &MainWindow::refreshRequested);
        connect(&m_model, &MainWindowModel::quitRequested, &owner, &MainWindow::quitRequested);
        connect(&m_model, &MainWindowModel::closeRequested, &owner, &MainWindow::close);

        setTitle(QStringLiteral("Tallyvane"));
        setResizeMode(SizeRootObjectToView);
        setInitialProperties({{QStringLiteral("viewModel"), QVariant::fromValue(&m_model)}});
        load(*this, QUrl(QStringLiteral("qrc:/Tallyvane/Dashboard/ContentView.qml")));
        // The content's implicit size grows with the desktop's text.
        connect(rootObject(), &QQuickItem::implicitWidthChanged, this, &Window::fitContent);
        connect(rootObject(), &QQuickItem::implicitHeightChanged, this, &Window::fitContent);
        fitContent();
        const QSize usual(820, 760);
        resize((m_shape.size.isEmpty() ? usual : m_shape.size)
                   .boundedTo(screen()->availableSize())
                   .expandedTo(minimumSize()));
        setWindowState(m_shape.isMaximized ? Qt::WindowMaximized : Qt::WindowNoState);
        connect(qApp, &QCoreApplication::aboutToQuit, this, &Window::saveShape);
    }
    ~Window() override {
        // The items use m_model, which is destroyed before the base class would delete them.
        delete rootObject();
    }

    MainWindowModel& model() { return m_model; }

    void saveShape() {
        const bool isMaximized = (windowStates() & Qt::WindowMaximized) != 0;
        const core::WindowShape shape{.size = isMaximized ? m_shape.size : size(),
                                      .isMaximized = isMaximized};
        if (shape != m_shape) {
            m_shape = shape;
            core::saveWindowShape(m_owner.m_with.defaults, shape);
        }
    }

protected:
    void closeEvent(QCloseEvent* event) override {
        QQuickView::closeEvent(event);
        m_owner.close();
    }

private:
    void fitContent() {
        setMinimumSize(
            QSizeF(rootObject()->implicitWidth(), rootObject()->implicitHeight()).toSize());
    }

    MainWindow& m_owner;
    core::WindowShape m_shape = core::loadWindowShape(m_owner.m_with.defaults); ///< as stored
    MainWindowModel m_model;
};

MainWindow::MainWindow(std::function<QQmlEngine&()> engine, MainWindowContext context)
    : m_engine(std::move(engine)), m_with(std::move(context)) {}

MainWindow::~MainWindow() = default;

void MainWindow::open() {
    if (isOpen()) {
        m_window->setWindowStates(m_window->windowStates() & ~Qt::WindowMinimized);
        m_window->raise();
    } else {
        m_window = std::make_unique<Window>(*this, m_engine());
        m_window->setVisible(true); // show() would leave the maximised state
    }
    m_window->requestActivate();
}

void MainWindow::openSettings() {
    constexpr int settings = 2; // ContentView.Settings
    open();
    m_window->rootObject()->setProperty("page", settings);
}

void MainWindow::close() {
    if (!isOpen()) {
        return;
    }
    m_window->saveShape();
    m_closed = std::move(m_window);
    m_closed->hide();
    QMetaObject::invokeMethod(this, [this] { m_closed.reset(); }, Qt::QueuedConnection);
}

QWindow* MainWindow::window() const {
    return m_window.get();
}

void MainWindow::setHasStatusHost(bool hasStatusHost) {
    m_hasStatusHost = hasStatusHost;
    if (isOpen()) {
        m_window->model().setHasStatusHost(hasStatusHost);
    }
}

} // namespace tallyvane::ui

#include "moc_main_window.cpp"
