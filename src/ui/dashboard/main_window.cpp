#include "ui/dashboard/main_window.h"

#include "ui/style/engine.h"

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
        setSource(QUrl(QStringLiteral("qrc:/Tallyvane/Dashboard/ContentView.qml")));
        checkLoaded(*this);
        // What the content needs grows with the desktop's text.
        connect(rootObject(), &QQuickItem::implicitWidthChanged, this, &Window::holdContent);
        connect(rootObject(), &QQuickItem::implicitHeightChanged, this, &Window::holdContent);
        holdContent();
        constexpr QSize usual(820, 700);
        resize(usual.expandedTo(minimumSize()));
    }
    ~Window() override {
        // The view's items use the model, which goes first.
        delete rootObject();
    }

    MainWindowModel& model() { return m_model; }

protected:
    void closeEvent(QCloseEvent* event) override {
        QQuickView::closeEvent(event);
        m_owner.close();
    }

private:
    void holdContent() {
        setMinimumSize(
            QSizeF(rootObject()->implicitWidth(), rootObject()->implicitHeight()).toSize());
    }

    MainWindow& m_owner;
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
        m_window->show();
    }
    m_window->requestActivate();
}

void MainWindow::close() {
    if (!isOpen()) {
        return;
    }
    m_closed = std::move(m_window);
    m_closed->hide();
    QMetaObject::invokeMethod(this, [this] { m_closed.reset(); }, Qt::QueuedConnection);
    Q_EMIT closed();
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
