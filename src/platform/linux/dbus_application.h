#pragma once

#include <QCoro/QCoroTask>
#include <QtCore/QObject>

#include <expected>
#include <functional>

/// One program runs per user; it owns a name on the session bus by which others reach it. Main
/// thread only.
namespace tallyvane::platform {

/// The running program's object /org/corvelle/Tallyvane: org.freedesktop.Application (Desktop Entry
/// Specification, "D-Bus Activation") with the actions "refresh" and "quit",
/// org.corvelle.Tallyvane.Control, and the signals of org.corvelle.Tallyvane.Widgets; see
/// docs/interfaces.md.
class DBusApplication : public QObject {
    Q_OBJECT

public:
    enum class Registration {
        owner,          ///< this process is the one
        alreadyRunning, ///< another process is
        noBus,          ///< unknown, and there will be no calls
    };

    struct RefreshAnswer {
        bool isStored = false; ///< whether new figures were stored
        QString report;        ///< the result as JSON
    };

    /// Refreshes, or joins the refresh that is running. What the task uses must outlive the event
    /// loop.
    using Refresh = std::function<QCoro::Task<RefreshAnswer>()>;

    explicit DBusApplication(Refresh refresh);

    /// Call this once, when everything is ready: calls may arrive from then on.
    [[nodiscard]] Registration registerOnBus();

Q_SIGNALS:
    /// A request to show the window. The caller's token (xdg-activation) may be empty.
    void activated(const QString& token);
    void refreshRequested(); ///< without waiting for its end
    void reloadRequested();  ///< of the settings, which another program has changed
    void quitRequested();    ///< by a caller, or because the bus is gone
};

enum class CallError {
    notRunning, ///< no bus, nobody owns the name, or its owner ended before it replied
    noAnswer,   ///< the owner of the name does not reply
};

[[nodiscard]] bool isApplicationRunning();

/// Makes the running program show its window. Blocks for at most five seconds.
[[nodiscard]] std::expected<void, CallError> activateRunning(const QString& token);

/// Makes the running program refresh and returns the result as JSON. Blocks until the refresh has
/// ended, at most two minutes.
[[nodiscard]] std::expected<QString, CallError> refreshRunning();

/// Makes the running program read the settings again. Blocks for at most five seconds.
[[nodiscard]] std::expected<void, CallError> reloadRunning();

} // namespace tallyvane::platform
