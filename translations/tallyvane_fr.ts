<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
        <translation>Sem.</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Dashboard</source>
        <translation>Tableau de bord</translation>
    </message>
    <message>
        <source>Usage History</source>
        <translation>Historique d’utilisation</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Keyboard shortcuts and About</source>
        <translation>Raccourcis clavier et À propos</translation>
    </message>
</context>
<context>
    <name>DashboardContent</name>
    <message>
        <source>Dashboard</source>
        <translation>Tableau de bord</translation>
    </message>
    <message>
        <source>Auto-refreshes every 5 min</source>
        <translation>Actualisation automatique toutes les 5&#xa0;min</translation>
    </message>
    <message>
        <source>· Auto-refreshes every 5 min</source>
        <extracomment>Follows &quot;Updated 5 min ago&quot; and a space</extracomment>
        <translation>· Actualisation automatique toutes les 5&#xa0;min</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Use %1</source>
        <extracomment>%1 is a program&apos;s path</extracomment>
        <translation>Utiliser %1</translation>
    </message>
    <message>
        <source>Bars and percentages show what is left of each quota.</source>
        <translation>Les barres et les pourcentages indiquent ce qu’il reste de chaque quota.</translation>
    </message>
</context>
<context>
    <name>ErrorNotice</name>
    <message>
        <source>Show less</source>
        <translation>Afficher moins</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
</context>
<context>
    <name>HelpSheet</name>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Dashboard, Usage History, Settings</source>
        <translation>Tableau de bord, Historique d’utilisation, Paramètres</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Touches fléchées</translation>
    </message>
    <message>
        <source>Select a bar, a day or a choice; scroll</source>
        <translation>Sélectionner une barre, un jour ou une option&#xa0;; faire défiler</translation>
    </message>
    <message>
        <source>Show or hide this list</source>
        <translation>Afficher ou masquer cette liste</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Quit Tallyvane</source>
        <translation>Quitter Tallyvane</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Tallyvane %1</source>
        <extracomment>%1 is a version such as &quot;1.2.3&quot;</extracomment>
        <translation>Tallyvane %1</translation>
    </message>
    <message>
        <source>Free software under the Apache License 2.0</source>
        <translation>Logiciel libre sous licence Apache 2.0</translation>
    </message>
    <message>
        <source>Figures and history: %1</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Chiffres et historique&#xa0;: %1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>Paramètres&#xa0;: %1</translation>
    </message>
    <message>
        <source>Project page</source>
        <translation>Page du projet</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
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
        <translation>Ctrl+Tab, Ctrl+Pg. suiv</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Maj+Tab, Ctrl+Pg. préc</translation>
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
        <translation>Rien d’enregistré pour l’instant</translation>
    </message>
</context>
<context>
    <name>HostAdvice</name>
    <message>
        <source>GNOME needs the AppIndicator extension: &apos;sudo apt install gnome-shell-extension-appindicator&apos;, log out and in, then &apos;gnome-extensions enable ubuntu-appindicators@ubuntu.com&apos;.</source>
        <translation>GNOME a besoin de l’extension AppIndicator&#xa0;: «&#xa0;sudo apt install gnome-shell-extension-appindicator&#xa0;», fermez puis rouvrez la session, puis «&#xa0;gnome-extensions enable ubuntu-appindicators@ubuntu.com&#xa0;».</translation>
    </message>
    <message>
        <source>Add the Status Tray Plugin to the panel: &apos;xfce4-panel --add=systray&apos;.</source>
        <translation>Ajoutez le greffon de la zone de notification au tableau de bord&#xa0;: «&#xa0;xfce4-panel --add=systray&#xa0;».</translation>
    </message>
    <message>
        <source>Add the widget System Tray to Plasma&apos;s panel: right-click it and choose Add Widgets.</source>
        <translation>Ajoutez le composant graphique «&#xa0;Boîte à miniatures&#xa0;» au tableau de bord de Plasma&#xa0;: faites un clic droit dessus et choisissez «&#xa0;Ajouter des composants graphiques&#xa0;».</translation>
    </message>
    <message>
        <source>Add the applet Notification Area to the panel: right-click it and choose Add to Panel.</source>
        <translation>Ajoutez l’applet «&#xa0;Zone de notification&#xa0;» au tableau de bord&#xa0;: faites un clic droit dessus et choisissez «&#xa0;Ajouter au tableau de bord&#xa0;».</translation>
    </message>
    <message>
        <source>Add the widget Status Notifier to the panel: right-click it and choose Manage Widgets.</source>
        <translation>Ajoutez le widget «&#xa0;Status Notifier&#xa0;» au tableau de bord&#xa0;: faites un clic droit dessus et choisissez «&#xa0;Gérer les widgets&#xa0;».</translation>
    </message>
    <message>
        <source>Add the XApp Status Applet to the panel: &apos;cinnamon-settings applets&apos;.</source>
        <translation>Ajoutez l’applet d’état XApp au tableau de bord&#xa0;: «&#xa0;cinnamon-settings applets&#xa0;».</translation>
    </message>
    <message>
        <source>Start Waybar (&apos;sudo apt install waybar&apos;) with &quot;tray&quot; in one of the module lists of its configuration.</source>
        <translation>Lancez Waybar («&#xa0;sudo apt install waybar&#xa0;») avec &quot;tray&quot; dans l’une des listes de modules de sa configuration.</translation>
    </message>
    <message>
        <source>Add a status area to the panel, often called system tray, that shows StatusNotifier items.</source>
        <translation>Ajoutez au tableau de bord une zone de notification (souvent appelée «&#xa0;system tray&#xa0;») qui affiche les éléments StatusNotifier.</translation>
    </message>
</context>
<context>
    <name>HostNotice</name>
    <message>
        <source>This desktop shows no status icons, so Tallyvane can be seen in this window only.</source>
        <translation>Ce bureau n’affiche pas d’icônes d’état&#xa0;: Tallyvane n’est visible que dans cette fenêtre.</translation>
    </message>
    <message>
        <source>It keeps running when you close the window.</source>
        <translation>Il continue de fonctionner quand vous fermez la fenêtre.</translation>
    </message>
    <message>
        <source>Quit Tallyvane</source>
        <translation>Quitter Tallyvane</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Ne plus afficher</translation>
    </message>
</context>
<context>
    <name>LaunchAtLoginPrompt</name>
    <message>
        <source>Keep quotas up to date?</source>
        <translation>Garder les quotas à jour&#xa0;?</translation>
    </message>
    <message>
        <source>Tallyvane can live in the menu bar and refresh Codex every five minutes after you sign in to your Mac.</source>
        <translation>Tallyvane peut rester dans la zone de notification et actualiser Codex et Claude toutes les cinq minutes dès l’ouverture de session sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Launch Tallyvane at login</source>
        <translation>Lancer Tallyvane à l’ouverture de session</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
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
        <translation>Sem.</translation>
    </message>
    <message>
        <source>%1 resets %2</source>
        <extracomment>%1 is &quot;5H&quot;, %2 a time such as &quot;in 2h 14m&quot;</extracomment>
        <translation>%1 réinit. %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source> (last updated %1)</source>
        <extracomment>%1 is how long ago, such as &quot;20 min ago&quot;</extracomment>
        <translation> (actualisé %1)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 when its quotas run out, such as &quot;5H runs out in 1h 10m&quot;</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>MenuBarQuotaView</name>
    <message>
        <source>Open Tallyvane</source>
        <extracomment>A button that opens the program&apos;s window</extracomment>
        <translation>Ouvrir Tallyvane</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>Read aloud for the button that fetches new figures</extracomment>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>A button that ends the program</extracomment>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Another program is refreshing the same files and did not end within a minute.</source>
        <translation>Un autre programme actualise les mêmes fichiers et n’a pas terminé en une minute.</translation>
    </message>
    <message>
        <source>The session logs could not be counted: %1.</source>
        <translation>Les journaux de session n’ont pas pu être comptés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 does not hold settings, and stays as it is.</source>
        <translation>%1 ne contient pas de paramètres et reste tel quel.</translation>
    </message>
    <message>
        <source>Could not save %1: %2.</source>
        <translation>Impossible d’enregistrer %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>A figure is not a finite number.</source>
        <translation>Un chiffre n’est pas un nombre fini.</translation>
    </message>
    <message>
        <source>Start &apos;claude&apos; in a terminal and sign in.</source>
        <translation>Lancez «&#xa0;claude&#xa0;» dans un terminal et connectez-vous.</translation>
    </message>
    <message>
        <source>Unlock the keyring, for example in &apos;seahorse&apos; (Passwords and Keys) or by logging in with your password.</source>
        <translation>Déverrouillez le trousseau de clés, par exemple dans «&#xa0;seahorse&#xa0;» (Mots de passe et clés) ou en ouvrant la session avec votre mot de passe.</translation>
    </message>
    <message>
        <source>Start &apos;claude&apos; once; it renews its sign-in by itself.</source>
        <translation>Lancez «&#xa0;claude&#xa0;» une fois&#xa0;; il renouvelle sa session tout seul.</translation>
    </message>
    <message>
        <source>Check the network connection; &apos;tallyvane doctor --online&apos; says more.</source>
        <translation>Vérifiez la connexion réseau&#xa0;; «&#xa0;tallyvane doctor --online&#xa0;» en dit plus.</translation>
    </message>
    <message>
        <source>Nothing needs to be done; the next refresh asks again.</source>
        <translation>Il n’y a rien à faire&#xa0;; la prochaine actualisation réessaiera.</translation>
    </message>
    <message>
        <source>Install the Codex CLI, or choose its program in the settings.</source>
        <translation>Installez Codex CLI ou choisissez son programme dans les paramètres.</translation>
    </message>
    <message>
        <source>A Codex CLI was found in another place; it is used once you agree.</source>
        <translation>Codex CLI a été trouvé ailleurs&#xa0;; il sera utilisé une fois que vous aurez accepté.</translation>
    </message>
    <message>
        <source>Choose another program in the settings, or go back to automatic with &apos;tallyvane config unset codex-path&apos;.</source>
        <translation>Choisissez un autre programme dans les paramètres, ou revenez au choix automatique avec «&#xa0;tallyvane config unset codex-path&#xa0;».</translation>
    </message>
    <message>
        <source>Run &apos;codex login&apos; in a terminal.</source>
        <translation>Exécutez «&#xa0;codex login&#xa0;» dans un terminal.</translation>
    </message>
    <message>
        <source>Start &apos;codex&apos; in a terminal to see whether it works there.</source>
        <translation>Lancez «&#xa0;codex&#xa0;» dans un terminal pour voir s’il y fonctionne.</translation>
    </message>
    <message>
        <source>It is asked again within five minutes.</source>
        <translation>Nouvelle tentative d’ici cinq minutes.</translation>
    </message>
    <message>
        <source>It is asked again in about %1 minutes.</source>
        <translation>Nouvelle tentative dans environ %1 minutes.</translation>
    </message>
    <message>
        <source>The Claude service did not accept the sign-in of Claude Code.</source>
        <translation>Le service Claude n’a pas accepté la session de Claude Code.</translation>
    </message>
    <message>
        <source>Sign-in expired</source>
        <translation>Session expirée</translation>
    </message>
    <message>
        <source>The Claude service answered with status %1.</source>
        <translation>Le service Claude a répondu avec le statut %1.</translation>
    </message>
    <message>
        <source>No sign-in of Claude Code was found.</source>
        <translation>Aucune session de Claude Code n’a été trouvée.</translation>
    </message>
    <message>
        <source>No file with a sign-in of Claude Code was found, and the keyring could not be asked: %1.</source>
        <translation>Aucun fichier contenant une session de Claude Code n’a été trouvé, et le trousseau de clés n’a pas pu être interrogé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Keychain auth</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>The sign-in of Claude Code has expired.</source>
        <translation>La session de Claude Code a expiré.</translation>
    </message>
    <message>
        <source>The Claude service was asked too many times.</source>
        <translation>Le service Claude a reçu trop de requêtes.</translation>
    </message>
    <message>
        <source>Rate limited</source>
        <translation>Trop de requêtes</translation>
    </message>
    <message>
        <source>The Claude service could not be reached: %1.</source>
        <translation>Le service Claude n’a pas pu être joint&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Network error</source>
        <translation>Erreur réseau</translation>
    </message>
    <message>
        <source>The answer of the Claude service was not understood.</source>
        <translation>La réponse du service Claude n’a pas été comprise.</translation>
    </message>
    <message>
        <source>The reply of the Codex CLI could not be read.</source>
        <translation>La réponse de Codex CLI n’a pas pu être lue.</translation>
    </message>
    <message>
        <source>Could not find %1.</source>
        <translation>Impossible de trouver %1.</translation>
    </message>
    <message>
        <source>Command failed (%1): %2</source>
        <translation>Échec de la commande (%1)&#xa0;: %2</translation>
    </message>
    <message>
        <source>Command timed out.</source>
        <translation>La commande a dépassé le délai imparti.</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>il est verrouillé</translation>
    </message>
    <message>
        <source>it did not answer in time</source>
        <translation>il n’a pas répondu à temps</translation>
    </message>
    <message>
        <source>it took too long to answer</source>
        <translation>il a mis trop de temps à répondre</translation>
    </message>
    <message>
        <source>the desktop&apos;s settings ask for a kind of proxy that is not supported</source>
        <translation>les paramètres du bureau demandent un type de proxy non pris en charge</translation>
    </message>
    <message>
        <source>Could not remove %1: %2.</source>
        <translation>Impossible de supprimer %1 : %2.</translation>
    </message>
    <message>
        <source>Codex returned an unknown error.</source>
        <translation>Codex a signalé une erreur inconnue.</translation>
    </message>
    <message>
        <source>Not an absolute path: %1</source>
        <translation>Chemin non absolu : %1</translation>
    </message>
    <message>
        <source>Not an executable file: %1</source>
        <translation>Fichier non exécutable : %1</translation>
    </message>
</context>
<context>
    <name>Notification</name>
    <message>
        <source>The windows could not be loaded: %1</source>
        <translation>Les fenêtres n’ont pas pu être chargées&#xa0;: %1</translation>
    </message>
    <message>
        <source>您的 %1 token 已经重置了。</source>
        <translation>Votre quota %1 a été réinitialisé.</translation>
    </message>
    <message>
        <source>Open Tallyvane</source>
        <translation>Ouvrir Tallyvane</translation>
    </message>
    <message>
        <source>%1: %2 % of the five-hour quota left</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 the percentage</extracomment>
        <translation>%1 : il reste %2 % du quota de cinq heures</translation>
    </message>
    <message>
        <source>%1: %2 % of the weekly quota left</source>
        <translation>%1 : il reste %2 % du quota hebdomadaire</translation>
    </message>
    <message>
        <source>%1: the five-hour quota runs out at %2, before the reset</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 a time such as &quot;16:40&quot; or &quot;Tue 16:40&quot;</extracomment>
        <translation>%1 : le quota de cinq heures sera épuisé avant la réinitialisation (%2)</translation>
    </message>
    <message>
        <source>%1: the weekly quota runs out at %2, before the reset</source>
        <translation>%1 : le quota hebdomadaire sera épuisé avant la réinitialisation (%2)</translation>
    </message>
</context>
<context>
    <name>ProviderCard</name>
    <message>
        <source>From %1</source>
        <extracomment>%1 is how long ago the figures were fetched, such as &quot;2 hr ago&quot;</extracomment>
        <translation>Relevé %1</translation>
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
            <numerusform>%n&#xa0;jour</numerusform>
            <numerusform>%n&#xa0;jours</numerusform>
        </translation>
    </message>
    <message>
        <source>At this pace it runs out at %1, %2 before the reset</source>
        <translation>À ce rythme, épuisé trop tôt (%1, %2 avant la réinitialisation)</translation>
    </message>
    <message>
        <source>At this pace it lasts until the reset</source>
        <translation>À ce rythme, il suffit jusqu’à la réinitialisation</translation>
    </message>
    <message>
        <source>At the pace of the last hour it runs out at %1, %2 before the reset</source>
        <translation>Au rythme de la dernière heure, épuisé trop tôt (%1, %2 avant la réinitialisation)</translation>
    </message>
    <message>
        <source>At the pace of the last day it runs out at %1, %2 before the reset</source>
        <translation>Au rythme de la dernière journée, épuisé trop tôt (%1, %2 avant la réinitialisation)</translation>
    </message>
    <message>
        <source>At the pace of the last hour it lasts until the reset</source>
        <translation>Au rythme de la dernière heure, il suffit jusqu’à la réinitialisation</translation>
    </message>
    <message>
        <source>At the pace of the last day it lasts until the reset</source>
        <translation>Au rythme de la dernière journée, il suffit jusqu’à la réinitialisation</translation>
    </message>
</context>
<context>
    <name>ProviderCardHeader</name>
    <message>
        <source>Sync pending</source>
        <extracomment>Read aloud for the symbol that marks outdated figures</extracomment>
        <translation>Sync. en attente</translation>
    </message>
</context>
<context>
    <name>ProviderQuotaCard</name>
    <message>
        <source>%1: %2, %3</source>
        <extracomment>A quota window, the percentage left of it, and when it resets</extracomment>
        <translation>%1&#xa0;: %2, %3</translation>
    </message>
    <message>
        <source>5h</source>
        <translation>5h</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Sem.</translation>
    </message>
    <message>
        <source>Open %1 usage details</source>
        <extracomment>%1 is an assistant&apos;s name</extracomment>
        <translation>Ouvrir les détails d’utilisation de %1</translation>
    </message>
</context>
<context>
    <name>Quota</name>
    <message>
        <source>Sync pending</source>
        <translation>Sync. en attente</translation>
    </message>
    <message>
        <source>5H %1%  ·  WK %2%</source>
        <extracomment>What is left in the five-hour window and in the week, as short as possible</extracomment>
        <translation>5h %L1&#xa0;%  ·  Sem. %L2&#xa0;%</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage</extracomment>
        <translation>%L1&#xa0;%</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 its figures</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Indisponible</translation>
    </message>
    <message>
        <source>Reset unknown</source>
        <translation>Réinit. inconnue</translation>
    </message>
    <message>
        <source>in %1d %2h</source>
        <extracomment>Days and hours, as short as possible</extracomment>
        <translation>dans %1&#xa0;j %2&#xa0;h</translation>
    </message>
    <message>
        <source>in %1h %2m</source>
        <translation>dans %1&#xa0;h %2&#xa0;min</translation>
    </message>
    <message>
        <source>in %1m</source>
        <translation>dans %1&#xa0;min</translation>
    </message>
    <message>
        <source>never</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>à l’instant</translation>
    </message>
    <message numerus="yes">
        <source>%n min ago</source>
        <translation>
            <numerusform>il y a %n&#xa0;min</numerusform>
            <numerusform>il y a %n&#xa0;min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr ago</source>
        <translation>
            <numerusform>il y a %n&#xa0;h</numerusform>
            <numerusform>il y a %n&#xa0;h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n d ago</source>
        <translation>
            <numerusform>il y a %n&#xa0;jour</numerusform>
            <numerusform>il y a %n&#xa0;jours</numerusform>
        </translation>
    </message>
    <message>
        <source>5H</source>
        <extracomment>The five-hour window and the weekly one, as short as possible</extracomment>
        <translation>5h</translation>
    </message>
    <message>
        <source>WK</source>
        <translation>Sem.</translation>
    </message>
    <message>
        <source>%1 runs out %2</source>
        <extracomment>%1 is &quot;5H&quot;, %2 a time such as &quot;in 2h 14m&quot;</extracomment>
        <translation>%1 épuisé %2</translation>
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
        <translation>Actualisé</translation>
    </message>
    <message>
        <source>Refreshing</source>
        <translation>Actualisation en cours</translation>
    </message>
</context>
<context>
    <name>SettingsContent</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Color scheme</source>
        <translation>Jeu de couleurs</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Background refresh</source>
        <translation>Actualisation en arrière-plan</translation>
    </message>
    <message>
        <source>Launch menu bar app at login</source>
        <translation>Lancer dans la zone de notification à l’ouverture de session</translation>
    </message>
    <message>
        <source>The menu bar app refreshes Codex and Claude every five minutes. Claude usage is read from Claude Code&apos;s stored sign-in; macOS asks once for Keychain access.</source>
        <translation>Dans la zone de notification, Tallyvane actualise Codex et Claude toutes les cinq minutes. L’utilisation de Claude est lue avec la session enregistrée de Claude Code. Le déverrouillage du trousseau de clés n’est jamais demandé.</translation>
    </message>
    <message>
        <source>Codex program</source>
        <translation>Programme Codex</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Reset notifications</source>
        <translation>Notifications de réinitialisation</translation>
    </message>
    <message>
        <source>Notify when a quota resets</source>
        <translation>Notifier quand un quota est réinitialisé</translation>
    </message>
    <message>
        <source>Sends a desktop alert when Codex or Claude&apos;s quota resets during an enabled window. Requires the menu bar app to be running.</source>
        <translation>Affiche une notification quand le quota de Codex ou de Claude est réinitialisé pendant une plage horaire active. Tallyvane doit être en cours d’exécution dans la zone de notification.</translation>
    </message>
    <message>
        <source>Notifications are turned off in System Settings</source>
        <translation>Les notifications sont désactivées dans les paramètres du système</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Ouvrir les paramètres</translation>
    </message>
    <message>
        <source>Add time window</source>
        <translation>Ajouter une plage horaire</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Confidentialité</translation>
    </message>
    <message>
        <source>All history stays on this Mac</source>
        <translation>Tout l’historique reste sur cet ordinateur</translation>
    </message>
    <message>
        <source>No analytics, cloud database, remote logging, prompts, responses, file paths, emails, credentials, or account identifiers are collected.</source>
        <translation>Pas d’outil d’analyse, de base de données dans le cloud ni de journalisation à distance&#xa0;; aucun prompt, aucune réponse, aucun chemin de fichier, aucun e-mail, aucun identifiant de connexion ou de compte n’est collecté.</translation>
    </message>
    <message>
        <source>Clear usage history</source>
        <translation>Effacer l’historique d’utilisation</translation>
    </message>
    <message>
        <source>Assistants shown</source>
        <translation>Assistants affichés</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Les deux</translation>
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
        <translation>Un assistant masqué n’est pas interrogé, et son historique est conservé. Il y en a toujours un d’affiché.</translation>
    </message>
    <message>
        <source>Low quota</source>
        <translation>Quota faible</translation>
    </message>
    <message>
        <source>Notify when a quota runs low</source>
        <translation>Notifier quand un quota devient faible</translation>
    </message>
    <message>
        <source>Sends a desktop alert when 25 % and 10 % of a quota are left, and when it is going to run out before its reset. The time windows above apply. Requires the menu bar app to be running.</source>
        <translation>Affiche une notification quand il reste 25 % puis 10 % d’un quota, et quand il sera épuisé avant sa réinitialisation. Les plages horaires ci-dessus s’appliquent. Tallyvane doit être en cours d’exécution dans la zone de notification.</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Working</source>
        <extracomment>Read aloud for the busy indicator</extracomment>
        <translation>Veuillez patienter</translation>
    </message>
</context>
<context>
    <name>TimeWindowRow</name>
    <message>
        <source>All day</source>
        <translation>Toute la journée</translation>
    </message>
    <message>
        <source>Start time</source>
        <extracomment>Read aloud for the field</extracomment>
        <translation>Heure de début</translation>
    </message>
    <message>
        <source>End time</source>
        <extracomment>Read aloud for the field</extracomment>
        <translation>Heure de fin</translation>
    </message>
    <message>
        <source>Remove time window</source>
        <extracomment>Read aloud for the button</extracomment>
        <translation>Supprimer la plage horaire</translation>
    </message>
    <message>
        <source>Turn on</source>
        <translation>Activer</translation>
    </message>
</context>
<context>
    <name>UsageHeatmapView</name>
    <message>
        <source>Token Heatmap</source>
        <translation>Carte de chaleur des tokens</translation>
    </message>
    <message>
        <source>Estimated tokens per day</source>
        <translation>Tokens estimés par jour</translation>
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
        <translation>Moins</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
</context>
<context>
    <name>UsageHistoryView</name>
    <message>
        <source>Usage History</source>
        <translation>Historique d’utilisation</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Mesure</translation>
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
        <translation>Période</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Par jour</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Par mois</translation>
    </message>
    <message>
        <source>Estimated result. Rolling resets, usage between syncs, and provider-side adjustments can affect accuracy. Local token totals are derived from numeric usage fields only; prompts and responses are never stored.</source>
        <translation>Résultat estimé. Les réinitialisations glissantes, l’utilisation entre deux actualisations et les ajustements des fournisseurs peuvent nuire à la précision. Les totaux locaux de tokens proviennent uniquement de champs numériques d’utilisation&#xa0;; les prompts et les réponses ne sont jamais enregistrés.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the daily figures as a table</source>
        <translation>Copier les chiffres quotidiens sous forme de tableau</translation>
    </message>
</context>
<context>
    <name>tallyvane::app::StatusArea</name>
    <message>
        <source>Open Tallyvane</source>
        <translation>Ouvrir Tallyvane</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::DashboardModel</name>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is how long ago, such as &quot;5 min ago&quot;</extracomment>
        <translation>Actualisé&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::HeatmapModel</name>
    <message>
        <source>%1: %2 tokens</source>
        <extracomment>%1 is a day, %2 a number such as &quot;12K&quot;</extracomment>
        <translation>%1&#xa0;: %2 tokens</translation>
    </message>
    <message>
        <source>%1: No record</source>
        <extracomment>%1 is a day</extracomment>
        <translation>%1&#xa0;: Aucune donnée</translation>
    </message>
    <message numerus="yes">
        <source>(the history covers %n days)</source>
        <extracomment>Follows &quot;No record&quot;</extracomment>
        <translation>
            <numerusform>(l’historique couvre %n jour)</numerusform>
            <numerusform>(l’historique couvre %n jours)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::HistoryModel</name>
    <message>
        <source>% of quota used</source>
        <translation>% du quota utilisé</translation>
    </message>
    <message>
        <source>Estimated tokens used</source>
        <translation>Tokens utilisés (estimation)</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage</extracomment>
        <translation>%L1&#xa0;%</translation>
    </message>
    <message>
        <source>Shares of two weekly quotas, added up</source>
        <translation>Parts de deux quotas hebdomadaires, additionnées</translation>
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
        <translation>Actualisé %1</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::SettingsModel</name>
    <message>
        <source>In use: %1, found by Tallyvane.</source>
        <extracomment>%1 is a program&apos;s path</extracomment>
        <translation>Utilisé&#xa0;: %1, trouvé par Tallyvane.</translation>
    </message>
    <message>
        <source>In use: %1, chosen by you.</source>
        <translation>Utilisé&#xa0;: %1, choisi par vous.</translation>
    </message>
    <message>
        <source>No notification can come: there is no time window.</source>
        <translation>Aucune notification ne peut arriver&#xa0;: il n’y a pas de plage horaire.</translation>
    </message>
    <message>
        <source>No notification can come: no time window allows any.</source>
        <translation>Aucune notification ne peut arriver&#xa0;: aucune plage horaire n’en autorise.</translation>
    </message>
    <message>
        <source>Usage history cleared.</source>
        <translation>Historique d’utilisation effacé.</translation>
    </message>
    <message>
        <source>This window is off; no notification comes in it.</source>
        <translation>Cette plage est désactivée&#xa0;; aucune notification n’y arrive.</translation>
    </message>
    <message>
        <source>No time lies between this start and end.</source>
        <translation>Il n’y a aucun temps entre ce début et cette fin.</translation>
    </message>
</context>
</TS>
