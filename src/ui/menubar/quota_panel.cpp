#include "ui/menubar/quota_panel.h"

#include "ui/menubar/menu_bar_quota_view_model.h"
#include "ui/style/engine.h"

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickView>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string_view>
#include <utility>
#include <xcb/xcb.h>

namespace tallyvane::ui {

namespace {

using namespace std::chrono_literals;

/// Within which a host passes on what it does about a press.
constexpr auto hostDelay = 250ms;

/// Device-independent pixels, which begin at each screen's corner.
QPoint fromPixels(QPoint pixels) {
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QPoint corner = screen->geometry().topLeft();
        const double scale = screen->devicePixelRatio();
        if (QRect(corner, screen->size() * scale).contains(pixels)) {
            return corner + (pixels - corner) / scale;
        }
    }
    return pixels;
}

/// The place of the item that a host says is at `position`. Hosts scaled by GTK or Qt count in
/// their own units, which none names; but a click leaves the pointer there.
QPoint itemPlace(QPoint position) {
    constexpr int reach = 32; // as the pointer may have moved on
    const QPoint pointer = QCursor::pos();
    for (const double scale : {1.0, 2.0, 3.0, qGuiApp->devicePixelRatio()}) {
        if ((fromPixels(position * scale) - pointer).manhattanLength() < reach) {
            return pointer;
        }
    }
    return fromPixels(position);
}

/// Keeps a window that is not shown yet out of the lists of windows: under X11 many taskbars, such
/// as Plasma's in a Wayland session, list tools too.
void leaveOutOfTaskbar(QWindow& window) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* connection = x11 != nullptr ? x11->connection() : nullptr;
    if (connection == nullptr) {
        return;
    }
    const auto atom = [connection](std::string_view name) {
        const auto asked =
            xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.data());
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
            xcb_intern_atom_reply(connection, asked, nullptr), &std::free);
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    };
    const xcb_atom_t property = atom("_NET_WM_STATE");
    const xcb_atom_t states[] = {atom("_NET_WM_STATE_SKIP_TASKBAR"),
                                 atom("_NET_WM_STATE_SKIP_PAGER")};
    // Qt adds its own states to those that it finds.
    xcb_change_property(connection, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(window.winId()),
                        property, XCB_ATOM_ATOM, 32, std::size(states), states);
}

QRect availableAt(QPoint point) {
    const QScreen* screen = QGuiApplication::screenAt(point);
    return (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

} // namespace

QPoint panelPosition(QSize size, QPoint point, QRect available) {
    constexpr int gap = 8;
    const QRect room = available.adjusted(gap, gap, -gap, -gap);
    const bool isBelow = point.y() < available.center().y();
    const QPoint wished(point.x() - size.width() / 2,
                        isBelow ? point.y() + gap : point.y() - gap - size.height());
    // If the panel is larger than the screen, its top left corner is visible.
    return {std::max(std::min(wished.x(), room.right() + 1 - size.width()), room.left()),
            std::max(std::min(wished.y(), room.bottom() + 1 - size.height()), room.top())};
}

class QuotaPanel::Window : public QQuickView {
public:
    Window(QuotaPanel& panel, QQmlEngine& engine) : QQuickView(&engine, nullptr), m_panel(panel) {
        // Qt::Popup would get no keys.
        setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
        setTitle(QGuiApplication::applicationDisplayName());
        setInitialProperties(
            {{QStringLiteral("viewModel"), QVariant::fromValue(&panel.m_viewModel)}});
        load(*this, QUrl(QStringLiteral("qrc:/Tallyvane/MenuBar/MenuBarQuotaView.qml")));
        connect(rootObject(), &QQuickItem::widthChanged, this, &Window::fixSize);
        connect(rootObject(), &QQuickItem::heightChanged, this, &Window::fixSize);
        fixSize();
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        QQuickView::keyPressEvent(event);
        if (!event->isAccepted() && event->key() == Qt::Key_Escape) {
            m_panel.close();
        }
    }

    void focusOutEvent(QFocusEvent* event) override {
        QQuickView::focusOutEvent(event);
        m_panel.close();
    }

private:
    /// Tiling compositors let only windows of a fixed size float.
    void fixSize() {
        setMinimumSize(sizeHint());
        setMaximumSize(sizeHint());
    }

    QuotaPanel& m_panel;
};

QuotaPanel::QuotaPanel(std::function<QQmlEngine&()> engine, MenuBarQuotaViewModel& viewModel)
    : m_engine(std::move(engine)), m_viewModel(viewModel) {
    connect(&viewModel, &MenuBarQuotaViewModel::openRequested, this, &QuotaPanel::close);
    connect(&viewModel, &MenuBarQuotaViewModel::settingsRequested, this, &QuotaPanel::close);
    connect(&viewModel, &MenuBarQuotaViewModel::quitRequested, this, &QuotaPanel::close);
    connect(&m_presses, &PressWatch::pressed, this, [this] {
        if (isOpen() && !m_window->geometry().contains(QCursor::pos())) {
            m_isClosingPressHeld = true;
            close();
        }
    });
    connect(&m_presses, &PressWatch::released, this, [this] {
        if (std::exchange(m_isClosingPressHeld, false)) {
            endClosingPress();
        }
    });
}

QuotaPanel::~QuotaPanel() = default;

void QuotaPanel::toggle(std::optional<QPoint> itemPosition) {
    if (isOpen()) {
        close();
    } else if (std::exchange(m_isClosingPressHeld, false)) {
        endClosingPress();
    } else if (m_samePress.hasExpired()) {
        open(itemPosition);
    }
}

void QuotaPanel::open(std::optional<QPoint> itemPosition) {
    m_viewModel.setShown(true);
    if (!isOpen()) {
        m_window = std::make_unique<Window>(*this, m_engine());
        connect(m_window.get(), &QWindow::heightChanged, this, &QuotaPanel::place);
    }
    m_itemPlace = itemPosition ? itemPlace(*itemPosition) : QCursor::pos();
    place();
    leaveOutOfTaskbar(*m_window);
    m_window->show();
    m_window->requestActivate();
    m_presses.setWatching(true);
}

void QuotaPanel::place() {
    if (isOpen()) {
        m_window->setPosition(
            panelPosition(m_window->size(), m_itemPlace, availableAt(m_itemPlace)));
    }
}

void QuotaPanel::close() {
    if (!isOpen()) {
        return;
    }
    m_samePress.setRemainingTime(hostDelay);
    m_presses.setWatching(m_isClosingPressHeld); // hosts act on a press or on its release
    m_closed = std::move(m_window);
    m_closed->hide();
    m_viewModel.setShown(false);
    QMetaObject::invokeMethod(this, [this] { m_closed.reset(); }, Qt::QueuedConnection);
}

void QuotaPanel::endClosingPress() {
    m_samePress.setRemainingTime(hostDelay);
    m_presses.setWatching(isOpen());
}

QWindow* QuotaPanel::window() const {
    return m_window.get();
}

} // namespace tallyvane::ui

#include "moc_quota_panel.cpp"
