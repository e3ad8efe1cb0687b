#pragma once

#include <QCoro/QCoroTask>
#include <QtCore/QObject>

#include <expected>
#include <functional>

/// One program runs per user; it owns a name on the session bus by which others reach it. Main
/// thread only.
namespace tallyvane::platform {

/// The running program's object /org/corvelle/Tallyvane: org.freedesktop.Application (Desktop Entry
/// Specification, "D-Bus Activation") with the actions "refresh" and "quit", and
/// org.corvelle.Tallyvane.Control, whose Refresh() -> b replies when the refresh has ended.
class DBusApplication : public QObject {
    Q_OBJECT

public:
    enum class Registration {
        owner,          ///< this process is the one
        alreadyRunning, ///< another process is
        noBus,          ///< unknown, and there will be no calls
    };

    /// Refreshes, or joins the refresh that is running, and returns whether new figures were
    /// stored. What the task uses must outlive the event loop.
    using Refresh = std::function<QCoro::Task<bool>()>;

    explicit DBusApplication(Refresh refresh);

    /// Call this once, when everything is ready: calls may arrive from then on.
    [[nodiscard]] Registration registerOnBus();

Q_SIGNALS:
    /// A request to show the window. The caller's token (xdg-activation) may be empty.
    void activated(const QString& token);
    void refreshRequested(); ///< without waiting for its end
    void quitRequested();    ///< by a caller, or because the bus is gone
};

enum class CallError {
    notRunning, ///< no bus, nobody owns the name, or its owner ended before it replied
    noAnswer,   ///< the owner of the name does not reply
};

[[nodiscard]] bool isApplicationRunning();

/// Makes the running program show its window. Blocks for at most five seconds.
[[nodiscard]] std::expected<void, CallError> activateRunning(const QString& token);

/// Makes the running program refresh and returns whether new figures were stored. Blocks until the
/// refresh has ended, at most two minutes.
[[nodiscard]] std::expected<bool, CallError> refreshRunning();

} // namespace tallyvane::platform
