import QtQuick
import Tallyvane.Style

/// A hairline across its container.
Rectangle {
    implicitWidth: 1
    implicitHeight: 1
    color: Theme.divider
    Accessible.role: Accessible.Separator
}
