import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Tallyvane.Dashboard
import Tallyvane.History
import Tallyvane.Settings
import Tallyvane.Style

/// The main window's content: a row of tabs and, below it, the current page. The implicit size is
/// the smallest usable one.
FocusScope {
    id: root

    enum AppPage {
        Dashboard,
        UsageHistory,
        Settings
    }

    required property MainWindowModel viewModel
    property int page: ContentView.Dashboard
    property bool showsHelp: false
    /// Whether something covers the pages.
    readonly property bool isCovered: showsHelp || viewModel.launchPrompt.isShown

    /// The place of a page, which is loaded when it is first shown, by name, and then stays.
    component Page: Loader {
        required property string file
        required property var properties

        function load(): void {
            if (visible && status === Loader.Null) {
                setSource(file, properties);
            }
        }

        anchors.horizontalCenter: parent.horizontalCenter
        y: Theme.pageMargin
        width: Math.min(parent.width - 2 * Theme.pageMargin, Theme.scaled(880))
        height: parent.height - 2 * Theme.pageMargin
        onVisibleChanged: {
            load();
            focus = false; // or its control would get the keys again before it is scrolled to
        }
        Component.onCompleted: load()
    }

    function open(page: int): void {
        root.page = page;
        scroller.contentY = 0;
        viewModel.dashboard.toast.dismiss();
    }
    /// Opens the page `by` places further on, the first after the last.
    function turn(by: int): void {
        const count = ContentView.Settings + 1;
        open((page + by + count) % count);
    }
    function loadPrompt(): void {
        if (viewModel.launchPrompt.isShown) {
            prompt.setSource("qrc:/Tallyvane/Settings/LaunchAtLoginPrompt.qml", {
                viewModel: viewModel.launchPrompt
            });
        } else {
            prompt.source = "";
        }
    }
    function loadHelp(): void {
        if (showsHelp) {
            help.setSource("HelpSheet.qml", {
                viewModel: viewModel
            });
        } else {
            help.source = "";
        }
    }
    /// Scrolls until `item` is visible.
    function reveal(item: Item): void {
        let ancestor = item;
        while (ancestor && ancestor !== pages) {
            ancestor = ancestor.parent;
        }
        if (!ancestor) {
            return;
        }
        const top = item.mapToItem(pages, 0, 0).y;
        const bottom = top + Math.min(item.height, scroller.height) + Theme.pageMargin;
        const y = Math.min(scroller.contentY, Math.max(top - Theme.pageMargin, 0));
        scrollTo(Math.max(y, Math.min(bottom, scroller.contentHeight) - scroller.height));
    }
    function scrollTo(y: double): void {
        scroller.contentY = Math.max(0, Math.min(y, scroller.contentHeight - scroller.height));
    }
    function scrollBy(part: double): void {
        scrollTo(scroller.contentY + part * scroller.height);
    }

    onShowsHelpChanged: loadHelp()
    Component.onCompleted: loadPrompt()

    implicitWidth: Math.max(560, tabs.implicitWidth + 2 * (helpButton.width + Theme.largeSpacing + Theme.spacing))
    implicitHeight: Math.max(480, Theme.scaled(300))
    focus: true
    LayoutMirroring.enabled: Theme.isRightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Pane
    Accessible.name: "Tallyvane"

    // For what no control takes.
    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_PageUp:
            return scrollBy(-0.9);
        case Qt.Key_PageDown:
            return scrollBy(0.9);
        case Qt.Key_Space:
            return scrollBy(event.modifiers & Qt.ShiftModifier ? -0.9 : 0.9);
        case Qt.Key_Up:
            return scrollBy(-0.1);
        case Qt.Key_Down:
            return scrollBy(0.1);
        case Qt.Key_Home:
            return scrollTo(0);
        case Qt.Key_End:
            return scrollTo(scroller.contentHeight);
        }
        event.accepted = false;
    }

    Connections {
        target: root.Window.window

        function onActiveFocusItemChanged(): void {
            if (root.Window.activeFocusItem) {
                root.reveal(root.Window.activeFocusItem);
            }
        }
    }
    Shortcut {
        sequences: ["Ctrl+R", "F5"]
        enabled: !root.viewModel.dashboard.isRefreshing
        onActivated: root.viewModel.refreshRequested()
    }
    Shortcut {
        sequence: "Ctrl+,"
        enabled: !root.isCovered
        onActivated: root.open(ContentView.Settings)
    }
    Shortcut {
        sequences: ["Ctrl+Tab", "Ctrl+PgDown"]
        enabled: !root.isCovered
        onActivated: root.turn(1)
    }
    Shortcut {
        sequences: ["Ctrl+Shift+Tab", "Ctrl+PgUp"]
        enabled: !root.isCovered
        onActivated: root.turn(-1)
    }
    Shortcut {
        sequences: ["F1", "Ctrl+?"]
        enabled: !root.viewModel.launchPrompt.isShown
        onActivated: root.showsHelp = !root.showsHelp
    }
    Shortcut {
        sequence: "Ctrl+W"
        onActivated: root.viewModel.closeRequested()
    }
    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: root.viewModel.quitRequested()
    }

    DashboardBackground {
        anchors.fill: parent
    }
    ColumnLayout {
        anchors.fill: parent
        enabled: !root.isCovered
        spacing: 0

        Item {
            Layout.fillWidth: true
            implicitHeight: tabs.implicitHeight + 2 * Theme.largeSpacing

            RowLayout {
                id: tabs

                anchors.centerIn: parent
                spacing: Theme.smallSpacing
                Accessible.role: Accessible.PageTabList

                PageTab {
                    text: qsTr("Dashboard")
                    symbol: "gauge"
                    shortcut: "Ctrl+1"
                    isCurrent: root.page === ContentView.Dashboard
                    onClicked: root.open(ContentView.Dashboard)
                }
                PageTab {
                    text: qsTr("Usage History")
                    symbol: "chart.bar"
                    shortcut: "Ctrl+2"
                    isCurrent: root.page === ContentView.UsageHistory
                    onClicked: root.open(ContentView.UsageHistory)
                }
                PageTab {
                    text: qsTr("Settings")
                    symbol: "slider.horizontal.3"
                    shortcut: "Ctrl+3"
                    isCurrent: root.page === ContentView.Settings
                    onClicked: root.open(ContentView.Settings)
                }
            }
            IconButton {
                id: helpButton

                objectName: "help"
                anchors.right: parent.right
                anchors.rightMargin: Theme.largeSpacing
                anchors.verticalCenter: parent.verticalCenter
                symbol: "questionmark.circle"
                text: qsTr("Keyboard shortcuts and About")
                onClicked: root.showsHelp = true

                HelpTip {
                    visible: helpButton.hovered && !helpButton.down
                    text: helpButton.text
                }
            }
        }
        Divider {
            Layout.fillWidth: true
        }
        HostNotice {
            Layout.fillWidth: true
            Layout.topMargin: Theme.largeSpacing
            Layout.leftMargin: Theme.pageMargin
            Layout.rightMargin: Theme.pageMargin
            visible: root.viewModel.showsHostNotice
            advice: root.viewModel.hostAdvice
            onQuitRequested: root.viewModel.quitRequested()
            onDismissed: root.viewModel.dismissHostNotice()
        }
        Flickable {
            id: scroller

            Layout.fillWidth: true
            Layout.fillHeight: true
            // A mouse scrolls by wheel and scroll bar; it drags nothing but a scroll bar.
            interactive: !mousePress.active
            contentWidth: width
            contentHeight: pages.height
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            T.ScrollBar.vertical: ScrollIndicator {}

            PointHandler {
                id: mousePress

                acceptedDevices: PointerDevice.Mouse
            }
            Item {
                id: pages

                width: scroller.width
                // The places are in the order of AppPage.
                height: Math.max(scroller.height, children[root.page].implicitHeight + 2 * Theme.pageMargin)

                Page {
                    visible: root.page === ContentView.Dashboard
                    file: "DashboardContent.qml"
                    properties: ({ viewModel: root.viewModel.dashboard })
                }
                Page {
                    visible: root.page === ContentView.UsageHistory
                    file: "qrc:/Tallyvane/History/UsageHistoryView.qml"
                    properties: ({ viewModel: root.viewModel.history, heatmap: root.viewModel.heatmap })
                }
                Page {
                    visible: root.page === ContentView.Settings
                    file: "qrc:/Tallyvane/Settings/SettingsContent.qml"
                    properties: ({ viewModel: root.viewModel.settings })
                }
            }
        }
    }
    RefreshToast {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.pageMargin + Theme.scaled(40)
        toast: root.viewModel.dashboard.toast
    }
    Loader {
        id: prompt

        anchors.fill: parent
        focus: root.viewModel.launchPrompt.isShown
    }
    Loader {
        id: help

        anchors.fill: parent
        focus: root.showsHelp
    }
    Connections {
        target: help.item as HelpSheet

        function onClosed(): void {
            root.showsHelp = false;
        }
    }
    Connections {
        target: root.viewModel.launchPrompt

        function onIsShownChanged(): void {
            root.loadPrompt();
        }
    }
}
