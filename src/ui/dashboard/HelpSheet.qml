pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Tallyvane.Dashboard
import Tallyvane.Style

/// All keyboard shortcuts, and what this program is. Covers the window.
FocusScope {
    id: root

    required property MainWindowModel viewModel
    /// Each followed by what it does.
    readonly property list<string> shortcuts: [qsTr("Ctrl+R, F5"), qsTr("Refresh"), qsTr("Ctrl+1, Ctrl+2, Ctrl+3"), qsTr("Dashboard, Usage History, Settings"), qsTr("Ctrl+,"), qsTr("Settings"), qsTr("Ctrl+Tab, Ctrl+Page Down"), qsTr("Next page"), qsTr("Ctrl+Shift+Tab, Ctrl+Page Up"), qsTr("Previous page"), qsTr("Arrow keys"), qsTr("Select a bar, a day or a choice; scroll"), qsTr("F1, Ctrl+?"), qsTr("Show or hide this list"), qsTr("Ctrl+W"), qsTr("Close the window"), qsTr("Ctrl+Q"), qsTr("Quit Tallyvane")]

    /// The user wants to go back.
    signal closed

    function scrollBy(part: double): void {
        scroller.contentY = Math.max(0, Math.min(scroller.contentY + part * scroller.height, scroller.contentHeight - scroller.height));
    }

    Accessible.role: Accessible.Dialog
    Accessible.name: title.text
    Keys.onEscapePressed: closed()
    Keys.onUpPressed: scrollBy(-0.2)
    Keys.onDownPressed: scrollBy(0.2)
    Component.onCompleted: closeButton.forceActiveFocus()

    Rectangle {
        anchors.fill: parent
        color: Theme.scrim

        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            onClicked: root.closed()
            onWheel: wheel => wheel.accepted = true
        }
    }
    CardSurface {
        anchors.centerIn: parent
        width: Math.min(content.implicitWidth, root.width - 4 * Theme.pageMargin) + 2 * Theme.pageMargin
        height: Math.min(content.implicitHeight + 2 * Theme.pageMargin, root.height - 2 * Theme.pageMargin)
        color: Theme.panel

        MouseArea {
            anchors.fill: parent // a click beside a control is no click beside the sheet
        }
        Flickable {
            id: scroller

            anchors.fill: parent
            anchors.margins: Theme.pageMargin
            contentHeight: content.implicitHeight
            boundsBehavior: Flickable.StopAtBounds
            clip: contentHeight > height
            T.ScrollBar.vertical: ScrollIndicator {}

            ColumnLayout {
                id: content

                width: scroller.width
                spacing: Theme.largeSpacing

                TextLabel {
                    id: title

                    text: qsTr("Keyboard shortcuts")
                    font: Theme.title2
                    Accessible.role: Accessible.Heading
                }
                GridLayout {
                    columns: 2
                    columnSpacing: Theme.pageMargin
                    rowSpacing: Theme.spacing

                    Repeater {
                        model: root.shortcuts

                        TextLabel {
                            required property int index
                            required property string modelData

                            Layout.fillWidth: index % 2 === 1
                            Layout.alignment: Qt.AlignTop
                            text: modelData
                            color: index % 2 === 1 ? Theme.text : Theme.secondaryText
                            wrapMode: Text.Wrap
                        }
                    }
                }
                Divider {
                    Layout.fillWidth: true
                }
                TextLabel {
                    objectName: "version"
                    //: %1 is a version such as "1.2.3"
                    text: qsTr("Tallyvane %1").arg(root.viewModel.version)
                    font: Theme.headline
                    Accessible.role: Accessible.Heading
                }
                Caption {
                    Layout.fillWidth: true
                    text: qsTr("Free software under the Apache License 2.0")
                }
                Caption {
                    Layout.fillWidth: true
                    //: %1 is a folder
                    text: qsTr("Figures and history: %1").arg(root.viewModel.dataFolder)
                    wrapMode: Text.WrapAnywhere
                }
                Caption {
                    objectName: "settingsFile"
                    Layout.fillWidth: true
                    //: %1 is a file
                    text: qsTr("Settings: %1").arg(root.viewModel.settingsFile)
                    wrapMode: Text.WrapAnywhere
                }
                LinkRow {
                    id: page

                    verticalPadding: Theme.smallSpacing
                    destination: root.viewModel.dashboard.website
                    text: qsTr("Project page")
                    contentItem: TextLabel {
                        text: page.text
                        font: Theme.caption
                        color: Theme.accent
                        Accessible.ignored: true
                    }
                }
                PushButton {
                    id: closeButton

                    objectName: "closeHelp"
                    Layout.alignment: Qt.AlignRight
                    text: qsTr("Close")
                    onClicked: root.closed()
                }
            }
        }
    }
}
