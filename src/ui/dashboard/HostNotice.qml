import QtQuick
import QtQuick.Layouts
import Tallyvane.Style

/// Says that no status item can be seen, and offers what its menu would.
ColumnLayout {
    id: root

    /// What to install; may be empty.
    required property string advice

    signal quitRequested
    /// The notice is not to appear again.
    signal dismissed

    spacing: Theme.smallSpacing

    Caption {
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        text: qsTr("This desktop shows no status icons, so Tallyvane can be seen in this window only.") + " " + qsTr("It keeps running when you close the window.")
    }
    Caption {
        objectName: "hostAdvice"
        Layout.fillWidth: true
        visible: text !== ""
        horizontalAlignment: Text.AlignHCenter
        text: root.advice
    }
    RowLayout {
        Layout.alignment: Qt.AlignHCenter
        spacing: Theme.spacing

        PushButton {
            objectName: "quit"
            text: qsTr("Quit Tallyvane")
            font: Theme.caption
            onClicked: root.quitRequested()
        }
        PushButton {
            objectName: "dismissHostNotice"
            text: qsTr("Don't show again")
            font: Theme.caption
            onClicked: root.dismissed()
        }
    }
}
