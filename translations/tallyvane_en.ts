<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AppBarsCardBody</name>
    <message>
        <source>5h</source>
        <extracomment>The five-hour quota window, as short as possible</extracomment>
        <translation>5h</translation>
    </message>
    <message>
        <source>Week</source>
        <extracomment>The weekly quota window, as short as possible</extracomment>
        <translation>Week</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Dashboard</source>
        <translation>Dashboard</translation>
    </message>
    <message>
        <source>Usage History</source>
        <translation>Usage History</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Keyboard shortcuts and About</source>
        <translation>Keyboard shortcuts and About</translation>
    </message>
</context>
<context>
    <name>DashboardContent</name>
    <message>
        <source>Dashboard</source>
        <translation>Dashboard</translation>
    </message>
    <message>
        <source>Auto-refreshes every 5 min</source>
        <translation>Auto-refreshes every 5 min</translation>
    </message>
    <message>
        <source>· Auto-refreshes every 5 min</source>
        <extracomment>Follows &quot;Updated 5 min ago&quot; and a space</extracomment>
        <translation>· Auto-refreshes every 5 min</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Use %1</source>
        <extracomment>%1 is a program&apos;s path</extracomment>
        <translation>Use %1</translation>
    </message>
    <message>
        <source>Bars and percentages show what is left of each quota.</source>
        <translation>Bars and percentages show what is left of each quota.</translation>
    </message>
</context>
<context>
    <name>ErrorNotice</name>
    <message>
        <source>Show less</source>
        <translation>Show less</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Show all</translation>
    </message>
</context>
<context>
    <name>HelpSheet</name>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Dashboard, Usage History, Settings</source>
        <translation>Dashboard, Usage History, Settings</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Previous page</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Arrow keys</translation>
    </message>
    <message>
        <source>Select a bar, a day or a choice; scroll</source>
        <translation>Select a bar, a day or a choice; scroll</translation>
    </message>
    <message>
        <source>Show or hide this list</source>
        <translation>Show or hide this list</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Close the window</translation>
    </message>
    <message>
        <source>Quit Tallyvane</source>
        <translation>Quit Tallyvane</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Keyboard shortcuts</translation>
    </message>
    <message>
        <source>Tallyvane %1</source>
        <extracomment>%1 is a version such as &quot;1.2.3&quot;</extracomment>
        <translation>Tallyvane %1</translation>
    </message>
    <message>
        <source>Free software under the Apache License 2.0</source>
        <translation>Free software under the Apache License 2.0</translation>
    </message>
    <message>
        <source>Figures and history: %1</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Figures and history: %1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>Settings: %1</translation>
    </message>
    <message>
        <source>Project page</source>
        <translation>Project page</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Ctrl+R, F5</source>
        <translation>Ctrl+R, F5</translation>
    </message>
    <message>
        <source>Ctrl+1, Ctrl+2, Ctrl+3</source>
        <translation>Ctrl+1, Ctrl+2, Ctrl+3</translation>
    </message>
    <message>
        <source>Ctrl+,</source>
        <translation>Ctrl+,</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab, Ctrl+Page Down</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Shift+Tab, Ctrl+Page Up</translation>
    </message>
    <message>
        <source>F1, Ctrl+?</source>
        <translation>F1, Ctrl+?</translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation>Ctrl+W</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
</context>
<context>
    <name>HistoryChart</name>
    <message>
        <source>Nothing recorded yet</source>
        <translation>Nothing recorded yet</translation>
    </message>
</context>
<context>
    <name>HostAdvice</name>
    <message>
        <source>GNOME needs the AppIndicator extension: &apos;sudo apt install gnome-shell-extension-appindicator&apos;, log out and in, then &apos;gnome-extensions enable ubuntu-appindicators@ubuntu.com&apos;.</source>
        <translation>GNOME needs the AppIndicator extension: &apos;sudo apt install gnome-shell-extension-appindicator&apos;, log out and in, then &apos;gnome-extensions enable ubuntu-appindicators@ubuntu.com&apos;.</translation>
    </message>
    <message>
        <source>Add the Status Tray Plugin to the panel: &apos;xfce4-panel --add=systray&apos;.</source>
        <translation>Add the Status Tray Plugin to the panel: &apos;xfce4-panel --add=systray&apos;.</translation>
    </message>
    <message>
        <source>Add the widget System Tray to Plasma&apos;s panel: right-click it and choose Add Widgets.</source>
        <translation>Add the widget System Tray to Plasma&apos;s panel: right-click it and choose Add Widgets.</translation>
    </message>
    <message>
        <source>Add the applet Notification Area to the panel: right-click it and choose Add to Panel.</source>
        <translation>Add the applet Notification Area to the panel: right-click it and choose Add to Panel.</translation>
    </message>
    <message>
        <source>Add the widget Status Notifier to the panel: right-click it and choose Manage Widgets.</source>
        <translation>Add the widget Status Notifier to the panel: right-click it and choose Manage Widgets.</translation>
    </message>
    <message>
        <source>Add the XApp Status Applet to the panel: &apos;cinnamon-settings applets&apos;.</source>
        <translation>Add the XApp Status Applet to the panel: &apos;cinnamon-settings applets&apos;.</translation>
    </message>
    <message>
        <source>Start Waybar (&apos;sudo apt install waybar&apos;) with &quot;tray&quot; in one of the module lists of its configuration.</source>
        <translation>Start Waybar (&apos;sudo apt install waybar&apos;) with &quot;tray&quot; in one of the module lists of its configuration.</translation>
    </message>
    <message>
        <source>Add a status area to the panel, often called system tray, that shows StatusNotifier items.</source>
        <translation>Add a status area to the panel, often called system tray, that shows StatusNotifier items.</translation>
    </message>
</context>
<context>
    <name>HostNotice</name>
    <message>
        <source>This desktop shows no status icons, so Tallyvane can be seen in this window only.</source>
        <translation>This desktop shows no status icons, so Tallyvane can be seen in this window only.</translation>
    </message>
    <message>
        <source>It keeps running when you close the window.</source>
        <translation>It keeps running when you close the window.</translation>
    </message>
    <message>
        <source>Quit Tallyvane</source>
        <translation>Quit Tallyvane</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Don&apos;t show again</translation>
    </message>
</context>
<context>
    <name>LaunchAtLoginPrompt</name>
    <message>
        <source>Keep quotas up to date?</source>
        <translation>Keep quotas up to date?</translation>
    </message>
    <message>
        <source>Tallyvane can live in the menu bar and refresh Codex every five minutes after you sign in to your Mac.</source>
        <translation>Tallyvane can live in the status area and refresh Codex and Claude every five minutes after you log in to this computer.</translation>
    </message>
    <message>
        <source>Launch Tallyvane at login</source>
        <translation>Launch Tallyvane at login</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Not now</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
</context>
<context>
    <name>MenuBarLabel</name>
    <message>
        <source>5H</source>
        <translation>5H</translation>
    </message>
    <message>
        <source>WK</source>
        <translation>WK</translation>
    </message>
    <message>
        <source>%1 resets %2</source>
        <extracomment>%1 is &quot;5H&quot;, %2 a time such as &quot;in 2h 14m&quot;</extracomment>
        <translation>%1 resets %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source> (last updated %1)</source>
        <extracomment>%1 is how long ago, such as &quot;20 min ago&quot;</extracomment>
        <translation> (last updated %1)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 when its quotas run out, such as &quot;5H runs out in 1h 10m&quot;</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>MenuBarQuotaView</name>
    <message>
        <source>Open Tallyvane</source>
        <extracomment>A button that opens the program&apos;s window</extracomment>
        <translation>Open Tallyvane</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>Read aloud for the button that fetches new figures</extracomment>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>A button that ends the program</extracomment>
        <translation>Quit</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Another program is refreshing the same files and did not end within a minute.</source>
        <translation>Another program is refreshing the same files and did not end within a minute.</translation>
    </message>
    <message>
        <source>The session logs could not be counted: %1.</source>
        <translation>The session logs could not be counted: %1.</translation>
    </message>
    <message>
        <source>%1 does not hold settings, and stays as it is.</source>
        <translation>%1 does not hold settings, and stays as it is.</translation>
    </message>
    <message>
        <source>Could not save %1: %2.</source>
        <translation>Could not save %1: %2.</translation>
    </message>
    <message>
        <source>A figure is not a finite number.</source>
        <translation>A figure is not a finite number.</translation>
    </message>
    <message>
        <source>Start &apos;claude&apos; in a terminal and sign in.</source>
        <translation>Start &apos;claude&apos; in a terminal and sign in.</translation>
    </message>
    <message>
        <source>Unlock the keyring, for example in &apos;seahorse&apos; (Passwords and Keys) or by logging in with your password.</source>
        <translation>Unlock the keyring, for example in &apos;seahorse&apos; (Passwords and Keys) or by logging in with your password.</translation>
    </message>
    <message>
        <source>Start &apos;claude&apos; once; it renews its sign-in by itself.</source>
        <translation>Start &apos;claude&apos; once; it renews its sign-in by itself.</translation>
    </message>
    <message>
        <source>Check the network connection; &apos;tallyvane doctor --online&apos; says more.</source>
        <translation>Check the network connection; &apos;tallyvane doctor --online&apos; says more.</translation>
    </message>
    <message>
        <source>Nothing needs to be done; the next refresh asks again.</source>
        <translation>Nothing needs to be done; the next refresh asks again.</translation>
    </message>
    <message>
        <source>Install the Codex CLI, or choose its program in the settings.</source>
        <translation>Install the Codex CLI, or choose its program in the settings.</translation>
    </message>
    <message>
        <source>A Codex CLI was found in another place; it is used once you agree.</source>
        <translation>A Codex CLI was found in another place; it is used once you agree.</translation>
    </message>
    <message>
        <source>Choose another program in the settings, or go back to automatic with &apos;tallyvane config unset codex-path&apos;.</source>
        <translation>Choose another program in the settings, or go back to automatic with &apos;tallyvane config unset codex-path&apos;.</translation>
    </message>
    <message>
        <source>Run &apos;codex login&apos; in a terminal.</source>
        <translation>Run &apos;codex login&apos; in a terminal.</translation>
    </message>
    <message>
        <source>Start &apos;codex&apos; in a terminal to see whether it works there.</source>
        <translation>Start &apos;codex&apos; in a terminal to see whether it works there.</translation>
    </message>
    <message>
        <source>It is asked again within five minutes.</source>
        <translation>It is asked again within five minutes.</translation>
    </message>
    <message>
        <source>It is asked again in about %1 minutes.</source>
        <translation>It is asked again in about %1 minutes.</translation>
    </message>
    <message>
        <source>The Claude service did not accept the sign-in of Claude Code.</source>
        <translation>The Claude service did not accept the sign-in of Claude Code.</translation>
    </message>
    <message>
        <source>Sign-in expired</source>
        <translation>Sign-in expired</translation>
    </message>
    <message>
        <source>The Claude service answered with status %1.</source>
        <translation>The Claude service answered with status %1.</translation>
    </message>
    <message>
        <source>No sign-in of Claude Code was found.</source>
        <translation>No sign-in of Claude Code was found.</translation>
    </message>
    <message>
        <source>No file with a sign-in of Claude Code was found, and the keyring could not be asked: %1.</source>
        <translation>No file with a sign-in of Claude Code was found, and the keyring could not be asked: %1.</translation>
    </message>
    <message>
        <source>Keychain auth</source>
        <translation>Not signed in</translation>
    </message>
    <message>
        <source>The sign-in of Claude Code has expired.</source>
        <translation>The sign-in of Claude Code has expired.</translation>
    </message>
    <message>
        <source>The Claude service was asked too many times.</source>
        <translation>The Claude service was asked too many times.</translation>
    </message>
    <message>
        <source>Rate limited</source>
        <translation>Rate limited</translation>
    </message>
    <message>
        <source>The Claude service could not be reached: %1.</source>
        <translation>The Claude service could not be reached: %1.</translation>
    </message>
    <message>
        <source>Network error</source>
        <translation>Network error</translation>
    </message>
    <message>
        <source>The answer of the Claude service was not understood.</source>
        <translation>The answer of the Claude service was not understood.</translation>
    </message>
    <message>
        <source>The reply of the Codex CLI could not be read.</source>
        <translation>The reply of the Codex CLI could not be read.</translation>
    </message>
    <message>
        <source>Could not find %1.</source>
        <translation>Could not find %1.</translation>
    </message>
    <message>
        <source>Command failed (%1): %2</source>
        <translation>Command failed (%1): %2</translation>
    </message>
    <message>
        <source>Command timed out.</source>
        <translation>Command timed out.</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>it is locked</translation>
    </message>
    <message>
        <source>it did not answer in time</source>
        <translation>it did not answer in time</translation>
    </message>
    <message>
        <source>it took too long to answer</source>
        <translation>it took too long to answer</translation>
    </message>
    <message>
        <source>the desktop&apos;s settings ask for a kind of proxy that is not supported</source>
        <translation>the desktop&apos;s settings ask for a kind of proxy that is not supported</translation>
    </message>
    <message>
        <source>Could not remove %1: %2.</source>
        <translation>Could not remove %1: %2.</translation>
    </message>
    <message>
        <source>Codex returned an unknown error.</source>
        <translation>Codex returned an unknown error.</translation>
    </message>
    <message>
        <source>Not an absolute path: %1</source>
        <translation>Not an absolute path: %1</translation>
    </message>
    <message>
        <source>Not an executable file: %1</source>
        <translation>Not an executable file: %1</translation>
    </message>
</context>
<context>
    <name>Notification</name>
    <message>
        <source>The windows could not be loaded: %1</source>
        <translation>The windows could not be loaded: %1</translation>
    </message>
    <message>
        <source>您的 %1 token 已经重置了。</source>
        <translation>Your %1 quota has been reset.</translation>
    </message>
    <message>
        <source>Open Tallyvane</source>
        <translation>Open Tallyvane</translation>
    </message>
    <message>
        <source>%1: %2 % of the five-hour quota left</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 the percentage</extracomment>
        <translation>%1: %2% of the five-hour quota left</translation>
    </message>
    <message>
        <source>%1: %2 % of the weekly quota left</source>
        <translation>%1: %2% of the weekly quota left</translation>
    </message>
    <message>
        <source>%1: the five-hour quota runs out at %2, before the reset</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 a time such as &quot;16:40&quot; or &quot;Tue 16:40&quot;</extracomment>
        <translation>%1: the five-hour quota runs out at %2, before the reset</translation>
    </message>
    <message>
        <source>%1: the weekly quota runs out at %2, before the reset</source>
        <translation>%1: the weekly quota runs out at %2, before the reset</translation>
    </message>
</context>
<context>
    <name>ProviderCard</name>
    <message>
        <source>From %1</source>
        <extracomment>%1 is how long ago the figures were fetched, such as &quot;2 hr ago&quot;</extracomment>
        <translation>From %1</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <translation>
            <numerusform>%n min</numerusform>
            <numerusform>%n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr</source>
        <translation>
            <numerusform>%n hr</numerusform>
            <numerusform>%n hr</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n d</source>
        <translation>
            <numerusform>%n d</numerusform>
            <numerusform>%n d</numerusform>
        </translation>
    </message>
    <message>
        <source>At this pace it runs out at %1, %2 before the reset</source>
        <translation>At this pace it runs out at %1, %2 before the reset</translation>
    </message>
    <message>
        <source>At this pace it lasts until the reset</source>
        <translation>At this pace it lasts until the reset</translation>
    </message>
    <message>
        <source>At the pace of the last hour it runs out at %1, %2 before the reset</source>
        <translation>At the pace of the last hour it runs out at %1, %2 before the reset</translation>
    </message>
    <message>
        <source>At the pace of the last day it runs out at %1, %2 before the reset</source>
        <translation>At the pace of the last day it runs out at %1, %2 before the reset</translation>
    </message>
    <message>
        <source>At the pace of the last hour it lasts until the reset</source>
        <translation>At the pace of the last hour it lasts until the reset</translation>
    </message>
    <message>
        <source>At the pace of the last day it lasts until the reset</source>
        <translation>At the pace of the last day it lasts until the reset</translation>
    </message>
</context>
<context>
    <name>ProviderCardHeader</name>
    <message>
        <source>Sync pending</source>
        <extracomment>Read aloud for the symbol that marks outdated figures</extracomment>
        <translation>Sync pending</translation>
    </message>
</context>
<context>
    <name>ProviderQuotaCard</name>
    <message>
        <source>%1: %2, %3</source>
        <extracomment>A quota window, the percentage left of it, and when it resets</extracomment>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>5h</source>
        <translation>5h</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Week</translation>
    </message>
    <message>
        <source>Open %1 usage details</source>
        <extracomment>%1 is an assistant&apos;s name</extracomment>
        <translation>Open %1 usage details</translation>
    </message>
</context>
<context>
    <name>Quota</name>
    <message>
        <source>Sync pending</source>
        <translation>Sync pending</translation>
    </message>
    <message>
        <source>5H %1%  ·  WK %2%</source>
        <extracomment>What is left in the five-hour window and in the week, as short as possible</extracomment>
        <translation>5H %1%  ·  WK %2%</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 its figures</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Not available</translation>
    </message>
    <message>
        <source>Reset unknown</source>
        <translation>Reset unknown</translation>
    </message>
    <message>
        <source>in %1d %2h</source>
        <extracomment>Days and hours, as short as possible</extracomment>
        <translation>in %1d %2h</translation>
    </message>
    <message>
        <source>in %1h %2m</source>
        <translation>in %1h %2m</translation>
    </message>
    <message>
        <source>in %1m</source>
        <translation>in %1m</translation>
    </message>
    <message>
        <source>never</source>
        <translation>never</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>just now</translation>
    </message>
    <message numerus="yes">
        <source>%n min ago</source>
        <translation>
            <numerusform>%n min ago</numerusform>
            <numerusform>%n min ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr ago</source>
        <translation>
            <numerusform>%n hr ago</numerusform>
            <numerusform>%n hr ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n d ago</source>
        <translation>
            <numerusform>%n d ago</numerusform>
            <numerusform>%n d ago</numerusform>
        </translation>
    </message>
    <message>
        <source>5H</source>
        <extracomment>The five-hour window and the weekly one, as short as possible</extracomment>
        <translation>5H</translation>
    </message>
    <message>
        <source>WK</source>
        <translation>WK</translation>
    </message>
    <message>
        <source>%1 runs out %2</source>
        <extracomment>%1 is &quot;5H&quot;, %2 a time such as &quot;in 2h 14m&quot;</extracomment>
        <translation>%1 runs out %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>RefreshToast</name>
    <message>
        <source>Refreshed</source>
        <translation>Refreshed</translation>
    </message>
    <message>
        <source>Refreshing</source>
        <translation>Refreshing</translation>
    </message>
</context>
<context>
    <name>SettingsContent</name>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>Color scheme</source>
        <translation>Color scheme</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>Background refresh</source>
        <translation>Background refresh</translation>
    </message>
    <message>
        <source>Launch menu bar app at login</source>
        <translation>Launch in the status area at login</translation>
    </message>
    <message>
        <source>The menu bar app refreshes Codex and Claude every five minutes. Claude usage is read from Claude Code&apos;s stored sign-in; macOS asks once for Keychain access.</source>
        <translation>In the status area, Tallyvane refreshes Codex and Claude every five minutes. Claude usage is read with Claude Code&apos;s stored sign-in. The keyring is never asked to unlock.</translation>
    </message>
    <message>
        <source>Codex program</source>
        <translation>Codex program</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>Reset notifications</source>
        <translation>Reset notifications</translation>
    </message>
    <message>
        <source>Notify when a quota resets</source>
        <translation>Notify when a quota resets</translation>
    </message>
    <message>
        <source>Sends a desktop alert when Codex or Claude&apos;s quota resets during an enabled window. Requires the menu bar app to be running.</source>
        <translation>Sends a desktop alert when Codex or Claude&apos;s quota resets during an enabled time window. Requires Tallyvane to be running in the status area.</translation>
    </message>
    <message>
        <source>Notifications are turned off in System Settings</source>
        <translation>Notifications are turned off in the system settings</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Open Settings</translation>
    </message>
    <message>
        <source>Add time window</source>
        <translation>Add time window</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacy</translation>
    </message>
    <message>
        <source>All history stays on this Mac</source>
        <translation>All history stays on this computer</translation>
    </message>
    <message>
        <source>No analytics, cloud database, remote logging, prompts, responses, file paths, emails, credentials, or account identifiers are collected.</source>
        <translation>No analytics, cloud database, remote logging, prompts, responses, file paths, emails, credentials, or account identifiers are collected.</translation>
    </message>
    <message>
        <source>Clear usage history</source>
        <translation>Clear usage history</translation>
    </message>
    <message>
        <source>Assistants shown</source>
        <translation>Assistants shown</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Both</translation>
    </message>
    <message>
        <source>Codex</source>
        <translation>Codex</translation>
    </message>
    <message>
        <source>Claude</source>
        <translation>Claude</translation>
    </message>
    <message>
        <source>A hidden assistant is not asked for figures, and its history is kept. One is always shown.</source>
        <translation>A hidden assistant is not asked for figures, and its history is kept. One is always shown.</translation>
    </message>
    <message>
        <source>Low quota</source>
        <translation>Low quota</translation>
    </message>
    <message>
        <source>Notify when a quota runs low</source>
        <translation>Notify when a quota runs low</translation>
    </message>
    <message>
        <source>Sends a desktop alert when 25 % and 10 % of a quota are left, and when it is going to run out before its reset. The time windows above apply. Requires the menu bar app to be running.</source>
        <translation>Sends a desktop alert when 25% and 10% of a quota are left, and when it is going to run out before its reset. The time windows above apply. Requires Tallyvane to be running in the status area.</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Working</source>
        <extracomment>Read aloud for the busy indicator</extracomment>
        <translation>Working</translation>
    </message>
</context>
<context>
    <name>TimeWindowRow</name>
    <message>
        <source>All day</source>
        <translation>All day</translation>
    </message>
    <message>
        <source>Start time</source>
        <extracomment>Read aloud for the field</extracomment>
        <translation>Start time</translation>
    </message>
    <message>
        <source>End time</source>
        <extracomment>Read aloud for the field</extracomment>
        <translation>End time</translation>
    </message>
    <message>
        <source>Remove time window</source>
        <extracomment>Read aloud for the button</extracomment>
        <translation>Remove time window</translation>
    </message>
    <message>
        <source>Turn on</source>
        <translation>Turn on</translation>
    </message>
</context>
<context>
    <name>UsageHeatmapView</name>
    <message>
        <source>Token Heatmap</source>
        <translation>Token Heatmap</translation>
    </message>
    <message>
        <source>Estimated tokens per day</source>
        <translation>Estimated tokens per day</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Codex</source>
        <translation>Codex</translation>
    </message>
    <message>
        <source>Claude</source>
        <translation>Claude</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Less</translation>
    </message>
    <message>
        <source>More</source>
        <translation>More</translation>
    </message>
</context>
<context>
    <name>UsageHistoryView</name>
    <message>
        <source>Usage History</source>
        <translation>Usage History</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metric</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Tokens</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Period</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Daily</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Monthly</translation>
    </message>
    <message>
        <source>Estimated result. Rolling resets, usage between syncs, and provider-side adjustments can affect accuracy. Local token totals are derived from numeric usage fields only; prompts and responses are never stored.</source>
        <translation>Estimated result. Rolling resets, usage between syncs, and provider-side adjustments can affect accuracy. Local token totals are derived from numeric usage fields only; prompts and responses are never stored.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copied</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Copy the daily figures as a table</source>
        <translation>Copy the daily figures as a table</translation>
    </message>
</context>
<context>
    <name>tallyvane::app::StatusArea</name>
    <message>
        <source>Open Tallyvane</source>
        <translation>Open Tallyvane</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::DashboardModel</name>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is how long ago, such as &quot;5 min ago&quot;</extracomment>
        <translation>Updated %1</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::HeatmapModel</name>
    <message>
        <source>%1: %2 tokens</source>
        <extracomment>%1 is a day, %2 a number such as &quot;12K&quot;</extracomment>
        <translation>%1: %2 tokens</translation>
    </message>
    <message>
        <source>%1: No record</source>
        <extracomment>%1 is a day</extracomment>
        <translation>%1: No record</translation>
    </message>
    <message numerus="yes">
        <source>(the history covers %n days)</source>
        <extracomment>Follows &quot;No record&quot;</extracomment>
        <translation>
            <numerusform>(the history covers %n day)</numerusform>
            <numerusform>(the history covers %n days)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::HistoryModel</name>
    <message>
        <source>% of quota used</source>
        <translation>% of quota used</translation>
    </message>
    <message>
        <source>Estimated tokens used</source>
        <translation>Estimated tokens used</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Shares of two weekly quotas, added up</source>
        <translation>Shares of two weekly quotas, added up</translation>
    </message>
    <message>
        <source>%1 tokens</source>
        <translation>%1 tokens</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::MenuBarQuotaViewModel</name>
    <message>
        <source>Last updated %1</source>
        <extracomment>%1 is how long ago, such as &quot;20 min ago&quot;</extracomment>
        <translation>Last updated %1</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::SettingsModel</name>
    <message>
        <source>In use: %1, found by Tallyvane.</source>
        <extracomment>%1 is a program&apos;s path</extracomment>
        <translation>In use: %1, found by Tallyvane.</translation>
    </message>
    <message>
        <source>In use: %1, chosen by you.</source>
        <translation>In use: %1, chosen by you.</translation>
    </message>
    <message>
        <source>No notification can come: there is no time window.</source>
        <translation>No notification can come: there is no time window.</translation>
    </message>
    <message>
        <source>No notification can come: no time window allows any.</source>
        <translation>No notification can come: no time window allows any.</translation>
    </message>
    <message>
        <source>Usage history cleared.</source>
        <translation>Usage history cleared.</translation>
    </message>
    <message>
        <source>This window is off; no notification comes in it.</source>
        <translation>This window is off; no notification comes in it.</translation>
    </message>
    <message>
        <source>No time lies between this start and end.</source>
        <translation>No time lies between this start and end.</translation>
    </message>
</context>
</TS>
