import QtQuick
import Tallyvane.Style

/// The main window's background: plain, with a hint of colour at the top.
Rectangle {
    color: Theme.window

    Rectangle {
        width: parent.width
        height: Math.min(parent.height, 360)
        visible: !Theme.isHighContrast
        gradient: Gradient {
            GradientStop {
                position: 0
                color: Qt.alpha(Theme.indigo, Theme.isDark ? 0.1 : 0.07)
            }
            GradientStop {
                position: 1
                color: Qt.alpha(Theme.indigo, 0)
            }
        }
    }
}
