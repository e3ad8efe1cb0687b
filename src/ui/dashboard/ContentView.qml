pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Tallyvane.Dashboard
import Tallyvane.History
import Tallyvane.Settings
import Tallyvane.Style

/// The main window: one page at a time, below the ways to all of them. Its implicit size is the
/// smallest that it can be used at.
FocusScope {
    id: root

    enum AppPage {
        Dashboard,
        UsageHistory,
        Settings
    }

    required property MainWindowModel viewModel
    property int page: ContentView.Dashboard

    function open(page: int): void {
        root.page = page;
        scroller.contentY = 0;
        viewModel.dashboard.toast.dismiss();
    }
    /// Scrolls to what the keyboard is on.
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
        scroller.contentY = Math.max(y, Math.min(bottom, scroller.contentHeight) - scroller.height);
    }

    implicitWidth: Math.max(560, tabs.implicitWidth + 2 * Theme.pageMargin, 20 + Theme.scaled(460))
    implicitHeight: 480
    focus: true
    LayoutMirroring.enabled: Theme.isRightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Pane
    //: The program's name; not to be translated
    Accessible.name: qsTr("Tallyvane")

    Connections {
        target: root.Window.window

        function onActiveFocusItemChanged(): void {
            if (root.Window.activeFocusItem) {
                root.reveal(root.Window.activeFocusItem);
            }
        }
    }
    Instantiator {
        model: ["Ctrl+1", "Ctrl+2", "Ctrl+3"]

        Shortcut {
            required property int index
            required property string modelData

            sequence: modelData
            enabled: content.enabled
            onActivated: root.open(index)
        }
    }
    Shortcut {
        sequences: ["Ctrl+R", "F5"]
        enabled: !root.viewModel.dashboard.isRefreshing
        onActivated: root.viewModel.refreshRequested()
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
        id: content

        anchors.fill: parent
        enabled: !root.viewModel.launchPrompt.isShown
        spacing: 0

        T.TabBar {
            id: tabs

            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: Theme.largeSpacing
            Layout.bottomMargin: Theme.largeSpacing
            implicitWidth: contentWidth
            implicitHeight: contentHeight
            contentWidth: row.contentItem.childrenRect.width
            contentHeight: dashboardTab.implicitHeight
            spacing: Theme.smallSpacing
            currentIndex: root.page
            onCurrentIndexChanged: root.open(currentIndex)
            Accessible.role: Accessible.PageTabList

            contentItem: ListView {
                id: row

                model: tabs.contentModel
                currentIndex: tabs.currentIndex
                spacing: tabs.spacing
                orientation: ListView.Horizontal
                interactive: false
            }

            PageTab {
                id: dashboardTab

                text: qsTr("Dashboard")
                symbol: "gauge"
            }
            PageTab {
                text: qsTr("Usage History")
                symbol: "chart.bar"
            }
            PageTab {
                text: qsTr("Settings")
                symbol: "slider.horizontal.3"
            }
        }
        Divider {
            Layout.fillWidth: true
        }
        TextLabel {
            Layout.fillWidth: true
            Layout.topMargin: Theme.largeSpacing
            Layout.leftMargin: Theme.pageMargin
            Layout.rightMargin: Theme.pageMargin
            visible: !root.viewModel.hasStatusHost
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            color: Theme.secondaryText
            text: qsTr("This desktop shows no status icons, so Tallyvane can be seen in this window only.")
        }
        Flickable {
            id: scroller

            Layout.fillWidth: true
            Layout.fillHeight: true
            contentWidth: width
            contentHeight: pages.height
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            T.ScrollBar.vertical: ScrollIndicator {}

            Item {
                id: pages

                width: scroller.width
                height: Math.max(scroller.height, page.implicitHeight + 2 * Theme.pageMargin)

                Loader {
                    id: page

                    readonly property double widest: root.page === ContentView.UsageHistory ? 1080 : Theme.scaled(720)

                    anchors.horizontalCenter: parent.horizontalCenter
                    y: Theme.pageMargin
                    width: Math.min(parent.width - 2 * Theme.pageMargin, widest)
                    height: parent.height - 2 * Theme.pageMargin
                    sourceComponent: [dashboardPage, historyPage, settingsPage][root.page]
                }
            }
        }
    }
    Component {
        id: dashboardPage

        DashboardContent {
            viewModel: root.viewModel.dashboard
        }
    }
    Component {
        id: historyPage

        UsageHistoryView {
            viewModel: root.viewModel.history
            heatmap: root.viewModel.heatmap
        }
    }
    Component {
        id: settingsPage

        SettingsContent {
            viewModel: root.viewModel.settings
        }
    }
    RefreshToast {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 2 * Theme.pageMargin
        toast: root.viewModel.dashboard.toast
    }
    Loader {
        anchors.fill: parent
        active: root.viewModel.launchPrompt.isShown
        focus: active
        sourceComponent: LaunchAtLoginPrompt {
            viewModel: root.viewModel.launchPrompt
        }
    }
}
