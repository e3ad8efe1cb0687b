#pragma once

#include <QCoro/QCoroTask>
#include <QtCore/QObject>

#include <expected>
#include <functional>

/// The program on the session bus, where it is there once per user: the end of the one that runs,
/// and the end of others that ask it. Main thread only.
namespace tallyvane::platform {

/// The running program. At /org/corvelle/Tallyvane it has org.freedesktop.Application (Desktop
/// Entry Specification, "D-Bus Activation") with the actions "refresh" and "quit", and
/// org.corvelle.Tallyvane.Control, whose Refresh() -> b replies when the refresh has ended.
class DBusApplication : public QObject {
    Q_OBJECT

public:
    enum class Registration {
        owner,          ///< this process is the one
        alreadyRunning, ///< another process is
        noBus,          ///< nobody can tell, and nobody will call
    };

    /// Refreshes, or waits for the refresh that runs; whether new figures were stored. What the
    /// task uses outlives the event loop.
    using Refresh = std::function<QCoro::Task<bool>()>;

    explicit DBusApplication(Refresh refresh);

    /// Call it once, when everything that answers is there: calls may come from then on.
    [[nodiscard]] Registration registerOnBus();

Q_SIGNALS:
    /// The program is to show its window. The token is the caller's for the window system, and may
    /// be empty.
    void activated(const QString& token);
    void refreshRequested(); ///< nobody waits for its end
    void quitRequested();    ///< by a caller, or by the end of the bus
};

enum class CallError {
    notRunning, ///< no bus, nobody has the name, or its owner ended before it answered
    noAnswer,   ///< the name has an owner, and that is all
};

/// Whether the program runs.
[[nodiscard]] bool isApplicationRunning();

/// Makes the running program show its window. Blocks until it answers, at most five seconds.
[[nodiscard]] std::expected<void, CallError> activateRunning(const QString& token);

/// Makes the running program refresh; whether new figures are stored. Blocks until the refresh has
/// ended, at most two minutes.
[[nodiscard]] std::expected<bool, CallError> refreshRunning();

} // namespace tallyvane::platform
