import QtQuick
import Tallyvane.Style

/// What became of the control beside it. Screen readers announce it.
Caption {
    visible: text !== ""
    Accessible.role: Accessible.AlertMessage
}
