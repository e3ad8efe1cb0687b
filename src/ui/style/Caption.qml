import QtQuick
import Tallyvane.Style

/// A small text of secondary importance.
TextLabel {
    font: Theme.caption
    color: Theme.secondaryText
    wrapMode: Text.Wrap
}
