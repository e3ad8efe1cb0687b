import QtQuick

/// A Repeater whose items come and go in a layout. In Qt 6.4, a layout that is resized before it is
/// polished still reads removed items, which may be deleted by then; so this has it polished first.
Repeater {
    onItemRemoved: () => Qt.callLater(parent.ensurePolished)
}
