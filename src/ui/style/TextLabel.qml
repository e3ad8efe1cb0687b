pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tallyvane.Style

/// Plain text, by default in body type and primary ink.
T.Label {
    color: Theme.text
    font: Theme.body
    linkColor: Theme.accent
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft // mirrored with the layout, not by the text's own script
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
