<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <translation>Woche</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Dashboard</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Usage History</source>
        <translation>Nutzungsverlauf</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Keyboard shortcuts and About</source>
        <translation>Tastenkürzel und Info</translation>
    </message>
</context>
<context>
    <name>DashboardContent</name>
    <message>
        <source>Dashboard</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Auto-refreshes every 5 min</source>
        <translation>Aktualisiert automatisch alle 5&#xa0;min</translation>
    </message>
    <message>
        <source>· Auto-refreshes every 5 min</source>
        <extracomment>Follows &quot;Updated 5 min ago&quot; and a space</extracomment>
        <translation>· Aktualisiert automatisch alle 5&#xa0;min</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Use %1</source>
        <extracomment>%1 is a program&apos;s path</extracomment>
        <translation>%1 verwenden</translation>
    </message>
    <message>
        <source>Bars and percentages show what is left of each quota.</source>
        <translation>Balken und Prozentwerte zeigen, was von jedem Kontingent übrig ist.</translation>
    </message>
</context>
<context>
    <name>ErrorNotice</name>
    <message>
        <source>Show less</source>
        <translation>Weniger anzeigen</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alles anzeigen</translation>
    </message>
</context>
<context>
    <name>HelpSheet</name>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Dashboard, Usage History, Settings</source>
        <translation>Übersicht, Nutzungsverlauf, Einstellungen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>Select a bar, a day or a choice; scroll</source>
        <translation>Balken, Tag oder Option auswählen; blättern</translation>
    </message>
    <message>
        <source>Show or hide this list</source>
        <translation>Diese Liste ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Quit Tallyvane</source>
        <translation>Tallyvane beenden</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Tallyvane %1</source>
        <extracomment>%1 is a version such as &quot;1.2.3&quot;</extracomment>
        <translation>Tallyvane %1</translation>
    </message>
    <message>
        <source>Free software under the Apache License 2.0</source>
        <translation>Freie Software unter der Apache-Lizenz 2.0</translation>
    </message>
    <message>
        <source>Figures and history: %1</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Werte und Verlauf: %1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>Einstellungen: %1</translation>
    </message>
    <message>
        <source>Project page</source>
        <translation>Projektseite</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Ctrl+R, F5</source>
        <translation>Strg+R, F5</translation>
    </message>
    <message>
        <source>Ctrl+1, Ctrl+2, Ctrl+3</source>
        <translation>Strg+1, Strg+2, Strg+3</translation>
    </message>
    <message>
        <source>Ctrl+,</source>
        <translation>Strg+,</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Strg+Tab, Strg+Bild ab</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Strg+Umschalt+Tab, Strg+Bild auf</translation>
    </message>
    <message>
        <source>F1, Ctrl+?</source>
        <translation>F1, Strg+?</translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation>Strg+W</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Strg+Q</translation>
    </message>
</context>
<context>
    <name>HistoryChart</name>
    <message>
        <source>Nothing recorded yet</source>
        <translation>Noch nichts aufgezeichnet</translation>
    </message>
</context>
<context>
    <name>HostAdvice</name>
    <message>
        <source>GNOME needs the AppIndicator extension: &apos;sudo apt install gnome-shell-extension-appindicator&apos;, log out and in, then &apos;gnome-extensions enable ubuntu-appindicators@ubuntu.com&apos;.</source>
        <translation>GNOME benötigt die AppIndicator-Erweiterung: „sudo apt install gnome-shell-extension-appindicator“, ab- und wieder anmelden, dann „gnome-extensions enable ubuntu-appindicators@ubuntu.com“.</translation>
    </message>
    <message>
        <source>Add the Status Tray Plugin to the panel: &apos;xfce4-panel --add=systray&apos;.</source>
        <translation>Das Plugin für den Statusbereich zur Leiste hinzufügen: „xfce4-panel --add=systray“.</translation>
    </message>
    <message>
        <source>Add the widget System Tray to Plasma&apos;s panel: right-click it and choose Add Widgets.</source>
        <translation>Das Miniprogramm „Systemabschnitt der Kontrollleiste“ zur Kontrollleiste von Plasma hinzufügen: Rechtsklick darauf und „Miniprogramme hinzufügen“ wählen.</translation>
    </message>
    <message>
        <source>Add the applet Notification Area to the panel: right-click it and choose Add to Panel.</source>
        <translation>Das Applet „Benachrichtigungsfeld“ zum Panel hinzufügen: Rechtsklick darauf und „Zum Panel hinzufügen“ wählen.</translation>
    </message>
    <message>
        <source>Add the widget Status Notifier to the panel: right-click it and choose Manage Widgets.</source>
        <translation>Das Widget „Status Notifier“ zur Leiste hinzufügen: Rechtsklick darauf und „Widgets verwalten“ wählen.</translation>
    </message>
    <message>
        <source>Add the XApp Status Applet to the panel: &apos;cinnamon-settings applets&apos;.</source>
        <translation>Das XApp-Status-Applet zur Leiste hinzufügen: „cinnamon-settings applets“.</translation>
    </message>
    <message>
        <source>Start Waybar (&apos;sudo apt install waybar&apos;) with &quot;tray&quot; in one of the module lists of its configuration.</source>
        <translation>Waybar („sudo apt install waybar“) mit &quot;tray&quot; in einer der Modullisten seiner Konfiguration starten.</translation>
    </message>
    <message>
        <source>Add a status area to the panel, often called system tray, that shows StatusNotifier items.</source>
        <translation>Der Leiste einen Statusbereich hinzufügen (oft „System Tray“ genannt), der StatusNotifier-Elemente anzeigt.</translation>
    </message>
</context>
<context>
    <name>HostNotice</name>
    <message>
        <source>This desktop shows no status icons, so Tallyvane can be seen in this window only.</source>
        <translation>Dieser Desktop zeigt keine Statussymbole an, daher ist Tallyvane nur in diesem Fenster zu sehen.</translation>
    </message>
    <message>
        <source>It keeps running when you close the window.</source>
        <translation>Es läuft weiter, wenn das Fenster geschlossen wird.</translation>
    </message>
    <message>
        <source>Quit Tallyvane</source>
        <translation>Tallyvane beenden</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Nicht mehr anzeigen</translation>
    </message>
</context>
<context>
    <name>LaunchAtLoginPrompt</name>
    <message>
        <source>Keep quotas up to date?</source>
        <translation>Kontingente aktuell halten?</translation>
    </message>
    <message>
        <source>Tallyvane can live in the menu bar and refresh Codex every five minutes after you sign in to your Mac.</source>
        <translation>Tallyvane kann im Statusbereich laufen und nach der Anmeldung an diesem Computer alle fünf Minuten Codex und Claude aktualisieren.</translation>
    </message>
    <message>
        <source>Launch Tallyvane at login</source>
        <translation>Tallyvane bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Jetzt nicht</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>MenuBarLabel</name>
    <message>
        <source>5H</source>
        <translation>5h</translation>
    </message>
    <message>
        <source>WK</source>
        <translation>Wo.</translation>
    </message>
    <message>
        <source>%1 resets %2</source>
        <extracomment>%1 is &quot;5H&quot;, %2 a time such as &quot;in 2h 14m&quot;</extracomment>
        <translation>%1: Reset %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source> (last updated %1)</source>
        <extracomment>%1 is how long ago, such as &quot;20 min ago&quot;</extracomment>
        <translation> (zuletzt aktualisiert %1)</translation>
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
        <translation>Tallyvane öffnen</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>Read aloud for the button that fetches new figures</extracomment>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>A button that ends the program</extracomment>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Another program is refreshing the same files and did not end within a minute.</source>
        <translation>Ein anderes Programm aktualisiert dieselben Dateien und war nach einer Minute noch nicht fertig.</translation>
    </message>
    <message>
        <source>The session logs could not be counted: %1.</source>
        <translation>Die Sitzungsprotokolle konnten nicht ausgezählt werden: %1.</translation>
    </message>
    <message>
        <source>%1 does not hold settings, and stays as it is.</source>
        <translation>%1 enthält keine Einstellungen und bleibt unverändert.</translation>
    </message>
    <message>
        <source>Could not save %1: %2.</source>
        <translation>%1 konnte nicht gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>A figure is not a finite number.</source>
        <translation>Ein Wert ist keine endliche Zahl.</translation>
    </message>
    <message>
        <source>Start &apos;claude&apos; in a terminal and sign in.</source>
        <translation>„claude“ in einem Terminal starten und sich dort anmelden.</translation>
    </message>
    <message>
        <source>Unlock the keyring, for example in &apos;seahorse&apos; (Passwords and Keys) or by logging in with your password.</source>
        <translation>Den Schlüsselbund entsperren, zum Beispiel in „seahorse“ (Passwörter und Schlüssel) oder durch Anmelden mit Passwort.</translation>
    </message>
    <message>
        <source>Start &apos;claude&apos; once; it renews its sign-in by itself.</source>
        <translation>„claude“ einmal starten; es erneuert seine Anmeldung selbst.</translation>
    </message>
    <message>
        <source>Check the network connection; &apos;tallyvane doctor --online&apos; says more.</source>
        <translation>Die Netzwerkverbindung prüfen; „tallyvane doctor --online“ sagt mehr.</translation>
    </message>
    <message>
        <source>Nothing needs to be done; the next refresh asks again.</source>
        <translation>Es ist nichts zu tun; die nächste Aktualisierung fragt erneut.</translation>
    </message>
    <message>
        <source>Install the Codex CLI, or choose its program in the settings.</source>
        <translation>Die Codex CLI installieren oder ihr Programm in den Einstellungen wählen.</translation>
    </message>
    <message>
        <source>A Codex CLI was found in another place; it is used once you agree.</source>
        <translation>Eine Codex CLI wurde an anderer Stelle gefunden; sie wird erst nach Zustimmung verwendet.</translation>
    </message>
    <message>
        <source>Choose another program in the settings, or go back to automatic with &apos;tallyvane config unset codex-path&apos;.</source>
        <translation>In den Einstellungen ein anderes Programm wählen oder mit „tallyvane config unset codex-path“ zu Automatisch zurückkehren.</translation>
    </message>
    <message>
        <source>Run &apos;codex login&apos; in a terminal.</source>
        <translation>„codex login“ in einem Terminal ausführen.</translation>
    </message>
    <message>
        <source>Start &apos;codex&apos; in a terminal to see whether it works there.</source>
        <translation>„codex“ in einem Terminal starten, um zu sehen, ob es dort funktioniert.</translation>
    </message>
    <message>
        <source>It is asked again within five minutes.</source>
        <translation>In spätestens fünf Minuten wird erneut gefragt.</translation>
    </message>
    <message>
        <source>It is asked again in about %1 minutes.</source>
        <translation>In etwa %1 Minuten wird erneut gefragt.</translation>
    </message>
    <message>
        <source>The Claude service did not accept the sign-in of Claude Code.</source>
        <translation>Der Claude-Dienst hat die Anmeldung von Claude Code nicht akzeptiert.</translation>
    </message>
    <message>
        <source>Sign-in expired</source>
        <translation>Login abgelaufen</translation>
    </message>
    <message>
        <source>The Claude service answered with status %1.</source>
        <translation>Der Claude-Dienst hat mit Status %1 geantwortet.</translation>
    </message>
    <message>
        <source>No sign-in of Claude Code was found.</source>
        <translation>Es wurde keine Anmeldung von Claude Code gefunden.</translation>
    </message>
    <message>
        <source>No file with a sign-in of Claude Code was found, and the keyring could not be asked: %1.</source>
        <translation>Es wurde keine Datei mit einer Anmeldung von Claude Code gefunden, und der Schlüsselbund konnte nicht abgefragt werden: %1.</translation>
    </message>
    <message>
        <source>Keychain auth</source>
        <translation>Nicht angemeldet</translation>
    </message>
    <message>
        <source>The sign-in of Claude Code has expired.</source>
        <translation>Die Anmeldung von Claude Code ist abgelaufen.</translation>
    </message>
    <message>
        <source>The Claude service was asked too many times.</source>
        <translation>Der Claude-Dienst wurde zu oft gefragt.</translation>
    </message>
    <message>
        <source>Rate limited</source>
        <translation>Zu viele Anfragen</translation>
    </message>
    <message>
        <source>The Claude service could not be reached: %1.</source>
        <translation>Der Claude-Dienst war nicht erreichbar: %1.</translation>
    </message>
    <message>
        <source>Network error</source>
        <translation>Netzwerkfehler</translation>
    </message>
    <message>
        <source>The answer of the Claude service was not understood.</source>
        <translation>Die Antwort des Claude-Dienstes war nicht verständlich.</translation>
    </message>
    <message>
        <source>The reply of the Codex CLI could not be read.</source>
        <translation>Die Antwort der Codex CLI konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Could not find %1.</source>
        <translation>%1 wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Command failed (%1): %2</source>
        <translation>Befehl fehlgeschlagen (%1): %2</translation>
    </message>
    <message>
        <source>Command timed out.</source>
        <translation>Zeitüberschreitung beim Befehl.</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>er ist gesperrt</translation>
    </message>
    <message>
        <source>it did not answer in time</source>
        <translation>er hat nicht rechtzeitig geantwortet</translation>
    </message>
    <message>
        <source>it took too long to answer</source>
        <translation>er hat zu lange für die Antwort gebraucht</translation>
    </message>
    <message>
        <source>the desktop&apos;s settings ask for a kind of proxy that is not supported</source>
        <translation>die Einstellungen des Desktops verlangen eine Proxy-Art, die nicht unterstützt wird</translation>
    </message>
    <message>
        <source>Could not remove %1: %2.</source>
        <translation>%1 konnte nicht entfernt werden: %2.</translation>
    </message>
    <message>
        <source>Codex returned an unknown error.</source>
        <translation>Codex hat einen unbekannten Fehler gemeldet.</translation>
    </message>
    <message>
        <source>Not an absolute path: %1</source>
        <translation>Kein absoluter Pfad: %1</translation>
    </message>
    <message>
        <source>Not an executable file: %1</source>
        <translation>Keine ausführbare Datei: %1</translation>
    </message>
</context>
<context>
    <name>Notification</name>
    <message>
        <source>The windows could not be loaded: %1</source>
        <translation>Die Fenster konnten nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>您的 %1 token 已经重置了。</source>
        <translation>Das Kontingent von %1 wurde zurückgesetzt.</translation>
    </message>
    <message>
        <source>Open Tallyvane</source>
        <translation>Tallyvane öffnen</translation>
    </message>
    <message>
        <source>%1: %2 % of the five-hour quota left</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 the percentage</extracomment>
        <translation>%1: noch %2 % des Fünf-Stunden-Kontingents</translation>
    </message>
    <message>
        <source>%1: %2 % of the weekly quota left</source>
        <translation>%1: noch %2 % des Wochenkontingents</translation>
    </message>
    <message>
        <source>%1: the five-hour quota runs out at %2, before the reset</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 a time such as &quot;16:40&quot; or &quot;Tue 16:40&quot;</extracomment>
        <translation>%1: Das Fünf-Stunden-Kontingent reicht nur bis %2, nicht bis zum Reset</translation>
    </message>
    <message>
        <source>%1: the weekly quota runs out at %2, before the reset</source>
        <translation>%1: Das Wochenkontingent reicht nur bis %2, nicht bis zum Reset</translation>
    </message>
</context>
<context>
    <name>ProviderCard</name>
    <message>
        <source>From %1</source>
        <extracomment>%1 is how long ago the figures were fetched, such as &quot;2 hr ago&quot;</extracomment>
        <translation>Stand: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <translation>
            <numerusform>%n&#xa0;min</numerusform>
            <numerusform>%n&#xa0;min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr</source>
        <translation>
            <numerusform>%n&#xa0;h</numerusform>
            <numerusform>%n&#xa0;h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n d</source>
        <translation>
            <numerusform>%n&#xa0;Tag</numerusform>
            <numerusform>%n&#xa0;Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>At this pace it runs out at %1, %2 before the reset</source>
        <translation>In diesem Tempo reicht es nur bis %1, %2 vor dem Reset</translation>
    </message>
    <message>
        <source>At this pace it lasts until the reset</source>
        <translation>In diesem Tempo reicht es bis zum Reset</translation>
    </message>
    <message>
        <source>At the pace of the last hour it runs out at %1, %2 before the reset</source>
        <translation>Im Tempo der letzten Stunde reicht es nur bis %1, %2 vor dem Reset</translation>
    </message>
    <message>
        <source>At the pace of the last day it runs out at %1, %2 before the reset</source>
        <translation>Im Tempo des letzten Tages reicht es nur bis %1, %2 vor dem Reset</translation>
    </message>
    <message>
        <source>At the pace of the last hour it lasts until the reset</source>
        <translation>Im Tempo der letzten Stunde reicht es bis zum Reset</translation>
    </message>
    <message>
        <source>At the pace of the last day it lasts until the reset</source>
        <translation>Im Tempo des letzten Tages reicht es bis zum Reset</translation>
    </message>
</context>
<context>
    <name>ProviderCardHeader</name>
    <message>
        <source>Sync pending</source>
        <extracomment>Read aloud for the symbol that marks outdated figures</extracomment>
        <translation>Sync ausstehend</translation>
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
        <translation>Woche</translation>
    </message>
    <message>
        <source>Open %1 usage details</source>
        <extracomment>%1 is an assistant&apos;s name</extracomment>
        <translation>Nutzungsdetails von %1 öffnen</translation>
    </message>
</context>
<context>
    <name>Quota</name>
    <message>
        <source>Sync pending</source>
        <translation>Sync ausstehend</translation>
    </message>
    <message>
        <source>5H %1%  ·  WK %2%</source>
        <extracomment>What is left in the five-hour window and in the week, as short as possible</extracomment>
        <translation>5h %L1&#xa0;%  ·  Wo. %L2&#xa0;%</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage</extracomment>
        <translation>%L1&#xa0;%</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 its figures</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Reset unknown</source>
        <translation>Reset unbekannt</translation>
    </message>
    <message>
        <source>in %1d %2h</source>
        <extracomment>Days and hours, as short as possible</extracomment>
        <translation>in %1&#xa0;Tg. %2&#xa0;h</translation>
    </message>
    <message>
        <source>in %1h %2m</source>
        <translation>in %1&#xa0;h %2&#xa0;min</translation>
    </message>
    <message>
        <source>in %1m</source>
        <translation>in %1&#xa0;min</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>gerade eben</translation>
    </message>
    <message numerus="yes">
        <source>%n min ago</source>
        <translation>
            <numerusform>vor %n&#xa0;min</numerusform>
            <numerusform>vor %n&#xa0;min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr ago</source>
        <translation>
            <numerusform>vor %n&#xa0;h</numerusform>
            <numerusform>vor %n&#xa0;h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n d ago</source>
        <translation>
            <numerusform>vor %n&#xa0;Tag</numerusform>
            <numerusform>vor %n&#xa0;Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>5H</source>
        <extracomment>The five-hour window and the weekly one, as short as possible</extracomment>
        <translation>5h</translation>
    </message>
    <message>
        <source>WK</source>
        <translation>Wo.</translation>
    </message>
    <message>
        <source>%1 runs out %2</source>
        <extracomment>%1 is &quot;5H&quot;, %2 a time such as &quot;in 2h 14m&quot;</extracomment>
        <translation>%1: leer %2</translation>
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
        <translation>Aktualisiert</translation>
    </message>
    <message>
        <source>Refreshing</source>
        <translation>Wird aktualisiert</translation>
    </message>
</context>
<context>
    <name>SettingsContent</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Color scheme</source>
        <translation>Farbschema</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Background refresh</source>
        <translation>Aktualisierung im Hintergrund</translation>
    </message>
    <message>
        <source>Launch menu bar app at login</source>
        <translation>Bei der Anmeldung im Statusbereich starten</translation>
    </message>
    <message>
        <source>The menu bar app refreshes Codex and Claude every five minutes. Claude usage is read from Claude Code&apos;s stored sign-in; macOS asks once for Keychain access.</source>
        <translation>Im Statusbereich aktualisiert Tallyvane alle fünf Minuten Codex und Claude. Die Claude-Nutzung wird mit der gespeicherten Anmeldung von Claude Code abgefragt. Dabei wird nie verlangt, den Schlüsselbund zu entsperren.</translation>
    </message>
    <message>
        <source>Codex program</source>
        <translation>Codex-Programm</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Reset notifications</source>
        <translation>Reset-Benachrichtigungen</translation>
    </message>
    <message>
        <source>Notify when a quota resets</source>
        <translation>Benachrichtigen, wenn ein Kontingent zurückgesetzt wird</translation>
    </message>
    <message>
        <source>Sends a desktop alert when Codex or Claude&apos;s quota resets during an enabled window. Requires the menu bar app to be running.</source>
        <translation>Zeigt eine Benachrichtigung an, wenn das Kontingent von Codex oder Claude in einem aktiven Zeitfenster zurückgesetzt wird. Dazu muss Tallyvane im Statusbereich laufen.</translation>
    </message>
    <message>
        <source>Notifications are turned off in System Settings</source>
        <translation>Benachrichtigungen sind in den Systemeinstellungen ausgeschaltet</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Add time window</source>
        <translation>Zeitfenster hinzufügen</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Datenschutz</translation>
    </message>
    <message>
        <source>All history stays on this Mac</source>
        <translation>Der gesamte Verlauf bleibt auf diesem Computer</translation>
    </message>
    <message>
        <source>No analytics, cloud database, remote logging, prompts, responses, file paths, emails, credentials, or account identifiers are collected.</source>
        <translation>Es gibt keine Analysedaten, keine Cloud-Datenbank und keine Protokollierung auf fremden Servern; Prompts, Antworten, Dateipfade, E-Mails, Zugangsdaten und Kontokennungen werden nicht erfasst.</translation>
    </message>
    <message>
        <source>Clear usage history</source>
        <translation>Nutzungsverlauf löschen</translation>
    </message>
    <message>
        <source>Assistants shown</source>
        <translation>Angezeigte Assistenten</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
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
        <translation>Ein ausgeblendeter Assistent wird nicht abgefragt; sein Verlauf bleibt erhalten. Einer wird immer angezeigt.</translation>
    </message>
    <message>
        <source>Low quota</source>
        <translation>Knappes Kontingent</translation>
    </message>
    <message>
        <source>Notify when a quota runs low</source>
        <translation>Benachrichtigen, wenn ein Kontingent knapp wird</translation>
    </message>
    <message>
        <source>Sends a desktop alert when 25 % and 10 % of a quota are left, and when it is going to run out before its reset. The time windows above apply. Requires the menu bar app to be running.</source>
        <translation>Zeigt eine Benachrichtigung an, wenn von einem Kontingent noch 25 % und 10 % übrig sind und wenn es vor dem Reset aufgebraucht sein wird. Es gelten die Zeitfenster oben. Dazu muss Tallyvane im Statusbereich laufen.</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Working</source>
        <extracomment>Read aloud for the busy indicator</extracomment>
        <translation>Bitte warten</translation>
    </message>
</context>
<context>
    <name>TimeWindowRow</name>
    <message>
        <source>All day</source>
        <translation>Ganztägig</translation>
    </message>
    <message>
        <source>Start time</source>
        <extracomment>Read aloud for the field</extracomment>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End time</source>
        <extracomment>Read aloud for the field</extracomment>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Remove time window</source>
        <extracomment>Read aloud for the button</extracomment>
        <translation>Zeitfenster entfernen</translation>
    </message>
    <message>
        <source>Turn on</source>
        <translation>Einschalten</translation>
    </message>
</context>
<context>
    <name>UsageHeatmapView</name>
    <message>
        <source>Token Heatmap</source>
        <translation>Token-Heatmap</translation>
    </message>
    <message>
        <source>Estimated tokens per day</source>
        <translation>Geschätzte Tokens pro Tag</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
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
        <translation>Weniger</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
</context>
<context>
    <name>UsageHistoryView</name>
    <message>
        <source>Usage History</source>
        <translation>Nutzungsverlauf</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Messgröße</translation>
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
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Monatlich</translation>
    </message>
    <message>
        <source>Estimated result. Rolling resets, usage between syncs, and provider-side adjustments can affect accuracy. Local token totals are derived from numeric usage fields only; prompts and responses are never stored.</source>
        <translation>Geschätzte Werte. Gleitende Resets, Nutzung zwischen zwei Aktualisierungen und Anpassungen seitens der Anbieter können die Genauigkeit beeinträchtigen. Die lokalen Token-Summen stammen nur aus numerischen Nutzungsfeldern; Prompts und Antworten werden nie gespeichert.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the daily figures as a table</source>
        <translation>Die Werte der Tage als Tabelle kopieren</translation>
    </message>
</context>
<context>
    <name>tallyvane::app::StatusArea</name>
    <message>
        <source>Open Tallyvane</source>
        <translation>Tallyvane öffnen</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::DashboardModel</name>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is how long ago, such as &quot;5 min ago&quot;</extracomment>
        <translation>Aktualisiert: %1</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::HeatmapModel</name>
    <message>
        <source>%1: %2 tokens</source>
        <extracomment>%1 is a day, %2 a number such as &quot;12K&quot;</extracomment>
        <translation>%1: %2 Tokens</translation>
    </message>
    <message>
        <source>%1: No record</source>
        <extracomment>%1 is a day</extracomment>
        <translation>%1: Keine Aufzeichnung</translation>
    </message>
    <message numerus="yes">
        <source>(the history covers %n days)</source>
        <extracomment>Follows &quot;No record&quot;</extracomment>
        <translation>
            <numerusform>(der Verlauf umfasst %n Tag)</numerusform>
            <numerusform>(der Verlauf umfasst %n Tage)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::HistoryModel</name>
    <message>
        <source>% of quota used</source>
        <translation>% des Kontingents verbraucht</translation>
    </message>
    <message>
        <source>Estimated tokens used</source>
        <translation>Geschätzte verbrauchte Tokens</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage</extracomment>
        <translation>%L1&#xa0;%</translation>
    </message>
    <message>
        <source>Shares of two weekly quotas, added up</source>
        <translation>Anteile zweier Wochenkontingente, zusammengezählt</translation>
    </message>
    <message>
        <source>%1 tokens</source>
        <translation>%1 Tokens</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::MenuBarQuotaViewModel</name>
    <message>
        <source>Last updated %1</source>
        <extracomment>%1 is how long ago, such as &quot;20 min ago&quot;</extracomment>
        <translation>Zuletzt aktualisiert %1</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::SettingsModel</name>
    <message>
        <source>In use: %1, found by Tallyvane.</source>
        <extracomment>%1 is a program&apos;s path</extracomment>
        <translation>Verwendet: %1, von Tallyvane gefunden.</translation>
    </message>
    <message>
        <source>In use: %1, chosen by you.</source>
        <translation>Verwendet: %1, selbst gewählt.</translation>
    </message>
    <message>
        <source>No notification can come: there is no time window.</source>
        <translation>Es kann keine Benachrichtigung kommen: Es gibt kein Zeitfenster.</translation>
    </message>
    <message>
        <source>No notification can come: no time window allows any.</source>
        <translation>Es kann keine Benachrichtigung kommen: Kein Zeitfenster lässt eine zu.</translation>
    </message>
    <message>
        <source>Usage history cleared.</source>
        <translation>Nutzungsverlauf gelöscht.</translation>
    </message>
    <message>
        <source>This window is off; no notification comes in it.</source>
        <translation>Dieses Zeitfenster ist ausgeschaltet; darin kommt keine Benachrichtigung.</translation>
    </message>
    <message>
        <source>No time lies between this start and end.</source>
        <translation>Zwischen Beginn und Ende liegt keine Zeit.</translation>
    </message>
</context>
</TS>
