<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Usage History</source>
        <translation>Historial de uso</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Keyboard shortcuts and About</source>
        <translation>Atajos de teclado y Acerca de</translation>
    </message>
</context>
<context>
    <name>DashboardContent</name>
    <message>
        <source>Dashboard</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Auto-refreshes every 5 min</source>
        <translation>Actualización automática cada 5&#xa0;min</translation>
    </message>
    <message>
        <source>· Auto-refreshes every 5 min</source>
        <extracomment>Follows &quot;Updated 5 min ago&quot; and a space</extracomment>
        <translation>· Actualización automática cada 5&#xa0;min</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Use %1</source>
        <extracomment>%1 is a program&apos;s path</extracomment>
        <translation>Usar %1</translation>
    </message>
    <message>
        <source>Bars and percentages show what is left of each quota.</source>
        <translation>Las barras y los porcentajes muestran lo que queda de cada cuota.</translation>
    </message>
</context>
<context>
    <name>ErrorNotice</name>
    <message>
        <source>Show less</source>
        <translation>Mostrar menos</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar todo</translation>
    </message>
</context>
<context>
    <name>HelpSheet</name>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Dashboard, Usage History, Settings</source>
        <translation>Resumen, Historial de uso, Configuración</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Teclas de flecha</translation>
    </message>
    <message>
        <source>Select a bar, a day or a choice; scroll</source>
        <translation>Seleccionar una barra, un día o una opción; desplazarse</translation>
    </message>
    <message>
        <source>Show or hide this list</source>
        <translation>Mostrar u ocultar esta lista</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>Quit Tallyvane</source>
        <translation>Salir de Tallyvane</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Tallyvane %1</source>
        <extracomment>%1 is a version such as &quot;1.2.3&quot;</extracomment>
        <translation>Tallyvane %1</translation>
    </message>
    <message>
        <source>Free software under the Apache License 2.0</source>
        <translation>Software libre bajo la licencia Apache 2.0</translation>
    </message>
    <message>
        <source>Figures and history: %1</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Cifras e historial: %1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>Configuración: %1</translation>
    </message>
    <message>
        <source>Project page</source>
        <translation>Página del proyecto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
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
        <translation>Ctrl+Tab, Ctrl+Av Pág</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Mayús+Tab, Ctrl+Re Pág</translation>
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
        <translation>Aún no hay nada registrado</translation>
    </message>
</context>
<context>
    <name>HostAdvice</name>
    <message>
        <source>GNOME needs the AppIndicator extension: &apos;sudo apt install gnome-shell-extension-appindicator&apos;, log out and in, then &apos;gnome-extensions enable ubuntu-appindicators@ubuntu.com&apos;.</source>
        <translation>GNOME necesita la extensión AppIndicator: «sudo apt install gnome-shell-extension-appindicator», cerrar la sesión y volver a iniciarla; después, «gnome-extensions enable ubuntu-appindicators@ubuntu.com».</translation>
    </message>
    <message>
        <source>Add the Status Tray Plugin to the panel: &apos;xfce4-panel --add=systray&apos;.</source>
        <translation>Añadir al panel el complemento del área de estado: «xfce4-panel --add=systray».</translation>
    </message>
    <message>
        <source>Add the widget System Tray to Plasma&apos;s panel: right-click it and choose Add Widgets.</source>
        <translation>Añadir el elemento gráfico «Bandeja del sistema» al panel de Plasma: pulsar en él con el botón derecho y elegir «Añadir elementos gráficos».</translation>
    </message>
    <message>
        <source>Add the applet Notification Area to the panel: right-click it and choose Add to Panel.</source>
        <translation>Añadir la miniaplicación «Área de notificación» al panel: pulsar en él con el botón derecho y elegir «Añadir al panel».</translation>
    </message>
    <message>
        <source>Add the widget Status Notifier to the panel: right-click it and choose Manage Widgets.</source>
        <translation>Añadir el widget «Status Notifier» al panel: pulsar en él con el botón derecho y elegir «Gestionar widgets».</translation>
    </message>
    <message>
        <source>Add the XApp Status Applet to the panel: &apos;cinnamon-settings applets&apos;.</source>
        <translation>Añadir la miniaplicación de estado XApp al panel: «cinnamon-settings applets».</translation>
    </message>
    <message>
        <source>Start Waybar (&apos;sudo apt install waybar&apos;) with &quot;tray&quot; in one of the module lists of its configuration.</source>
        <translation>Iniciar Waybar («sudo apt install waybar») con &quot;tray&quot; en una de las listas de módulos de su configuración.</translation>
    </message>
    <message>
        <source>Add a status area to the panel, often called system tray, that shows StatusNotifier items.</source>
        <translation>Añadir al panel un área de estado (a menudo llamada «bandeja del sistema») que muestre elementos StatusNotifier.</translation>
    </message>
</context>
<context>
    <name>HostNotice</name>
    <message>
        <source>This desktop shows no status icons, so Tallyvane can be seen in this window only.</source>
        <translation>Este escritorio no muestra iconos de estado, por lo que Tallyvane solo se ve en esta ventana.</translation>
    </message>
    <message>
        <source>It keeps running when you close the window.</source>
        <translation>Sigue en ejecución al cerrar la ventana.</translation>
    </message>
    <message>
        <source>Quit Tallyvane</source>
        <translation>Salir de Tallyvane</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>No volver a mostrar</translation>
    </message>
</context>
<context>
    <name>LaunchAtLoginPrompt</name>
    <message>
        <source>Keep quotas up to date?</source>
        <translation>¿Mantener las cuotas al día?</translation>
    </message>
    <message>
        <source>Tallyvane can live in the menu bar and refresh Codex every five minutes after you sign in to your Mac.</source>
        <translation>Tallyvane puede permanecer en el área de estado y actualizar Codex y Claude cada cinco minutos tras iniciar sesión en este equipo.</translation>
    </message>
    <message>
        <source>Launch Tallyvane at login</source>
        <translation>Iniciar Tallyvane al iniciar sesión</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
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
        <translation>%1: reinicio %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source> (last updated %1)</source>
        <extracomment>%1 is how long ago, such as &quot;20 min ago&quot;</extracomment>
        <translation> (actualizado %1)</translation>
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
        <translation>Abrir Tallyvane</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>Read aloud for the button that fetches new figures</extracomment>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>A button that ends the program</extracomment>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Another program is refreshing the same files and did not end within a minute.</source>
        <translation>Otro programa está actualizando los mismos archivos y no ha terminado en un minuto.</translation>
    </message>
    <message>
        <source>The session logs could not be counted: %1.</source>
        <translation>No se han podido contar los registros de sesión: %1.</translation>
    </message>
    <message>
        <source>%1 does not hold settings, and stays as it is.</source>
        <translation>%1 no contiene ninguna configuración y se deja como está.</translation>
    </message>
    <message>
        <source>Could not save %1: %2.</source>
        <translation>No se ha podido guardar %1: %2.</translation>
    </message>
    <message>
        <source>A figure is not a finite number.</source>
        <translation>Una cifra no es un número finito.</translation>
    </message>
    <message>
        <source>Start &apos;claude&apos; in a terminal and sign in.</source>
        <translation>Ejecutar «claude» en una terminal e iniciar sesión.</translation>
    </message>
    <message>
        <source>Unlock the keyring, for example in &apos;seahorse&apos; (Passwords and Keys) or by logging in with your password.</source>
        <translation>Desbloquear el depósito de claves, por ejemplo en «seahorse» (Contraseñas y claves) o iniciando sesión con contraseña.</translation>
    </message>
    <message>
        <source>Start &apos;claude&apos; once; it renews its sign-in by itself.</source>
        <translation>Ejecutar «claude» una vez; renueva su sesión por sí solo.</translation>
    </message>
    <message>
        <source>Check the network connection; &apos;tallyvane doctor --online&apos; says more.</source>
        <translation>Comprobar la conexión de red; «tallyvane doctor --online» da más detalles.</translation>
    </message>
    <message>
        <source>Nothing needs to be done; the next refresh asks again.</source>
        <translation>No hay que hacer nada; la próxima actualización volverá a preguntar.</translation>
    </message>
    <message>
        <source>Install the Codex CLI, or choose its program in the settings.</source>
        <translation>Instalar Codex CLI o elegir su programa en la configuración.</translation>
    </message>
    <message>
        <source>A Codex CLI was found in another place; it is used once you agree.</source>
        <translation>Se ha encontrado Codex CLI en otro lugar; se usará cuando se acepte.</translation>
    </message>
    <message>
        <source>Choose another program in the settings, or go back to automatic with &apos;tallyvane config unset codex-path&apos;.</source>
        <translation>Elegir otro programa en la configuración o volver al modo automático con «tallyvane config unset codex-path».</translation>
    </message>
    <message>
        <source>Run &apos;codex login&apos; in a terminal.</source>
        <translation>Ejecutar «codex login» en una terminal.</translation>
    </message>
    <message>
        <source>Start &apos;codex&apos; in a terminal to see whether it works there.</source>
        <translation>Ejecutar «codex» en una terminal para ver si ahí funciona.</translation>
    </message>
    <message>
        <source>It is asked again within five minutes.</source>
        <translation>Se le volverá a preguntar en menos de cinco minutos.</translation>
    </message>
    <message>
        <source>It is asked again in about %1 minutes.</source>
        <translation>Se le volverá a preguntar en unos %1 minutos.</translation>
    </message>
    <message>
        <source>The Claude service did not accept the sign-in of Claude Code.</source>
        <translation>El servicio de Claude no ha aceptado la sesión de Claude Code.</translation>
    </message>
    <message>
        <source>Sign-in expired</source>
        <translation>Sesión caducada</translation>
    </message>
    <message>
        <source>The Claude service answered with status %1.</source>
        <translation>El servicio de Claude ha respondido con el estado %1.</translation>
    </message>
    <message>
        <source>No sign-in of Claude Code was found.</source>
        <translation>No se ha encontrado ninguna sesión de Claude Code.</translation>
    </message>
    <message>
        <source>No file with a sign-in of Claude Code was found, and the keyring could not be asked: %1.</source>
        <translation>No se ha encontrado ningún archivo con una sesión de Claude Code y no se ha podido consultar el depósito de claves: %1.</translation>
    </message>
    <message>
        <source>Keychain auth</source>
        <translation>Sin sesión</translation>
    </message>
    <message>
        <source>The sign-in of Claude Code has expired.</source>
        <translation>La sesión de Claude Code ha caducado.</translation>
    </message>
    <message>
        <source>The Claude service was asked too many times.</source>
        <translation>Se ha preguntado demasiadas veces al servicio de Claude.</translation>
    </message>
    <message>
        <source>Rate limited</source>
        <translation>Acceso limitado</translation>
    </message>
    <message>
        <source>The Claude service could not be reached: %1.</source>
        <translation>No se ha podido contactar con el servicio de Claude: %1.</translation>
    </message>
    <message>
        <source>Network error</source>
        <translation>Error de red</translation>
    </message>
    <message>
        <source>The answer of the Claude service was not understood.</source>
        <translation>No se ha entendido la respuesta del servicio de Claude.</translation>
    </message>
    <message>
        <source>The reply of the Codex CLI could not be read.</source>
        <translation>No se ha podido leer la respuesta de Codex CLI.</translation>
    </message>
    <message>
        <source>Could not find %1.</source>
        <translation>No se ha encontrado %1.</translation>
    </message>
    <message>
        <source>Command failed (%1): %2</source>
        <translation>El comando ha fallado (%1): %2</translation>
    </message>
    <message>
        <source>Command timed out.</source>
        <translation>El comando ha agotado el tiempo de espera.</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>está bloqueado</translation>
    </message>
    <message>
        <source>it did not answer in time</source>
        <translation>no ha respondido a tiempo</translation>
    </message>
    <message>
        <source>it took too long to answer</source>
        <translation>ha tardado demasiado en responder</translation>
    </message>
    <message>
        <source>the desktop&apos;s settings ask for a kind of proxy that is not supported</source>
        <translation>la configuración del escritorio pide un tipo de proxy no admitido</translation>
    </message>
    <message>
        <source>Could not remove %1: %2.</source>
        <translation>No se ha podido eliminar %1: %2.</translation>
    </message>
    <message>
        <source>Codex returned an unknown error.</source>
        <translation>Codex ha devuelto un error desconocido.</translation>
    </message>
    <message>
        <source>Not an absolute path: %1</source>
        <translation>No es una ruta absoluta: %1</translation>
    </message>
    <message>
        <source>Not an executable file: %1</source>
        <translation>No es un archivo ejecutable: %1</translation>
    </message>
</context>
<context>
    <name>Notification</name>
    <message>
        <source>The windows could not be loaded: %1</source>
        <translation>No se han podido cargar las ventanas: %1</translation>
    </message>
    <message>
        <source>您的 %1 token 已经重置了。</source>
        <translation>La cuota de %1 se ha reiniciado.</translation>
    </message>
    <message>
        <source>Open Tallyvane</source>
        <translation>Abrir Tallyvane</translation>
    </message>
    <message>
        <source>%1: %2 % of the five-hour quota left</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 the percentage</extracomment>
        <translation>%1: queda el %2 % de la cuota de cinco horas</translation>
    </message>
    <message>
        <source>%1: %2 % of the weekly quota left</source>
        <translation>%1: queda el %2 % de la cuota semanal</translation>
    </message>
    <message>
        <source>%1: the five-hour quota runs out at %2, before the reset</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 a time such as &quot;16:40&quot; or &quot;Tue 16:40&quot;</extracomment>
        <translation>%1: la cuota de cinco horas se agota antes del reinicio (%2)</translation>
    </message>
    <message>
        <source>%1: the weekly quota runs out at %2, before the reset</source>
        <translation>%1: la cuota semanal se agota antes del reinicio (%2)</translation>
    </message>
</context>
<context>
    <name>ProviderCard</name>
    <message>
        <source>From %1</source>
        <extracomment>%1 is how long ago the figures were fetched, such as &quot;2 hr ago&quot;</extracomment>
        <translation>Datos de %1</translation>
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
            <numerusform>%n&#xa0;día</numerusform>
            <numerusform>%n&#xa0;días</numerusform>
        </translation>
    </message>
    <message>
        <source>At this pace it runs out at %1, %2 before the reset</source>
        <translation>A este ritmo se agota antes (%1, %2 antes del reinicio)</translation>
    </message>
    <message>
        <source>At this pace it lasts until the reset</source>
        <translation>A este ritmo alcanza hasta el reinicio</translation>
    </message>
    <message>
        <source>At the pace of the last hour it runs out at %1, %2 before the reset</source>
        <translation>Al ritmo de la última hora se agota antes (%1, %2 antes del reinicio)</translation>
    </message>
    <message>
        <source>At the pace of the last day it runs out at %1, %2 before the reset</source>
        <translation>Al ritmo del último día se agota antes (%1, %2 antes del reinicio)</translation>
    </message>
    <message>
        <source>At the pace of the last hour it lasts until the reset</source>
        <translation>Al ritmo de la última hora alcanza hasta el reinicio</translation>
    </message>
    <message>
        <source>At the pace of the last day it lasts until the reset</source>
        <translation>Al ritmo del último día alcanza hasta el reinicio</translation>
    </message>
</context>
<context>
    <name>ProviderCardHeader</name>
    <message>
        <source>Sync pending</source>
        <extracomment>Read aloud for the symbol that marks outdated figures</extracomment>
        <translation>Sin sincronizar</translation>
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
        <translation>Sem.</translation>
    </message>
    <message>
        <source>Open %1 usage details</source>
        <extracomment>%1 is an assistant&apos;s name</extracomment>
        <translation>Abrir los detalles de uso de %1</translation>
    </message>
</context>
<context>
    <name>Quota</name>
    <message>
        <source>Sync pending</source>
        <translation>Sin sincronizar</translation>
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
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>Reset unknown</source>
        <translation>Hora desconocida</translation>
    </message>
    <message>
        <source>in %1d %2h</source>
        <extracomment>Days and hours, as short as possible</extracomment>
        <translation>en %1&#xa0;d %2&#xa0;h</translation>
    </message>
    <message>
        <source>in %1h %2m</source>
        <translation>en %1&#xa0;h %2&#xa0;min</translation>
    </message>
    <message>
        <source>in %1m</source>
        <translation>en %1&#xa0;min</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>ahora mismo</translation>
    </message>
    <message numerus="yes">
        <source>%n min ago</source>
        <translation>
            <numerusform>hace %n&#xa0;min</numerusform>
            <numerusform>hace %n&#xa0;min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr ago</source>
        <translation>
            <numerusform>hace %n&#xa0;h</numerusform>
            <numerusform>hace %n&#xa0;h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n d ago</source>
        <translation>
            <numerusform>hace %n&#xa0;día</numerusform>
            <numerusform>hace %n&#xa0;días</numerusform>
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
        <translation>%1: se agota %2</translation>
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
        <translation>Actualizado</translation>
    </message>
    <message>
        <source>Refreshing</source>
        <translation>Actualizando</translation>
    </message>
</context>
<context>
    <name>SettingsContent</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Color scheme</source>
        <translation>Esquema de colores</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Background refresh</source>
        <translation>Actualización en segundo plano</translation>
    </message>
    <message>
        <source>Launch menu bar app at login</source>
        <translation>Iniciar en el área de estado al iniciar sesión</translation>
    </message>
    <message>
        <source>The menu bar app refreshes Codex and Claude every five minutes. Claude usage is read from Claude Code&apos;s stored sign-in; macOS asks once for Keychain access.</source>
        <translation>En el área de estado, Tallyvane actualiza Codex y Claude cada cinco minutos. El uso de Claude se consulta con la sesión guardada de Claude Code. Nunca se pide desbloquear el depósito de claves.</translation>
    </message>
    <message>
        <source>Codex program</source>
        <translation>Programa de Codex</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Reset notifications</source>
        <translation>Notificaciones de reinicio</translation>
    </message>
    <message>
        <source>Notify when a quota resets</source>
        <translation>Notificar cuando se reinicie una cuota</translation>
    </message>
    <message>
        <source>Sends a desktop alert when Codex or Claude&apos;s quota resets during an enabled window. Requires the menu bar app to be running.</source>
        <translation>Muestra una notificación cuando la cuota de Codex o de Claude se reinicia durante una franja horaria activa. Tallyvane debe estar en ejecución en el área de estado.</translation>
    </message>
    <message>
        <source>Notifications are turned off in System Settings</source>
        <translation>Las notificaciones están desactivadas en la configuración del sistema</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir la configuración</translation>
    </message>
    <message>
        <source>Add time window</source>
        <translation>Añadir franja horaria</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacidad</translation>
    </message>
    <message>
        <source>All history stays on this Mac</source>
        <translation>Todo el historial permanece en este equipo</translation>
    </message>
    <message>
        <source>No analytics, cloud database, remote logging, prompts, responses, file paths, emails, credentials, or account identifiers are collected.</source>
        <translation>No hay analíticas, base de datos en la nube ni registro remoto; no se recopilan prompts, respuestas, rutas de archivos, correos electrónicos, credenciales ni identificadores de cuenta.</translation>
    </message>
    <message>
        <source>Clear usage history</source>
        <translation>Borrar el historial de uso</translation>
    </message>
    <message>
        <source>Assistants shown</source>
        <translation>Asistentes mostrados</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Ambos</translation>
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
        <translation>A un asistente oculto no se le piden datos y su historial se conserva. Siempre se muestra uno.</translation>
    </message>
    <message>
        <source>Low quota</source>
        <translation>Cuota baja</translation>
    </message>
    <message>
        <source>Notify when a quota runs low</source>
        <translation>Notificar cuando quede poco de una cuota</translation>
    </message>
    <message>
        <source>Sends a desktop alert when 25 % and 10 % of a quota are left, and when it is going to run out before its reset. The time windows above apply. Requires the menu bar app to be running.</source>
        <translation>Muestra una notificación cuando queda el 25 % y el 10 % de una cuota, y cuando va a agotarse antes de su reinicio. Se aplican las franjas horarias de arriba. Tallyvane debe estar en ejecución en el área de estado.</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Working</source>
        <extracomment>Read aloud for the busy indicator</extracomment>
        <translation>En curso</translation>
    </message>
</context>
<context>
    <name>TimeWindowRow</name>
    <message>
        <source>All day</source>
        <translation>Todo el día</translation>
    </message>
    <message>
        <source>Start time</source>
        <extracomment>Read aloud for the field</extracomment>
        <translation>Hora de inicio</translation>
    </message>
    <message>
        <source>End time</source>
        <extracomment>Read aloud for the field</extracomment>
        <translation>Hora de fin</translation>
    </message>
    <message>
        <source>Remove time window</source>
        <extracomment>Read aloud for the button</extracomment>
        <translation>Eliminar la franja horaria</translation>
    </message>
    <message>
        <source>Turn on</source>
        <translation>Activar</translation>
    </message>
</context>
<context>
    <name>UsageHeatmapView</name>
    <message>
        <source>Token Heatmap</source>
        <translation>Mapa de calor de tokens</translation>
    </message>
    <message>
        <source>Estimated tokens per day</source>
        <translation>Tokens estimados por día</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
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
        <translation>Menos</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
</context>
<context>
    <name>UsageHistoryView</name>
    <message>
        <source>Usage History</source>
        <translation>Historial de uso</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Medida</translation>
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
        <translation>Período</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Diario</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Mensual</translation>
    </message>
    <message>
        <source>Estimated result. Rolling resets, usage between syncs, and provider-side adjustments can affect accuracy. Local token totals are derived from numeric usage fields only; prompts and responses are never stored.</source>
        <translation>Resultado estimado. Los reinicios continuos, el uso entre actualizaciones y los ajustes de los proveedores pueden afectar a la precisión. Los totales locales de tokens se obtienen solo de campos numéricos de uso; nunca se guardan prompts ni respuestas.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the daily figures as a table</source>
        <translation>Copiar los datos diarios como tabla</translation>
    </message>
</context>
<context>
    <name>tallyvane::app::StatusArea</name>
    <message>
        <source>Open Tallyvane</source>
        <translation>Abrir Tallyvane</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::DashboardModel</name>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is how long ago, such as &quot;5 min ago&quot;</extracomment>
        <translation>Actualizado: %1</translation>
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
        <translation>%1: Sin registro</translation>
    </message>
    <message numerus="yes">
        <source>(the history covers %n days)</source>
        <extracomment>Follows &quot;No record&quot;</extracomment>
        <translation>
            <numerusform>(el historial abarca %n día)</numerusform>
            <numerusform>(el historial abarca %n días)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::HistoryModel</name>
    <message>
        <source>% of quota used</source>
        <translation>% de la cuota usado</translation>
    </message>
    <message>
        <source>Estimated tokens used</source>
        <translation>Tokens usados (estimación)</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage</extracomment>
        <translation>%L1&#xa0;%</translation>
    </message>
    <message>
        <source>Shares of two weekly quotas, added up</source>
        <translation>Partes de dos cuotas semanales, sumadas</translation>
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
        <translation>Actualizado %1</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::SettingsModel</name>
    <message>
        <source>In use: %1, found by Tallyvane.</source>
        <extracomment>%1 is a program&apos;s path</extracomment>
        <translation>En uso: %1, encontrado por Tallyvane.</translation>
    </message>
    <message>
        <source>In use: %1, chosen by you.</source>
        <translation>En uso: %1, elegido manualmente.</translation>
    </message>
    <message>
        <source>No notification can come: there is no time window.</source>
        <translation>No puede llegar ninguna notificación: no hay franjas horarias.</translation>
    </message>
    <message>
        <source>No notification can come: no time window allows any.</source>
        <translation>No puede llegar ninguna notificación: ninguna franja horaria las permite.</translation>
    </message>
    <message>
        <source>Usage history cleared.</source>
        <translation>Historial de uso borrado.</translation>
    </message>
    <message>
        <source>This window is off; no notification comes in it.</source>
        <translation>Esta franja está desactivada; en ella no llega ninguna notificación.</translation>
    </message>
    <message>
        <source>No time lies between this start and end.</source>
        <translation>No hay tiempo entre este inicio y este fin.</translation>
    </message>
</context>
</TS>
