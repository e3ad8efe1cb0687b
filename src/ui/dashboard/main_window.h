#pragma once

#include "ui/dashboard/main_window_model.h"

class QQmlEngine;
class QWindow;

namespace tallyvane::ui {

/// The scene "dashboard", the main window. It takes memory only while it is open. Main thread.
class MainWindow : public QObject {
    Q_OBJECT

public:
    /// `engine` is first called when the window opens; the engine must outlive this.
    MainWindow(std::function<QQmlEngine&()> engine, MainWindowContext context);
    ~MainWindow() override;

    /// Opens the window or brings it to the front.
    void open();
    /// As open(), on the page of settings.
    void openSettings();
    void close();
    [[nodiscard]] bool isOpen() const { return m_window != nullptr; }
    /// Null while the window is closed.
    [[nodiscard]] QWindow* window() const;

    /// Whether the desktop shows status items; if not, the window says so.
    void setHasStatusHost(bool hasStatusHost);

Q_SIGNALS:
    // The user's commands.
    void refreshRequested();
    void quitRequested();

private:
    class Window;

    std::function<QQmlEngine&()> m_engine;
    MainWindowContext m_with;
    bool m_hasStatusHost = true;
    std::unique_ptr<Window> m_window;
    std::unique_ptr<Window> m_closed; ///< until the event that closed it has been handled
};

} // namespace tallyvane::ui
