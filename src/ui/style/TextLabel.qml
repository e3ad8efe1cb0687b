pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tallyvane.Style

/// Text on a surface of the theme; body type and primary ink unless told otherwise.
T.Label {
    color: Theme.text
    font: Theme.body
    linkColor: Theme.accent
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft // by the layout, not by the script of the text
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
