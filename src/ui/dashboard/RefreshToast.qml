pragma ComponentBehavior: Bound

import QtQuick
import Tallyvane.Dashboard
import Tallyvane.Style

/// A transient note that a refresh is running or has ended.
Rectangle {
    id: root

    required property RefreshToastModel toast
    readonly property bool isShown: toast.state !== RefreshToastModel.Hidden
    /// Keeps its value while the toast fades out.
    property bool hasEnded: false
    property double rise: isShown ? 0 : height

    function follow(): void {
        if (isShown) {
            hasEnded = toast.state === RefreshToastModel.Refreshed;
        }
    }

    Component.onCompleted: follow()
    implicitWidth: content.implicitWidth + 2 * Theme.padding
    implicitHeight: content.implicitHeight + 2 * (Theme.spacing + 1)
    radius: height / 2
    color: Theme.segment
    border.color: Theme.outline
    opacity: isShown ? 1 : 0
    visible: opacity > 0
    transform: Translate {
        y: root.rise
    }
    Accessible.role: Accessible.StatusBar
    Accessible.name: label.text

    // Response 0.35 s and damping fraction 0.8, in the units of SpringAnimation.
    component Spring: SpringAnimation {
        spring: 5.16
        damping: 0.46
        epsilon: 0.25
    }

    Behavior on rise {
        enabled: root.isShown && Theme.isAnimated
        Spring {}
    }
    Behavior on implicitWidth {
        enabled: root.visible && Theme.isAnimated
        Spring {}
    }
    Behavior on opacity {
        enabled: Theme.isAnimated
        NumberAnimation {
            duration: 250
            easing.type: Easing.OutQuad
        }
    }
    Connections {
        target: root.toast

        function onStateChanged(): void {
            root.follow();
        }
    }
    Repeater {
        model: [4, 8, 12]

        Rectangle {
            required property int modelData

            z: -1
            anchors.fill: parent
            anchors.margins: -modelData / 2
            anchors.topMargin: 0
            anchors.bottomMargin: -modelData
            radius: height / 2
            color: Theme.cardShadow
        }
    }
    Row {
        id: content

        anchors.centerIn: parent
        spacing: Theme.spacing

        Item {
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.symbolSize
            height: Theme.symbolSize

            Spinner {
                anchors.fill: parent
                visible: root.visible && !root.hasEnded
            }
            SymbolImage {
                anchors.fill: parent
                name: "checkmark.circle.fill"
                color: Theme.success
                scale: root.hasEnded ? 1 : 0

                Behavior on scale {
                    enabled: root.hasEnded && Theme.isAnimated
                    Spring {
                        epsilon: 0.01
                    }
                }
            }
        }
        TextLabel {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            text: root.hasEnded ? qsTr("Refreshed") : qsTr("Refreshing")
            font.family: Theme.body.family
            font.pixelSize: 12 * Theme.point
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }
    }
}
