#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QObject>
#include <QtCore/QPoint>
#include <QtCore/QRect>

#include <functional>
#include <memory>

class QQmlEngine;
class QWindow;

namespace tallyvane::ui {

class MenuBarQuotaViewModel;

/// Where a panel of `size` goes: at `point`, on the side of it that has the room, and wholly within
/// `available`. All in device-independent pixels of one desktop.
[[nodiscard]] QPoint panelPosition(QSize size, QPoint point, QRect available);

/// The panel's window, which exists while it is open. Escape, the loss of the focus and, under X11,
/// a press elsewhere close it. Main thread.
class QuotaPanel : public QObject {
    Q_OBJECT

public:
    /// `engine` is asked when the panel first opens. Both outlive the panel.
    QuotaPanel(std::function<QQmlEngine&()> engine, MenuBarQuotaViewModel& viewModel);
    ~QuotaPanel() override;

    /// For a press on the status item: opens the panel, or closes it. The press that has just
    /// closed the panel as one elsewhere does not open it again.
    void toggle(QPoint itemPosition);
    /// Opens it at the pointer where the desktop tells its place, else at `itemPosition` if the
    /// desktop lets a window choose its place.
    void open(QPoint itemPosition);
    void close();
    [[nodiscard]] bool isOpen() const { return m_window != nullptr; }
    /// The open panel's; else null.
    [[nodiscard]] QWindow* window() const;

private:
    class Window;

    std::function<QQmlEngine&()> m_engine;
    MenuBarQuotaViewModel& m_viewModel;
    std::unique_ptr<Window> m_window;
    std::unique_ptr<Window> m_closed; ///< until the event that closed it is over
    QDeadlineTimer m_samePress;       ///< until then a press is the one that closed the panel
};

} // namespace tallyvane::ui
