#pragma once

#include "ui/dashboard/main_window_model.h"

class QQmlEngine;
class QWindow;

namespace tallyvane::ui {

/// The scene "dashboard": the main window, which exists while it is open. Main thread.
class MainWindow : public QObject {
    Q_OBJECT

public:
    /// `engine` is asked when the window first opens, and outlives this.
    MainWindow(std::function<QQmlEngine&()> engine, MainWindowContext context);
    ~MainWindow() override;

    /// Opens it, or brings the open one to the front.
    void open();
    void close();
    [[nodiscard]] bool isOpen() const { return m_window != nullptr; }
    /// The open window; else null.
    [[nodiscard]] QWindow* window() const;

    /// Whether the desktop shows status items; without them the window says so.
    void setHasStatusHost(bool hasStatusHost);

Q_SIGNALS:
    void closed();
    // The user's commands.
    void refreshRequested();
    void quitRequested();

private:
    class Window;

    std::function<QQmlEngine&()> m_engine;
    MainWindowContext m_with;
    bool m_hasStatusHost = true;
    std::unique_ptr<Window> m_window;
    std::unique_ptr<Window> m_closed; ///< until the event that closed it is over
};

} // namespace tallyvane::ui
