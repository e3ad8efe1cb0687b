<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AppBarsCardBody</name>
    <message>
        <source>5h</source>
        <extracomment>The five-hour quota window, as short as possible</extracomment>
        <translation>5小时</translation>
    </message>
    <message>
        <source>Week</source>
        <extracomment>The weekly quota window, as short as possible</extracomment>
        <translation>每周</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Dashboard</source>
        <translation>仪表盘</translation>
    </message>
    <message>
        <source>Usage History</source>
        <translation>使用历史</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Keyboard shortcuts and About</source>
        <translation>键盘快捷键和关于</translation>
    </message>
</context>
<context>
    <name>DashboardContent</name>
    <message>
        <source>Dashboard</source>
        <translation>仪表盘</translation>
    </message>
    <message>
        <source>Auto-refreshes every 5 min</source>
        <translation>每 5 分钟自动刷新</translation>
    </message>
    <message>
        <source>· Auto-refreshes every 5 min</source>
        <extracomment>Follows &quot;Updated 5 min ago&quot; and a space</extracomment>
        <translation>· 每 5 分钟自动刷新</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Use %1</source>
        <extracomment>%1 is a program&apos;s path</extracomment>
        <translation>使用 %1</translation>
    </message>
    <message>
        <source>Bars and percentages show what is left of each quota.</source>
        <translation>进度条和百分比表示各项额度的剩余量。</translation>
    </message>
</context>
<context>
    <name>ErrorNotice</name>
    <message>
        <source>Show less</source>
        <translation>收起</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>全部显示</translation>
    </message>
</context>
<context>
    <name>HelpSheet</name>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Dashboard, Usage History, Settings</source>
        <translation>仪表盘、使用历史、设置</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>方向键</translation>
    </message>
    <message>
        <source>Select a bar, a day or a choice; scroll</source>
        <translation>选择柱形、日期或选项；滚动</translation>
    </message>
    <message>
        <source>Show or hide this list</source>
        <translation>显示或隐藏此列表</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Quit Tallyvane</source>
        <translation>退出 Tallyvane</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Tallyvane %1</source>
        <extracomment>%1 is a version such as &quot;1.2.3&quot;</extracomment>
        <translation>Tallyvane %1</translation>
    </message>
    <message>
        <source>Free software under the Apache License 2.0</source>
        <translation>基于 Apache 许可证 2.0 的自由软件</translation>
    </message>
    <message>
        <source>Figures and history: %1</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>数据和历史：%1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>设置：%1</translation>
    </message>
    <message>
        <source>Project page</source>
        <translation>项目主页</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Ctrl+R, F5</source>
        <translation>Ctrl+R、F5</translation>
    </message>
    <message>
        <source>Ctrl+1, Ctrl+2, Ctrl+3</source>
        <translation>Ctrl+1、Ctrl+2、Ctrl+3</translation>
    </message>
    <message>
        <source>Ctrl+,</source>
        <translation>Ctrl+,</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab、Ctrl+Page Down</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Shift+Tab、Ctrl+Page Up</translation>
    </message>
    <message>
        <source>F1, Ctrl+?</source>
        <translation>F1、Ctrl+?</translation>
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
        <translation>尚无记录</translation>
    </message>
</context>
<context>
    <name>HostAdvice</name>
    <message>
        <source>GNOME needs the AppIndicator extension: &apos;sudo apt install gnome-shell-extension-appindicator&apos;, log out and in, then &apos;gnome-extensions enable ubuntu-appindicators@ubuntu.com&apos;.</source>
        <translation>GNOME 需要 AppIndicator 扩展：运行“sudo apt install gnome-shell-extension-appindicator”，注销并重新登录，然后运行“gnome-extensions enable ubuntu-appindicators@ubuntu.com”。</translation>
    </message>
    <message>
        <source>Add the Status Tray Plugin to the panel: &apos;xfce4-panel --add=systray&apos;.</source>
        <translation>将状态托盘插件添加到面板：“xfce4-panel --add=systray”。</translation>
    </message>
    <message>
        <source>Add the widget System Tray to Plasma&apos;s panel: right-click it and choose Add Widgets.</source>
        <translation>将“系统托盘”挂件添加到 Plasma 面板：右键点击面板，然后选择“添加挂件”。</translation>
    </message>
    <message>
        <source>Add the applet Notification Area to the panel: right-click it and choose Add to Panel.</source>
        <translation>将“通知区域”小程序添加到面板：右键点击面板，然后选择“添加到面板”。</translation>
    </message>
    <message>
        <source>Add the widget Status Notifier to the panel: right-click it and choose Manage Widgets.</source>
        <translation>将“状态通知器”（Status Notifier）小部件添加到面板：右键点击面板，然后选择“管理小部件”（Manage Widgets）。</translation>
    </message>
    <message>
        <source>Add the XApp Status Applet to the panel: &apos;cinnamon-settings applets&apos;.</source>
        <translation>将 XApp 状态小程序添加到面板：“cinnamon-settings applets”。</translation>
    </message>
    <message>
        <source>Start Waybar (&apos;sudo apt install waybar&apos;) with &quot;tray&quot; in one of the module lists of its configuration.</source>
        <translation>启动 Waybar（“sudo apt install waybar”），并在其配置的某个模块列表中加入 &quot;tray&quot;。</translation>
    </message>
    <message>
        <source>Add a status area to the panel, often called system tray, that shows StatusNotifier items.</source>
        <translation>在面板上添加能显示 StatusNotifier 项目的状态区域（通常称为系统托盘）。</translation>
    </message>
</context>
<context>
    <name>HostNotice</name>
    <message>
        <source>This desktop shows no status icons, so Tallyvane can be seen in this window only.</source>
        <translation>此桌面不显示状态图标，因此只能在此窗口中看到 Tallyvane。</translation>
    </message>
    <message>
        <source>It keeps running when you close the window.</source>
        <translation>关闭窗口后它会继续运行。</translation>
    </message>
    <message>
        <source>Quit Tallyvane</source>
        <translation>退出 Tallyvane</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>不再显示</translation>
    </message>
</context>
<context>
    <name>LaunchAtLoginPrompt</name>
    <message>
        <source>Keep quotas up to date?</source>
        <translation>要让额度保持最新吗？</translation>
    </message>
    <message>
        <source>Tallyvane can live in the menu bar and refresh Codex every five minutes after you sign in to your Mac.</source>
        <translation>Tallyvane 可以驻留在系统托盘中，在您登录此计算机后每五分钟刷新一次 Codex 额度。</translation>
    </message>
    <message>
        <source>Launch Tallyvane at login</source>
        <translation>登录时启动 Tallyvane</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>暂不</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>MenuBarLabel</name>
    <message>
        <source>5H</source>
        <translation>5小时</translation>
    </message>
    <message>
        <source>WK</source>
        <translation>每周</translation>
    </message>
    <message>
        <source>%1 resets %2</source>
        <extracomment>%1 is &quot;5H&quot;, %2 a time such as &quot;in 2h 14m&quot;</extracomment>
        <translation>%1：%2重置</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source> (last updated %1)</source>
        <extracomment>%1 is how long ago, such as &quot;20 min ago&quot;</extracomment>
        <translation>（上次更新：%1）</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 when its quotas run out, such as &quot;5H runs out in 1h 10m&quot;</extracomment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>MenuBarQuotaView</name>
    <message>
        <source>Open Tallyvane</source>
        <extracomment>A button that opens the program&apos;s window</extracomment>
        <translation>打开 Tallyvane</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>Read aloud for the button that fetches new figures</extracomment>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>A button that ends the program</extracomment>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Another program is refreshing the same files and did not end within a minute.</source>
        <translation>另一个程序正在刷新相同的文件，一分钟内未结束。</translation>
    </message>
    <message>
        <source>The session logs could not be counted: %1.</source>
        <translation>无法统计会话日志：%1。</translation>
    </message>
    <message>
        <source>%1 does not hold settings, and stays as it is.</source>
        <translation>%1 中没有设置，文件保持不变。</translation>
    </message>
    <message>
        <source>Could not save %1: %2.</source>
        <translation>无法保存 %1：%2。</translation>
    </message>
    <message>
        <source>A figure is not a finite number.</source>
        <translation>有一个数值不是有限数。</translation>
    </message>
    <message>
        <source>Start &apos;claude&apos; in a terminal and sign in.</source>
        <translation>请在终端中启动“claude”并登录。</translation>
    </message>
    <message>
        <source>Unlock the keyring, for example in &apos;seahorse&apos; (Passwords and Keys) or by logging in with your password.</source>
        <translation>请解锁密钥环，例如在“seahorse”（密码和密钥）中，或使用密码登录。</translation>
    </message>
    <message>
        <source>Start &apos;claude&apos; once; it renews its sign-in by itself.</source>
        <translation>请启动一次“claude”；它会自行更新登录信息。</translation>
    </message>
    <message>
        <source>Check the network connection; &apos;tallyvane doctor --online&apos; says more.</source>
        <translation>请检查网络连接；运行“tallyvane doctor --online”可了解详情。</translation>
    </message>
    <message>
        <source>Nothing needs to be done; the next refresh asks again.</source>
        <translation>无需任何操作；下次刷新时会再次查询。</translation>
    </message>
    <message>
        <source>Install the Codex CLI, or choose its program in the settings.</source>
        <translation>请安装 Codex CLI，或在设置中选择其程序。</translation>
    </message>
    <message>
        <source>A Codex CLI was found in another place; it is used once you agree.</source>
        <translation>在其他位置找到了 Codex CLI；经您同意后才会使用。</translation>
    </message>
    <message>
        <source>Choose another program in the settings, or go back to automatic with &apos;tallyvane config unset codex-path&apos;.</source>
        <translation>请在设置中选择其他程序，或用“tallyvane config unset codex-path”恢复为自动。</translation>
    </message>
    <message>
        <source>Run &apos;codex login&apos; in a terminal.</source>
        <translation>请在终端中运行“codex login”。</translation>
    </message>
    <message>
        <source>Start &apos;codex&apos; in a terminal to see whether it works there.</source>
        <translation>请在终端中启动“codex”，看看它在那里能否正常工作。</translation>
    </message>
    <message>
        <source>It is asked again within five minutes.</source>
        <translation>将在五分钟内再次查询。</translation>
    </message>
    <message>
        <source>It is asked again in about %1 minutes.</source>
        <translation>将在约 %1 分钟后再次查询。</translation>
    </message>
    <message>
        <source>The Claude service did not accept the sign-in of Claude Code.</source>
        <translation>Claude 服务未接受 Claude Code 的登录信息。</translation>
    </message>
    <message>
        <source>Sign-in expired</source>
        <translation>登录已过期</translation>
    </message>
    <message>
        <source>The Claude service answered with status %1.</source>
        <translation>Claude 服务返回了状态码 %1。</translation>
    </message>
    <message>
        <source>No sign-in of Claude Code was found.</source>
        <translation>未找到 Claude Code 的登录信息。</translation>
    </message>
    <message>
        <source>No file with a sign-in of Claude Code was found, and the keyring could not be asked: %1.</source>
        <translation>未找到包含 Claude Code 登录信息的文件，也无法查询密钥环：%1。</translation>
    </message>
    <message>
        <source>Keychain auth</source>
        <translation>未登录</translation>
    </message>
    <message>
        <source>The sign-in of Claude Code has expired.</source>
        <translation>Claude Code 的登录已过期。</translation>
    </message>
    <message>
        <source>The Claude service was asked too many times.</source>
        <translation>对 Claude 服务的查询过于频繁。</translation>
    </message>
    <message>
        <source>Rate limited</source>
        <translation>请求受限</translation>
    </message>
    <message>
        <source>The Claude service could not be reached: %1.</source>
        <translation>无法连接 Claude 服务：%1。</translation>
    </message>
    <message>
        <source>Network error</source>
        <translation>网络错误</translation>
    </message>
    <message>
        <source>The answer of the Claude service was not understood.</source>
        <translation>无法理解 Claude 服务的响应。</translation>
    </message>
    <message>
        <source>The reply of the Codex CLI could not be read.</source>
        <translation>无法读取 Codex CLI 的回复。</translation>
    </message>
    <message>
        <source>Could not find %1.</source>
        <translation>找不到 %1。</translation>
    </message>
    <message>
        <source>Command failed (%1): %2</source>
        <translation>命令失败（%1）：%2</translation>
    </message>
    <message>
        <source>Command timed out.</source>
        <translation>命令超时。</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>已锁定</translation>
    </message>
    <message>
        <source>it did not answer in time</source>
        <translation>未及时响应</translation>
    </message>
    <message>
        <source>it took too long to answer</source>
        <translation>响应时间过长</translation>
    </message>
    <message>
        <source>the desktop&apos;s settings ask for a kind of proxy that is not supported</source>
        <translation>桌面设置要求使用不受支持的代理类型</translation>
    </message>
    <message>
        <source>Could not remove %1: %2.</source>
        <translation>无法移除 %1：%2。</translation>
    </message>
    <message>
        <source>Codex returned an unknown error.</source>
        <translation>Codex 返回了未知错误。</translation>
    </message>
    <message>
        <source>Not an absolute path: %1</source>
        <translation>不是绝对路径：%1</translation>
    </message>
    <message>
        <source>Not an executable file: %1</source>
        <translation>不是可执行文件：%1</translation>
    </message>
</context>
<context>
    <name>Notification</name>
    <message>
        <source>The windows could not be loaded: %1</source>
        <translation>无法加载窗口：%1</translation>
    </message>
    <message>
        <source>您的 %1 token 已经重置了。</source>
        <translation>您的 %1 额度已重置。</translation>
    </message>
    <message>
        <source>Open Tallyvane</source>
        <translation>打开 Tallyvane</translation>
    </message>
    <message>
        <source>%1: %2 % of the five-hour quota left</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 the percentage</extracomment>
        <translation>%1：5 小时额度剩余 %2%</translation>
    </message>
    <message>
        <source>%1: %2 % of the weekly quota left</source>
        <translation>%1：每周额度剩余 %2%</translation>
    </message>
    <message>
        <source>%1: the five-hour quota runs out at %2, before the reset</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 a time such as &quot;16:40&quot; or &quot;Tue 16:40&quot;</extracomment>
        <translation>%1：5 小时额度将在 %2 用完，早于重置</translation>
    </message>
    <message>
        <source>%1: the weekly quota runs out at %2, before the reset</source>
        <translation>%1：每周额度将在 %2 用完，早于重置</translation>
    </message>
</context>
<context>
    <name>ProviderCard</name>
    <message>
        <source>From %1</source>
        <extracomment>%1 is how long ago the figures were fetched, such as &quot;2 hr ago&quot;</extracomment>
        <translation>%1的数据</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <translation>
            <numerusform>%n 分钟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr</source>
        <translation>
            <numerusform>%n 小时</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n d</source>
        <translation>
            <numerusform>%n 天</numerusform>
        </translation>
    </message>
    <message>
        <source>At this pace it runs out at %1, %2 before the reset</source>
        <translation>按此速度将在 %1 用完，比重置早 %2</translation>
    </message>
    <message>
        <source>At this pace it lasts until the reset</source>
        <translation>按此速度可用到重置</translation>
    </message>
    <message>
        <source>At the pace of the last hour it runs out at %1, %2 before the reset</source>
        <translation>按最近一小时的速度将在 %1 用完，比重置早 %2</translation>
    </message>
    <message>
        <source>At the pace of the last day it runs out at %1, %2 before the reset</source>
        <translation>按最近一天的速度将在 %1 用完，比重置早 %2</translation>
    </message>
    <message>
        <source>At the pace of the last hour it lasts until the reset</source>
        <translation>按最近一小时的速度可用到重置</translation>
    </message>
    <message>
        <source>At the pace of the last day it lasts until the reset</source>
        <translation>按最近一天的速度可用到重置</translation>
    </message>
</context>
<context>
    <name>ProviderCardHeader</name>
    <message>
        <source>Sync pending</source>
        <extracomment>Read aloud for the symbol that marks outdated figures</extracomment>
        <translation>等待同步</translation>
    </message>
</context>
<context>
    <name>ProviderQuotaCard</name>
    <message>
        <source>%1: %2, %3</source>
        <extracomment>A quota window, the percentage left of it, and when it resets</extracomment>
        <translation>%1：%2，%3</translation>
    </message>
    <message>
        <source>5h</source>
        <translation>5小时</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>每周</translation>
    </message>
    <message>
        <source>Open %1 usage details</source>
        <extracomment>%1 is an assistant&apos;s name</extracomment>
        <translation>打开 %1 使用详情</translation>
    </message>
</context>
<context>
    <name>Quota</name>
    <message>
        <source>Sync pending</source>
        <translation>等待同步</translation>
    </message>
    <message>
        <source>5H %1%  ·  WK %2%</source>
        <extracomment>What is left in the five-hour window and in the week, as short as possible</extracomment>
        <translation>5小时 %1%  ·  每周 %2%</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 its figures</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Reset unknown</source>
        <translation>重置时间未知</translation>
    </message>
    <message>
        <source>in %1d %2h</source>
        <extracomment>Days and hours, as short as possible</extracomment>
        <translation>%1天%2小时后</translation>
    </message>
    <message>
        <source>in %1h %2m</source>
        <translation>%1小时%2分后</translation>
    </message>
    <message>
        <source>in %1m</source>
        <translation>%1分后</translation>
    </message>
    <message>
        <source>never</source>
        <translation>从未</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>刚刚</translation>
    </message>
    <message numerus="yes">
        <source>%n min ago</source>
        <translation>
            <numerusform>%n 分钟前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr ago</source>
        <translation>
            <numerusform>%n 小时前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n d ago</source>
        <translation>
            <numerusform>%n 天前</numerusform>
        </translation>
    </message>
    <message>
        <source>5H</source>
        <extracomment>The five-hour window and the weekly one, as short as possible</extracomment>
        <translation>5小时</translation>
    </message>
    <message>
        <source>WK</source>
        <translation>每周</translation>
    </message>
    <message>
        <source>%1 runs out %2</source>
        <extracomment>%1 is &quot;5H&quot;, %2 a time such as &quot;in 2h 14m&quot;</extracomment>
        <translation>%1：%2用完</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>RefreshToast</name>
    <message>
        <source>Refreshed</source>
        <translation>已刷新</translation>
    </message>
    <message>
        <source>Refreshing</source>
        <translation>正在刷新</translation>
    </message>
</context>
<context>
    <name>SettingsContent</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Color scheme</source>
        <translation>配色方案</translation>
    </message>
    <message>
        <source>System</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Background refresh</source>
        <translation>后台刷新</translation>
    </message>
    <message>
        <source>Launch menu bar app at login</source>
        <translation>登录时在系统托盘中启动 Tallyvane</translation>
    </message>
    <message>
        <source>The menu bar app refreshes Codex and Claude every five minutes. Claude usage is read from Claude Code&apos;s stored sign-in; macOS asks once for Keychain access.</source>
        <translation>系统托盘中的 Tallyvane 每五分钟刷新一次 Codex 和 Claude 的额度。Claude 用量通过 Claude Code 已保存的登录信息读取；绝不会要求解锁密钥环。</translation>
    </message>
    <message>
        <source>Codex program</source>
        <translation>Codex 程序</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Reset notifications</source>
        <translation>额度重置通知</translation>
    </message>
    <message>
        <source>Notify when a quota resets</source>
        <translation>额度重置时通知</translation>
    </message>
    <message>
        <source>Sends a desktop alert when Codex or Claude&apos;s quota resets during an enabled window. Requires the menu bar app to be running.</source>
        <translation>Codex 或 Claude 的额度在已启用的时段内重置时，发送桌面通知。需要 Tallyvane 在系统托盘中运行。</translation>
    </message>
    <message>
        <source>Notifications are turned off in System Settings</source>
        <translation>通知已在系统设置中关闭</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>打开系统设置</translation>
    </message>
    <message>
        <source>Add time window</source>
        <translation>添加时段</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>隐私</translation>
    </message>
    <message>
        <source>All history stays on this Mac</source>
        <translation>所有历史记录都保留在此计算机上</translation>
    </message>
    <message>
        <source>No analytics, cloud database, remote logging, prompts, responses, file paths, emails, credentials, or account identifiers are collected.</source>
        <translation>不收集分析数据、提示词、回复、文件路径、电子邮件地址、凭据或账户标识，也不使用云数据库或远程日志。</translation>
    </message>
    <message>
        <source>Clear usage history</source>
        <translation>清除使用历史</translation>
    </message>
    <message>
        <source>Assistants shown</source>
        <translation>显示的助手</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>两者</translation>
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
        <translation>隐藏的助手不会被查询，其历史记录会保留。至少显示其中一个。</translation>
    </message>
    <message>
        <source>Low quota</source>
        <translation>额度不足</translation>
    </message>
    <message>
        <source>Notify when a quota runs low</source>
        <translation>额度不足时通知</translation>
    </message>
    <message>
        <source>Sends a desktop alert when 25 % and 10 % of a quota are left, and when it is going to run out before its reset. The time windows above apply. Requires the menu bar app to be running.</source>
        <translation>额度剩余 25% 和 10% 时，以及额度将在重置前用完时，发送桌面通知。适用上面的时段。需要 Tallyvane 在系统托盘中运行。</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Working</source>
        <extracomment>Read aloud for the busy indicator</extracomment>
        <translation>正在处理</translation>
    </message>
</context>
<context>
    <name>TimeWindowRow</name>
    <message>
        <source>All day</source>
        <translation>全天</translation>
    </message>
    <message>
        <source>Start time</source>
        <extracomment>Read aloud for the field</extracomment>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>End time</source>
        <extracomment>Read aloud for the field</extracomment>
        <translation>结束时间</translation>
    </message>
    <message>
        <source>Remove time window</source>
        <extracomment>Read aloud for the button</extracomment>
        <translation>移除时段</translation>
    </message>
    <message>
        <source>Turn on</source>
        <translation>启用</translation>
    </message>
</context>
<context>
    <name>UsageHeatmapView</name>
    <message>
        <source>Token Heatmap</source>
        <translation>Token 热力图</translation>
    </message>
    <message>
        <source>Estimated tokens per day</source>
        <translation>每日 Token 估算量</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>总计</translation>
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
        <translation>少</translation>
    </message>
    <message>
        <source>More</source>
        <translation>多</translation>
    </message>
</context>
<context>
    <name>UsageHistoryView</name>
    <message>
        <source>Usage History</source>
        <translation>使用历史</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>指标</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Token</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>周期</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>按日</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>按月</translation>
    </message>
    <message>
        <source>Estimated result. Rolling resets, usage between syncs, and provider-side adjustments can affect accuracy. Local token totals are derived from numeric usage fields only; prompts and responses are never stored.</source>
        <translation>结果为估算值。滚动重置、两次同步之间的用量以及服务商的调整都可能影响准确性。本地 Token 总数仅根据数值型用量字段得出；绝不存储提示词和回复。</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy the daily figures as a table</source>
        <translation>以表格形式复制每日数据</translation>
    </message>
</context>
<context>
    <name>tallyvane::app::StatusArea</name>
    <message>
        <source>Open Tallyvane</source>
        <translation>打开 Tallyvane</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::DashboardModel</name>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is how long ago, such as &quot;5 min ago&quot;</extracomment>
        <translation>上次更新：%1</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::HeatmapModel</name>
    <message>
        <source>%1: %2 tokens</source>
        <extracomment>%1 is a day, %2 a number such as &quot;12K&quot;</extracomment>
        <translation>%1：%2 Token</translation>
    </message>
    <message>
        <source>%1: No record</source>
        <extracomment>%1 is a day</extracomment>
        <translation>%1：无记录</translation>
    </message>
    <message numerus="yes">
        <source>(the history covers %n days)</source>
        <extracomment>Follows &quot;No record&quot;</extracomment>
        <translation>
            <numerusform>（历史记录保留 %n 天）</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::HistoryModel</name>
    <message>
        <source>% of quota used</source>
        <translation>已用额度百分比</translation>
    </message>
    <message>
        <source>Estimated tokens used</source>
        <translation>Token 估算用量</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Shares of two weekly quotas, added up</source>
        <translation>两项每周额度的已用百分比之和</translation>
    </message>
    <message>
        <source>%1 tokens</source>
        <translation>%1 Token</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::MenuBarQuotaViewModel</name>
    <message>
        <source>Last updated %1</source>
        <extracomment>%1 is how long ago, such as &quot;20 min ago&quot;</extracomment>
        <translation>上次更新：%1</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::SettingsModel</name>
    <message>
        <source>In use: %1, found by Tallyvane.</source>
        <extracomment>%1 is a program&apos;s path</extracomment>
        <translation>正在使用：%1，由 Tallyvane 找到。</translation>
    </message>
    <message>
        <source>In use: %1, chosen by you.</source>
        <translation>正在使用：%1，由您选择。</translation>
    </message>
    <message>
        <source>No notification can come: there is no time window.</source>
        <translation>不会收到通知：没有时段。</translation>
    </message>
    <message>
        <source>No notification can come: no time window allows any.</source>
        <translation>不会收到通知：没有时段允许通知。</translation>
    </message>
    <message>
        <source>Usage history cleared.</source>
        <translation>使用历史已清除。</translation>
    </message>
    <message>
        <source>This window is off; no notification comes in it.</source>
        <translation>此时段已关闭，期间不会收到通知。</translation>
    </message>
    <message>
        <source>No time lies between this start and end.</source>
        <translation>此开始时间与结束时间之间没有任何时间。</translation>
    </message>
</context>
</TS>
