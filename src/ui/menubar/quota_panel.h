#pragma once

#include "ui/menubar/press_watch.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QObject>
#include <QtCore/QPoint>
#include <QtCore/QRect>

#include <functional>
#include <memory>
#include <optional>

class QQmlEngine;
class QWindow;

namespace tallyvane::ui {

class MenuBarQuotaViewModel;

/// Where a panel of `size` belongs: next to `point`, above or below it, and within `available`. All
/// in device-independent pixels.
[[nodiscard]] QPoint panelPosition(QSize size, QPoint point, QRect available);

/// The window that shows MenuBarQuotaView, the status item's panel. It takes memory only while it
/// is open. Escape, loss of focus and, under X11, a press elsewhere close it; the press also does
/// what it does there. Main thread.
class QuotaPanel : public QObject {
    Q_OBJECT

public:
    /// `engine` is first called when the panel opens. The engine and `viewModel` must outlive this.
    QuotaPanel(std::function<QQmlEngine&()> engine, MenuBarQuotaViewModel& viewModel);
    ~QuotaPanel() override;

    /// Opens or closes the panel after a press on the status item. The press that has closed the
    /// panel, as a press elsewhere, does not reopen it, however long it is held.
    void toggle(std::optional<QPoint> itemPosition);
    /// Opens the panel at `itemPosition`, in the screen's pixels, or else at the pointer, as far as
    /// the desktop lets windows choose their position. A position that is the pointer's in the
    /// units of a scaled host counts as the pointer's.
    void open(std::optional<QPoint> itemPosition);
    void close();
    [[nodiscard]] bool isOpen() const { return m_window != nullptr; }
    /// Null while the panel is closed.
    [[nodiscard]] QWindow* window() const;

private:
    class Window;

    void place();
    void endClosingPress();

    std::function<QQmlEngine&()> m_engine;
    MenuBarQuotaViewModel& m_viewModel;
    std::unique_ptr<Window> m_window;
    std::unique_ptr<Window> m_closed; ///< until the event that closed it has been handled
    QPoint m_itemPlace;               ///< which the panel stays beside as its height changes
    PressWatch m_presses;
    bool m_isClosingPressHeld = false;
    QDeadlineTimer m_samePress; ///< until it expires, a press is the one that closed the panel
};

} // namespace tallyvane::ui
