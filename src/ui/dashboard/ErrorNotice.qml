import QtQuick
import QtQuick.Layouts
import Tallyvane.Style

/// Why figures are not up to date: the first lines, and the rest on demand.
Rectangle {
    id: root

    required property string message
    property string advice
    property string action
    property bool isWhole: false
    readonly property double brief: 3 * metrics.height

    /// The user wants the action.
    signal accepted

    onMessageChanged: isWhole = false
    implicitHeight: content.implicitHeight + 2 * Theme.largeSpacing
    radius: Theme.largeRadius
    color: Theme.notice
    border.color: Theme.controlOutline

    FontMetrics {
        id: metrics

        font: Theme.body
    }
    RowLayout {
        id: content

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.largeSpacing
        spacing: Theme.spacing + 2

        SymbolImage {
            Layout.alignment: Qt.AlignTop
            name: "exclamationmark.triangle.fill"
            size: Theme.scaled(18)
            color: Theme.warning
        }
        ColumnLayout {
            spacing: Theme.spacing

            Item {
                Layout.fillWidth: true
                implicitHeight: root.isWhole ? whole.contentHeight : Math.min(whole.contentHeight, root.brief)

                Item {
                    anchors.fill: parent
                    clip: true

                    TextEdit {
                        id: whole

                        objectName: "lastError"
                        width: parent.width
                        text: root.message
                        textFormat: TextEdit.PlainText
                        readOnly: true
                        selectByMouse: true
                        activeFocusOnTab: true
                        wrapMode: TextEdit.Wrap
                        font: Theme.body
                        color: Theme.text
                        selectionColor: Theme.accentFill
                        selectedTextColor: Theme.whiteText
                        Accessible.role: Accessible.AlertMessage
                        Accessible.name: text
                    }
                }
                FocusRing {
                    cornerRadius: Theme.smallRadius
                    gap: 3
                    shown: whole.activeFocus
                }
            }
            TextLabel {
                objectName: "advice"
                Layout.fillWidth: true
                visible: text !== ""
                text: root.advice
                color: Theme.secondaryText
                wrapMode: Text.Wrap
            }
            PushButton {
                objectName: "useFoundProgram"
                Layout.maximumWidth: parent.width
                visible: root.action !== ""
                text: root.action
                onClicked: root.accepted()
            }
        }
        PushButton {
            Layout.alignment: Qt.AlignTop
            visible: whole.contentHeight > root.brief
            text: root.isWhole ? qsTr("Show less") : qsTr("Show all")
            onClicked: root.isWhole = !root.isWhole
        }
    }
}
