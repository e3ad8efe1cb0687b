import QtQuick
import QtQuick.Templates as T
import Tallyvane.Style

/// A line of text that the user can change.
T.TextField {
    id: root

    /// The field's name for screen readers.
    required property string title

    onActiveFocusChanged: {
        if (activeFocus) {
            selectAll();
        }
    }

    implicitHeight: Math.max(Theme.scaled(30), contentHeight + topPadding + bottomPadding)
    leftPadding: Theme.spacing + 2
    rightPadding: leftPadding
    topPadding: Theme.smallSpacing
    bottomPadding: topPadding
    verticalAlignment: TextInput.AlignVCenter
    font: Theme.body
    color: Theme.text
    placeholderTextColor: Theme.secondaryText
    selectionColor: Theme.accentFill
    selectedTextColor: Theme.whiteText
    selectByMouse: true
    Accessible.role: Accessible.EditableText
    Accessible.name: title

    TextLabel {
        anchors.fill: parent
        anchors.leftMargin: root.leftPadding
        anchors.rightMargin: root.rightPadding
        visible: root.text === "" && !root.preeditText
        verticalAlignment: Text.AlignVCenter
        text: root.placeholderText
        color: root.placeholderTextColor
        elide: Text.ElideMiddle
        Accessible.ignored: true
    }
    background: Rectangle {
        radius: Theme.radius
        color: Theme.control
        border.color: Theme.outline

        FocusRing {
            shown: root.activeFocus
        }
    }
}
