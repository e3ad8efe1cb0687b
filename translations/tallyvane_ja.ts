<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AppBarsCardBody</name>
    <message>
        <source>5h</source>
        <extracomment>The five-hour quota window, as short as possible</extracomment>
        <translation>5時間</translation>
    </message>
    <message>
        <source>Week</source>
        <extracomment>The weekly quota window, as short as possible</extracomment>
        <translation>週間</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Dashboard</source>
        <translation>ダッシュボード</translation>
    </message>
    <message>
        <source>Usage History</source>
        <translation>使用履歴</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Keyboard shortcuts and About</source>
        <translation>キーボードショートカットとこのアプリについて</translation>
    </message>
</context>
<context>
    <name>DashboardContent</name>
    <message>
        <source>Dashboard</source>
        <translation>ダッシュボード</translation>
    </message>
    <message>
        <source>Auto-refreshes every 5 min</source>
        <translation>5 分ごとに自動更新</translation>
    </message>
    <message>
        <source>· Auto-refreshes every 5 min</source>
        <extracomment>Follows &quot;Updated 5 min ago&quot; and a space</extracomment>
        <translation>· 5 分ごとに自動更新</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Use %1</source>
        <extracomment>%1 is a program&apos;s path</extracomment>
        <translation>%1 を使用</translation>
    </message>
    <message>
        <source>Bars and percentages show what is left of each quota.</source>
        <translation>バーとパーセントは、それぞれの利用枠の残りを示します。</translation>
    </message>
</context>
<context>
    <name>ErrorNotice</name>
    <message>
        <source>Show less</source>
        <translation>折りたたむ</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
</context>
<context>
    <name>HelpSheet</name>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Dashboard, Usage History, Settings</source>
        <translation>ダッシュボード、使用履歴、設定</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>矢印キー</translation>
    </message>
    <message>
        <source>Select a bar, a day or a choice; scroll</source>
        <translation>棒・日・選択肢を選択、スクロール</translation>
    </message>
    <message>
        <source>Show or hide this list</source>
        <translation>この一覧を表示または隠す</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>Quit Tallyvane</source>
        <translation>Tallyvane を終了</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Tallyvane %1</source>
        <extracomment>%1 is a version such as &quot;1.2.3&quot;</extracomment>
        <translation>Tallyvane %1</translation>
    </message>
    <message>
        <source>Free software under the Apache License 2.0</source>
        <translation>Apache License 2.0 に基づく自由ソフトウェア</translation>
    </message>
    <message>
        <source>Figures and history: %1</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>データと履歴: %1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>設定: %1</translation>
    </message>
    <message>
        <source>Project page</source>
        <translation>プロジェクトのページ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
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
        <translation>まだ記録がありません</translation>
    </message>
</context>
<context>
    <name>HostAdvice</name>
    <message>
        <source>GNOME needs the AppIndicator extension: &apos;sudo apt install gnome-shell-extension-appindicator&apos;, log out and in, then &apos;gnome-extensions enable ubuntu-appindicators@ubuntu.com&apos;.</source>
        <translation>GNOME では AppIndicator 拡張機能が必要です。「sudo apt install gnome-shell-extension-appindicator」を実行し、ログアウトしてログインし直してから、「gnome-extensions enable ubuntu-appindicators@ubuntu.com」を実行してください。</translation>
    </message>
    <message>
        <source>Add the Status Tray Plugin to the panel: &apos;xfce4-panel --add=systray&apos;.</source>
        <translation>パネルにステータストレイプラグインを追加してください:「xfce4-panel --add=systray」</translation>
    </message>
    <message>
        <source>Add the widget System Tray to Plasma&apos;s panel: right-click it and choose Add Widgets.</source>
        <translation>Plasma のパネルに「システムトレイ」ウィジェットを追加してください。パネルを右クリックして「ウィジェットを追加」を選びます。</translation>
    </message>
    <message>
        <source>Add the applet Notification Area to the panel: right-click it and choose Add to Panel.</source>
        <translation>パネルに「通知エリア」アプレットを追加してください。パネルを右クリックして「パネルへ追加」を選びます。</translation>
    </message>
    <message>
        <source>Add the widget Status Notifier to the panel: right-click it and choose Manage Widgets.</source>
        <translation>パネルに Status Notifier (ステータス通知) ウィジェットを追加してください。パネルを右クリックして「ウィジェットの管理」を選びます。</translation>
    </message>
    <message>
        <source>Add the XApp Status Applet to the panel: &apos;cinnamon-settings applets&apos;.</source>
        <translation>パネルに XApp ステータスアプレットを追加してください:「cinnamon-settings applets」</translation>
    </message>
    <message>
        <source>Start Waybar (&apos;sudo apt install waybar&apos;) with &quot;tray&quot; in one of the module lists of its configuration.</source>
        <translation>Waybar (「sudo apt install waybar」) を起動し、設定のいずれかのモジュール一覧に &quot;tray&quot; を加えてください。</translation>
    </message>
    <message>
        <source>Add a status area to the panel, often called system tray, that shows StatusNotifier items.</source>
        <translation>StatusNotifier アイテムを表示できる領域 (一般にシステムトレイと呼ばれます) をパネルに追加してください。</translation>
    </message>
</context>
<context>
    <name>HostNotice</name>
    <message>
        <source>This desktop shows no status icons, so Tallyvane can be seen in this window only.</source>
        <translation>このデスクトップにはステータスアイコンが表示されないため、Tallyvane はこのウィンドウでのみ確認できます。</translation>
    </message>
    <message>
        <source>It keeps running when you close the window.</source>
        <translation>ウィンドウを閉じても動作し続けます。</translation>
    </message>
    <message>
        <source>Quit Tallyvane</source>
        <translation>Tallyvane を終了</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>今後表示しない</translation>
    </message>
</context>
<context>
    <name>LaunchAtLoginPrompt</name>
    <message>
        <source>Keep quotas up to date?</source>
        <translation>利用枠を常に最新に保ちますか？</translation>
    </message>
    <message>
        <source>Tallyvane can live in the menu bar and refresh Codex every five minutes after you sign in to your Mac.</source>
        <translation>Tallyvane をシステムトレイに常駐させ、このコンピューターへのログイン後、Codex の利用枠を 5 分ごとに更新できます。</translation>
    </message>
    <message>
        <source>Launch Tallyvane at login</source>
        <translation>ログイン時に Tallyvane を起動</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>今はしない</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
</context>
<context>
    <name>MenuBarLabel</name>
    <message>
        <source>5H</source>
        <translation>5時間</translation>
    </message>
    <message>
        <source>WK</source>
        <translation>週間</translation>
    </message>
    <message>
        <source>%1 resets %2</source>
        <extracomment>%1 is &quot;5H&quot;, %2 a time such as &quot;in 2h 14m&quot;</extracomment>
        <translation>%1: %2にリセット</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source> (last updated %1)</source>
        <extracomment>%1 is how long ago, such as &quot;20 min ago&quot;</extracomment>
        <translation> (最終更新: %1)</translation>
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
        <translation>Tallyvane を開く</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>Read aloud for the button that fetches new figures</extracomment>
        <translation>更新</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>A button that ends the program</extracomment>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Another program is refreshing the same files and did not end within a minute.</source>
        <translation>別のプログラムが同じファイルを更新していて、1 分以内に終わりませんでした。</translation>
    </message>
    <message>
        <source>The session logs could not be counted: %1.</source>
        <translation>セッションログを集計できませんでした: %1。</translation>
    </message>
    <message>
        <source>%1 does not hold settings, and stays as it is.</source>
        <translation>%1 には設定が含まれていないため、そのまま残します。</translation>
    </message>
    <message>
        <source>Could not save %1: %2.</source>
        <translation>%1 を保存できませんでした: %2。</translation>
    </message>
    <message>
        <source>A figure is not a finite number.</source>
        <translation>有限でない数値があります。</translation>
    </message>
    <message>
        <source>Start &apos;claude&apos; in a terminal and sign in.</source>
        <translation>ターミナルで「claude」を起動し、サインインしてください。</translation>
    </message>
    <message>
        <source>Unlock the keyring, for example in &apos;seahorse&apos; (Passwords and Keys) or by logging in with your password.</source>
        <translation>「seahorse」(パスワードと鍵) などを使うか、パスワードでログインして、キーリングのロックを解除してください。</translation>
    </message>
    <message>
        <source>Start &apos;claude&apos; once; it renews its sign-in by itself.</source>
        <translation>「claude」を一度起動してください。サインイン情報は自動的に更新されます。</translation>
    </message>
    <message>
        <source>Check the network connection; &apos;tallyvane doctor --online&apos; says more.</source>
        <translation>ネットワーク接続を確認してください。「tallyvane doctor --online」で詳細を確認できます。</translation>
    </message>
    <message>
        <source>Nothing needs to be done; the next refresh asks again.</source>
        <translation>何もする必要はありません。次回の更新時に再度問い合わせます。</translation>
    </message>
    <message>
        <source>Install the Codex CLI, or choose its program in the settings.</source>
        <translation>Codex CLI をインストールするか、設定でそのプログラムを選択してください。</translation>
    </message>
    <message>
        <source>A Codex CLI was found in another place; it is used once you agree.</source>
        <translation>別の場所で Codex CLI が見つかりました。同意すると使用されます。</translation>
    </message>
    <message>
        <source>Choose another program in the settings, or go back to automatic with &apos;tallyvane config unset codex-path&apos;.</source>
        <translation>設定で別のプログラムを選択するか、「tallyvane config unset codex-path」で自動に戻してください。</translation>
    </message>
    <message>
        <source>Run &apos;codex login&apos; in a terminal.</source>
        <translation>ターミナルで「codex login」を実行してください。</translation>
    </message>
    <message>
        <source>Start &apos;codex&apos; in a terminal to see whether it works there.</source>
        <translation>ターミナルで「codex」を起動し、動作するかどうか確認してください。</translation>
    </message>
    <message>
        <source>It is asked again within five minutes.</source>
        <translation>5 分以内に再度問い合わせます。</translation>
    </message>
    <message>
        <source>It is asked again in about %1 minutes.</source>
        <translation>約 %1 分後に再度問い合わせます。</translation>
    </message>
    <message>
        <source>The Claude service did not accept the sign-in of Claude Code.</source>
        <translation>Claude のサービスが Claude Code のサインイン情報を受け付けませんでした。</translation>
    </message>
    <message>
        <source>Sign-in expired</source>
        <translation>サインイン失効</translation>
    </message>
    <message>
        <source>The Claude service answered with status %1.</source>
        <translation>Claude のサービスがステータス %1 を返しました。</translation>
    </message>
    <message>
        <source>No sign-in of Claude Code was found.</source>
        <translation>Claude Code のサインイン情報が見つかりませんでした。</translation>
    </message>
    <message>
        <source>No file with a sign-in of Claude Code was found, and the keyring could not be asked: %1.</source>
        <translation>Claude Code のサインイン情報のファイルが見つからず、キーリングにも問い合わせできませんでした: %1。</translation>
    </message>
    <message>
        <source>Keychain auth</source>
        <translation>未サインイン</translation>
    </message>
    <message>
        <source>The sign-in of Claude Code has expired.</source>
        <translation>Claude Code のサインインは有効期限が切れています。</translation>
    </message>
    <message>
        <source>The Claude service was asked too many times.</source>
        <translation>Claude のサービスへの問い合わせが多すぎます。</translation>
    </message>
    <message>
        <source>Rate limited</source>
        <translation>レート制限中</translation>
    </message>
    <message>
        <source>The Claude service could not be reached: %1.</source>
        <translation>Claude のサービスに接続できませんでした: %1。</translation>
    </message>
    <message>
        <source>Network error</source>
        <translation>通信エラー</translation>
    </message>
    <message>
        <source>The answer of the Claude service was not understood.</source>
        <translation>Claude のサービスの応答を解釈できませんでした。</translation>
    </message>
    <message>
        <source>The reply of the Codex CLI could not be read.</source>
        <translation>Codex CLI の応答を読み取れませんでした。</translation>
    </message>
    <message>
        <source>Could not find %1.</source>
        <translation>%1 が見つかりませんでした。</translation>
    </message>
    <message>
        <source>Command failed (%1): %2</source>
        <translation>コマンドが失敗しました (%1): %2</translation>
    </message>
    <message>
        <source>Command timed out.</source>
        <translation>コマンドがタイムアウトしました。</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>ロックされています</translation>
    </message>
    <message>
        <source>it did not answer in time</source>
        <translation>時間内に応答がありませんでした</translation>
    </message>
    <message>
        <source>it took too long to answer</source>
        <translation>応答に時間がかかりすぎました</translation>
    </message>
    <message>
        <source>the desktop&apos;s settings ask for a kind of proxy that is not supported</source>
        <translation>デスクトップの設定で、対応していない種類のプロキシが指定されています</translation>
    </message>
    <message>
        <source>Could not remove %1: %2.</source>
        <translation>%1 を削除できませんでした: %2。</translation>
    </message>
    <message>
        <source>Codex returned an unknown error.</source>
        <translation>Codex が不明なエラーを返しました。</translation>
    </message>
    <message>
        <source>Not an absolute path: %1</source>
        <translation>絶対パスではありません: %1</translation>
    </message>
    <message>
        <source>Not an executable file: %1</source>
        <translation>実行可能なファイルではありません: %1</translation>
    </message>
</context>
<context>
    <name>Notification</name>
    <message>
        <source>The windows could not be loaded: %1</source>
        <translation>ウィンドウを読み込めませんでした: %1</translation>
    </message>
    <message>
        <source>您的 %1 token 已经重置了。</source>
        <translation>%1 の利用枠がリセットされました。</translation>
    </message>
    <message>
        <source>Open Tallyvane</source>
        <translation>Tallyvane を開く</translation>
    </message>
    <message>
        <source>%1: %2 % of the five-hour quota left</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 the percentage</extracomment>
        <translation>%1: 5 時間の利用枠の残り %2%</translation>
    </message>
    <message>
        <source>%1: %2 % of the weekly quota left</source>
        <translation>%1: 週間の利用枠の残り %2%</translation>
    </message>
    <message>
        <source>%1: the five-hour quota runs out at %2, before the reset</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 a time such as &quot;16:40&quot; or &quot;Tue 16:40&quot;</extracomment>
        <translation>%1: 5 時間の利用枠はリセット前の %2 に使い切ります</translation>
    </message>
    <message>
        <source>%1: the weekly quota runs out at %2, before the reset</source>
        <translation>%1: 週間の利用枠はリセット前の %2 に使い切ります</translation>
    </message>
</context>
<context>
    <name>ProviderCard</name>
    <message>
        <source>From %1</source>
        <extracomment>%1 is how long ago the figures were fetched, such as &quot;2 hr ago&quot;</extracomment>
        <translation>%1のデータ</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <translation>
            <numerusform>%n 分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr</source>
        <translation>
            <numerusform>%n 時間</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n d</source>
        <translation>
            <numerusform>%n 日</numerusform>
        </translation>
    </message>
    <message>
        <source>At this pace it runs out at %1, %2 before the reset</source>
        <translation>このペースでは %1 に使い切ります（リセットの%2前）</translation>
    </message>
    <message>
        <source>At this pace it lasts until the reset</source>
        <translation>このペースならリセットまで持ちます</translation>
    </message>
    <message>
        <source>At the pace of the last hour it runs out at %1, %2 before the reset</source>
        <translation>直近 1 時間のペースでは %1 に使い切ります（リセットの%2前）</translation>
    </message>
    <message>
        <source>At the pace of the last day it runs out at %1, %2 before the reset</source>
        <translation>直近 1 日のペースでは %1 に使い切ります（リセットの%2前）</translation>
    </message>
    <message>
        <source>At the pace of the last hour it lasts until the reset</source>
        <translation>直近 1 時間のペースならリセットまで持ちます</translation>
    </message>
    <message>
        <source>At the pace of the last day it lasts until the reset</source>
        <translation>直近 1 日のペースならリセットまで持ちます</translation>
    </message>
</context>
<context>
    <name>ProviderCardHeader</name>
    <message>
        <source>Sync pending</source>
        <extracomment>Read aloud for the symbol that marks outdated figures</extracomment>
        <translation>同期待ち</translation>
    </message>
</context>
<context>
    <name>ProviderQuotaCard</name>
    <message>
        <source>%1: %2, %3</source>
        <extracomment>A quota window, the percentage left of it, and when it resets</extracomment>
        <translation>%1: %2、%3</translation>
    </message>
    <message>
        <source>5h</source>
        <translation>5時間</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>週間</translation>
    </message>
    <message>
        <source>Open %1 usage details</source>
        <extracomment>%1 is an assistant&apos;s name</extracomment>
        <translation>%1 の使用状況の詳細を開く</translation>
    </message>
</context>
<context>
    <name>Quota</name>
    <message>
        <source>Sync pending</source>
        <translation>同期待ち</translation>
    </message>
    <message>
        <source>5H %1%  ·  WK %2%</source>
        <extracomment>What is left in the five-hour window and in the week, as short as possible</extracomment>
        <translation>5時間 %1%  ·  週間 %2%</translation>
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
        <translation>利用できません</translation>
    </message>
    <message>
        <source>Reset unknown</source>
        <translation>リセット日時不明</translation>
    </message>
    <message>
        <source>in %1d %2h</source>
        <extracomment>Days and hours, as short as possible</extracomment>
        <translation>%1日%2時間後</translation>
    </message>
    <message>
        <source>in %1h %2m</source>
        <translation>%1時間%2分後</translation>
    </message>
    <message>
        <source>in %1m</source>
        <translation>%1分後</translation>
    </message>
    <message>
        <source>never</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>たった今</translation>
    </message>
    <message numerus="yes">
        <source>%n min ago</source>
        <translation>
            <numerusform>%n 分前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr ago</source>
        <translation>
            <numerusform>%n 時間前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n d ago</source>
        <translation>
            <numerusform>%n 日前</numerusform>
        </translation>
    </message>
    <message>
        <source>5H</source>
        <extracomment>The five-hour window and the weekly one, as short as possible</extracomment>
        <translation>5時間</translation>
    </message>
    <message>
        <source>WK</source>
        <translation>週間</translation>
    </message>
    <message>
        <source>%1 runs out %2</source>
        <extracomment>%1 is &quot;5H&quot;, %2 a time such as &quot;in 2h 14m&quot;</extracomment>
        <translation>%1: %2に使い切る見込み</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>RefreshToast</name>
    <message>
        <source>Refreshed</source>
        <translation>更新しました</translation>
    </message>
    <message>
        <source>Refreshing</source>
        <translation>更新中</translation>
    </message>
</context>
<context>
    <name>SettingsContent</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Color scheme</source>
        <translation>配色</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Background refresh</source>
        <translation>バックグラウンド更新</translation>
    </message>
    <message>
        <source>Launch menu bar app at login</source>
        <translation>ログイン時にシステムトレイで Tallyvane を起動</translation>
    </message>
    <message>
        <source>The menu bar app refreshes Codex and Claude every five minutes. Claude usage is read from Claude Code&apos;s stored sign-in; macOS asks once for Keychain access.</source>
        <translation>システムトレイの Tallyvane は、Codex と Claude の利用枠を 5 分ごとに更新します。Claude の使用量は、保存されている Claude Code のサインイン情報を使って取得します。キーリングのロック解除を求めることはありません。</translation>
    </message>
    <message>
        <source>Codex program</source>
        <translation>Codex のプログラム</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Reset notifications</source>
        <translation>リセット通知</translation>
    </message>
    <message>
        <source>Notify when a quota resets</source>
        <translation>利用枠がリセットされたときに通知</translation>
    </message>
    <message>
        <source>Sends a desktop alert when Codex or Claude&apos;s quota resets during an enabled window. Requires the menu bar app to be running.</source>
        <translation>有効な時間帯に Codex または Claude の利用枠がリセットされると、デスクトップ通知を送ります。Tallyvane がシステムトレイで動作している必要があります。</translation>
    </message>
    <message>
        <source>Notifications are turned off in System Settings</source>
        <translation>システム設定で通知がオフになっています</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>システム設定を開く</translation>
    </message>
    <message>
        <source>Add time window</source>
        <translation>時間帯を追加</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>プライバシー</translation>
    </message>
    <message>
        <source>All history stays on this Mac</source>
        <translation>履歴はすべてこのコンピューターに保存されます</translation>
    </message>
    <message>
        <source>No analytics, cloud database, remote logging, prompts, responses, file paths, emails, credentials, or account identifiers are collected.</source>
        <translation>分析データ、プロンプト、応答、ファイルパス、メールアドレス、認証情報、アカウント識別子は収集せず、クラウドデータベースやリモートログも使用しません。</translation>
    </message>
    <message>
        <source>Clear usage history</source>
        <translation>使用履歴を消去</translation>
    </message>
    <message>
        <source>Assistants shown</source>
        <translation>表示するアシスタント</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>両方</translation>
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
        <translation>非表示のアシスタントには問い合わせず、履歴は保持されます。どちらか一方は必ず表示されます。</translation>
    </message>
    <message>
        <source>Low quota</source>
        <translation>利用枠の残りわずか</translation>
    </message>
    <message>
        <source>Notify when a quota runs low</source>
        <translation>利用枠が残り少なくなったときに通知</translation>
    </message>
    <message>
        <source>Sends a desktop alert when 25 % and 10 % of a quota are left, and when it is going to run out before its reset. The time windows above apply. Requires the menu bar app to be running.</source>
        <translation>利用枠の残りが 25% と 10% になったとき、およびリセット前に使い切る見込みになったときに、デスクトップ通知を送ります。上の時間帯が適用されます。Tallyvane がシステムトレイで動作している必要があります。</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Working</source>
        <extracomment>Read aloud for the busy indicator</extracomment>
        <translation>処理中</translation>
    </message>
</context>
<context>
    <name>TimeWindowRow</name>
    <message>
        <source>All day</source>
        <translation>終日</translation>
    </message>
    <message>
        <source>Start time</source>
        <extracomment>Read aloud for the field</extracomment>
        <translation>開始時刻</translation>
    </message>
    <message>
        <source>End time</source>
        <extracomment>Read aloud for the field</extracomment>
        <translation>終了時刻</translation>
    </message>
    <message>
        <source>Remove time window</source>
        <extracomment>Read aloud for the button</extracomment>
        <translation>時間帯を削除</translation>
    </message>
    <message>
        <source>Turn on</source>
        <translation>有効にする</translation>
    </message>
</context>
<context>
    <name>UsageHeatmapView</name>
    <message>
        <source>Token Heatmap</source>
        <translation>トークンのヒートマップ</translation>
    </message>
    <message>
        <source>Estimated tokens per day</source>
        <translation>1 日あたりの推定トークン数</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>対象</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
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
        <translation>使用履歴</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>指標</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>トークン</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>期間</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>日別</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>月別</translation>
    </message>
    <message>
        <source>Estimated result. Rolling resets, usage between syncs, and provider-side adjustments can affect accuracy. Local token totals are derived from numeric usage fields only; prompts and responses are never stored.</source>
        <translation>推定値です。ローリング式のリセット、同期と同期の間の使用、提供元による調整が精度に影響することがあります。ローカルのトークン数は、使用量の数値フィールドのみから算出しています。プロンプトや応答を保存することはありません。</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>コピーしました</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy the daily figures as a table</source>
        <translation>日ごとの数値を表としてコピー</translation>
    </message>
</context>
<context>
    <name>tallyvane::app::StatusArea</name>
    <message>
        <source>Open Tallyvane</source>
        <translation>Tallyvane を開く</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::DashboardModel</name>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is how long ago, such as &quot;5 min ago&quot;</extracomment>
        <translation>最終更新: %1</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::HeatmapModel</name>
    <message>
        <source>%1: %2 tokens</source>
        <extracomment>%1 is a day, %2 a number such as &quot;12K&quot;</extracomment>
        <translation>%1: %2 トークン</translation>
    </message>
    <message>
        <source>%1: No record</source>
        <extracomment>%1 is a day</extracomment>
        <translation>%1: 記録なし</translation>
    </message>
    <message numerus="yes">
        <source>(the history covers %n days)</source>
        <extracomment>Follows &quot;No record&quot;</extracomment>
        <translation>
            <numerusform>(履歴は %n 日分です)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::HistoryModel</name>
    <message>
        <source>% of quota used</source>
        <translation>利用枠の使用率 (%)</translation>
    </message>
    <message>
        <source>Estimated tokens used</source>
        <translation>推定トークン使用量</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Shares of two weekly quotas, added up</source>
        <translation>2 つの週間利用枠の使用率の合計</translation>
    </message>
    <message>
        <source>%1 tokens</source>
        <translation>%1 トークン</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::MenuBarQuotaViewModel</name>
    <message>
        <source>Last updated %1</source>
        <extracomment>%1 is how long ago, such as &quot;20 min ago&quot;</extracomment>
        <translation>最終更新: %1</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::SettingsModel</name>
    <message>
        <source>In use: %1, found by Tallyvane.</source>
        <extracomment>%1 is a program&apos;s path</extracomment>
        <translation>使用中: %1 (Tallyvane が検出)</translation>
    </message>
    <message>
        <source>In use: %1, chosen by you.</source>
        <translation>使用中: %1 (ユーザーが選択)</translation>
    </message>
    <message>
        <source>No notification can come: there is no time window.</source>
        <translation>通知は届きません。時間帯がありません。</translation>
    </message>
    <message>
        <source>No notification can come: no time window allows any.</source>
        <translation>通知は届きません。通知できる時間帯がありません。</translation>
    </message>
    <message>
        <source>Usage history cleared.</source>
        <translation>使用履歴を消去しました。</translation>
    </message>
    <message>
        <source>This window is off; no notification comes in it.</source>
        <translation>この時間帯はオフです。この間、通知は届きません。</translation>
    </message>
    <message>
        <source>No time lies between this start and end.</source>
        <translation>この開始時刻と終了時刻の間に時間がありません。</translation>
    </message>
</context>
</TS>
