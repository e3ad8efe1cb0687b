#pragma once

#include <QtCore/QAbstractNativeEventFilter>
#include <QtCore/QObject>

#include <cstdint>

namespace tallyvane::ui {

/// Tells of presses of the pointer's buttons anywhere under X11, without keeping them from the
/// windows they are meant for: a grab would take away the press that opens another program's menu.
/// The wheel does not count. Elsewhere no press is ever reported. Main thread.
class PressWatch final : public QObject, QAbstractNativeEventFilter {
    Q_OBJECT

public:
    PressWatch() = default;
    ~PressWatch() override { setWatching(false); }

    /// Does not watch at first: each press on the desktop would wake the program.
    void setWatching(bool isWatching);

Q_SIGNALS:
    /// The pointer is at, or has just left, the place of the press.
    void pressed();
    void released();

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

    bool m_isWatching = false;
    std::uint8_t m_extension = 0; ///< XInput's number on this display
};

} // namespace tallyvane::ui
