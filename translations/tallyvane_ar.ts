<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AppBarsCardBody</name>
    <message>
        <source>5h</source>
        <extracomment>The five-hour quota window, as short as possible</extracomment>
        <translation>٥ س</translation>
    </message>
    <message>
        <source>Week</source>
        <extracomment>The weekly quota window, as short as possible</extracomment>
        <translation>أسبوع</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Dashboard</source>
        <translation>لوحة المعلومات</translation>
    </message>
    <message>
        <source>Usage History</source>
        <translation>سجل الاستخدام</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Keyboard shortcuts and About</source>
        <translation>اختصارات لوحة المفاتيح وحول البرنامج</translation>
    </message>
</context>
<context>
    <name>DashboardContent</name>
    <message>
        <source>Dashboard</source>
        <translation>لوحة المعلومات</translation>
    </message>
    <message>
        <source>Auto-refreshes every 5 min</source>
        <translation>تحديث تلقائي كل خمس دقائق</translation>
    </message>
    <message>
        <source>· Auto-refreshes every 5 min</source>
        <extracomment>Follows &quot;Updated 5 min ago&quot; and a space</extracomment>
        <translation>· تحديث تلقائي كل خمس دقائق</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>حدّث</translation>
    </message>
    <message>
        <source>Use %1</source>
        <extracomment>%1 is a program&apos;s path</extracomment>
        <translation>استخدم ⁦%1⁩</translation>
    </message>
    <message>
        <source>Bars and percentages show what is left of each quota.</source>
        <translation>تبيّن الأشرطة والنسب المئوية ما تبقّى من كل حصة.</translation>
    </message>
</context>
<context>
    <name>ErrorNotice</name>
    <message>
        <source>Show less</source>
        <translation>اعرض أقل</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>اعرض الكل</translation>
    </message>
</context>
<context>
    <name>HelpSheet</name>
    <message>
        <source>Refresh</source>
        <translation>حدّث</translation>
    </message>
    <message>
        <source>Dashboard, Usage History, Settings</source>
        <translation>لوحة المعلومات، سجل الاستخدام، الإعدادات</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>الصفحة التالية</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>الصفحة السابقة</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>مفاتيح الأسهم</translation>
    </message>
    <message>
        <source>Select a bar, a day or a choice; scroll</source>
        <translation>اختر عمودًا أو يومًا أو خيارًا؛ مرّر</translation>
    </message>
    <message>
        <source>Show or hide this list</source>
        <translation>أظهر هذه القائمة أو أخفها</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>أغلق النافذة</translation>
    </message>
    <message>
        <source>Quit Tallyvane</source>
        <translation>أنهِ Tallyvane</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Tallyvane %1</source>
        <extracomment>%1 is a version such as &quot;1.2.3&quot;</extracomment>
        <translation>Tallyvane %1</translation>
    </message>
    <message>
        <source>Free software under the Apache License 2.0</source>
        <translation>برنامج حر برخصة Apache License 2.0</translation>
    </message>
    <message>
        <source>Figures and history: %1</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>البيانات والسجل: ⁦%1⁩</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>الإعدادات: ⁦%1⁩</translation>
    </message>
    <message>
        <source>Project page</source>
        <translation>صفحة المشروع</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>أغلق</translation>
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
        <translation>لم يُسجَّل شيء بعد</translation>
    </message>
</context>
<context>
    <name>HostAdvice</name>
    <message>
        <source>GNOME needs the AppIndicator extension: &apos;sudo apt install gnome-shell-extension-appindicator&apos;, log out and in, then &apos;gnome-extensions enable ubuntu-appindicators@ubuntu.com&apos;.</source>
        <translation>تحتاج GNOME إلى امتداد AppIndicator: نفّذ «sudo apt install gnome-shell-extension-appindicator»، ثم سجّل الخروج وعاود الدخول، ثم نفّذ «gnome-extensions enable ubuntu-appindicators@ubuntu.com».</translation>
    </message>
    <message>
        <source>Add the Status Tray Plugin to the panel: &apos;xfce4-panel --add=systray&apos;.</source>
        <translation>أضف ملحقة صينية الحالة (Status Tray Plugin) إلى اللوحة: «xfce4-panel --add=systray».</translation>
    </message>
    <message>
        <source>Add the widget System Tray to Plasma&apos;s panel: right-click it and choose Add Widgets.</source>
        <translation>أضف ودجة «صينية النظام» إلى لوحة بلازما: انقر اللوحة بالزر الأيمن ثم اختر «أضف ودجات».</translation>
    </message>
    <message>
        <source>Add the applet Notification Area to the panel: right-click it and choose Add to Panel.</source>
        <translation>أضف بريمج «منطقة التنبيه» (Notification Area) إلى اللوحة: انقرها بالزر الأيمن ثم اختر «أضف إلى اللوحة».</translation>
    </message>
    <message>
        <source>Add the widget Status Notifier to the panel: right-click it and choose Manage Widgets.</source>
        <translation>أضف ودجة Status Notifier إلى اللوحة: انقرها بالزر الأيمن ثم اختر «أدر الودجات» (Manage Widgets).</translation>
    </message>
    <message>
        <source>Add the XApp Status Applet to the panel: &apos;cinnamon-settings applets&apos;.</source>
        <translation>أضف بريمج الحالة XApp Status Applet إلى اللوحة: «cinnamon-settings applets».</translation>
    </message>
    <message>
        <source>Start Waybar (&apos;sudo apt install waybar&apos;) with &quot;tray&quot; in one of the module lists of its configuration.</source>
        <translation>شغّل Waybar («sudo apt install waybar») مع وضع &quot;tray&quot; في إحدى قوائم الوحدات في إعداداته.</translation>
    </message>
    <message>
        <source>Add a status area to the panel, often called system tray, that shows StatusNotifier items.</source>
        <translation>أضف إلى اللوحة منطقة حالة، تُسمّى غالبًا صينية النظام، تعرض عناصر StatusNotifier.</translation>
    </message>
</context>
<context>
    <name>HostNotice</name>
    <message>
        <source>This desktop shows no status icons, so Tallyvane can be seen in this window only.</source>
        <translation>لا يعرض سطح المكتب هذا أيقونات الحالة، لذا لا يظهر Tallyvane إلا في هذه النافذة.</translation>
    </message>
    <message>
        <source>It keeps running when you close the window.</source>
        <translation>ويبقى قيد التشغيل عند إغلاق النافذة.</translation>
    </message>
    <message>
        <source>Quit Tallyvane</source>
        <translation>أنهِ Tallyvane</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>لا تُظهر هذا مجددًا</translation>
    </message>
</context>
<context>
    <name>LaunchAtLoginPrompt</name>
    <message>
        <source>Keep quotas up to date?</source>
        <translation>أتريد إبقاء الحصص محدَّثة؟</translation>
    </message>
    <message>
        <source>Tallyvane can live in the menu bar and refresh Codex every five minutes after you sign in to your Mac.</source>
        <translation>يمكن أن يبقى Tallyvane في صينية النظام ويحدّث حصة Codex كل خمس دقائق بعد تسجيل دخولك إلى هذا الحاسوب.</translation>
    </message>
    <message>
        <source>Launch Tallyvane at login</source>
        <translation>شغّل Tallyvane عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>ليس الآن</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>تابع</translation>
    </message>
</context>
<context>
    <name>MenuBarLabel</name>
    <message>
        <source>5H</source>
        <translation>٥ س</translation>
    </message>
    <message>
        <source>WK</source>
        <translation>أسبوع</translation>
    </message>
    <message>
        <source>%1 resets %2</source>
        <extracomment>%1 is &quot;5H&quot;, %2 a time such as &quot;in 2h 14m&quot;</extracomment>
        <translation>%1: تتجدد %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source> (last updated %1)</source>
        <extracomment>%1 is how long ago, such as &quot;20 min ago&quot;</extracomment>
        <translation> (آخر تحديث: %1)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 when its quotas run out, such as &quot;5H runs out in 1h 10m&quot;</extracomment>
        <translation>‏%1: %2</translation>
    </message>
</context>
<context>
    <name>MenuBarQuotaView</name>
    <message>
        <source>Open Tallyvane</source>
        <extracomment>A button that opens the program&apos;s window</extracomment>
        <translation>افتح Tallyvane</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>Read aloud for the button that fetches new figures</extracomment>
        <translation>حدّث</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>A button that ends the program</extracomment>
        <translation>أنهِ</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Another program is refreshing the same files and did not end within a minute.</source>
        <translation>يحدّث برنامج آخر الملفات نفسها، ولم ينتهِ خلال دقيقة.</translation>
    </message>
    <message>
        <source>The session logs could not be counted: %1.</source>
        <translation>تعذّر إحصاء سجلات الجلسات: %1.</translation>
    </message>
    <message>
        <source>%1 does not hold settings, and stays as it is.</source>
        <translation>لا يحوي ⁦%1⁩ إعدادات، وسيبقى كما هو.</translation>
    </message>
    <message>
        <source>Could not save %1: %2.</source>
        <translation>تعذّر حفظ ⁦%1⁩: %2.</translation>
    </message>
    <message>
        <source>A figure is not a finite number.</source>
        <translation>إحدى القيم ليست عددًا منتهيًا.</translation>
    </message>
    <message>
        <source>Start &apos;claude&apos; in a terminal and sign in.</source>
        <translation>شغّل «claude» في طرفية وسجّل الدخول.</translation>
    </message>
    <message>
        <source>Unlock the keyring, for example in &apos;seahorse&apos; (Passwords and Keys) or by logging in with your password.</source>
        <translation>افتح قفل حلقة المفاتيح، مثلًا في «seahorse» (كلمات السر والمفاتيح) أو بالولوج إلى جلستك بكلمة السر.</translation>
    </message>
    <message>
        <source>Start &apos;claude&apos; once; it renews its sign-in by itself.</source>
        <translation>شغّل «claude» مرة واحدة؛ فهو يجدّد تسجيل دخوله بنفسه.</translation>
    </message>
    <message>
        <source>Check the network connection; &apos;tallyvane doctor --online&apos; says more.</source>
        <translation>تحقّق من اتصال الشبكة؛ يعطيك «tallyvane doctor --online» تفاصيل أكثر.</translation>
    </message>
    <message>
        <source>Nothing needs to be done; the next refresh asks again.</source>
        <translation>لا حاجة إلى فعل شيء؛ سيُعاد الطلب عند التحديث التالي.</translation>
    </message>
    <message>
        <source>Install the Codex CLI, or choose its program in the settings.</source>
        <translation>ثبّت Codex CLI، أو اختر برنامجه في الإعدادات.</translation>
    </message>
    <message>
        <source>A Codex CLI was found in another place; it is used once you agree.</source>
        <translation>عُثر على Codex CLI في مكان آخر؛ سيُستخدم بعد موافقتك.</translation>
    </message>
    <message>
        <source>Choose another program in the settings, or go back to automatic with &apos;tallyvane config unset codex-path&apos;.</source>
        <translation>اختر برنامجًا آخر في الإعدادات، أو عُد إلى الوضع التلقائي بالأمر «tallyvane config unset codex-path».</translation>
    </message>
    <message>
        <source>Run &apos;codex login&apos; in a terminal.</source>
        <translation>نفّذ «codex login» في طرفية.</translation>
    </message>
    <message>
        <source>Start &apos;codex&apos; in a terminal to see whether it works there.</source>
        <translation>شغّل «codex» في طرفية لترى إن كان يعمل فيها.</translation>
    </message>
    <message>
        <source>It is asked again within five minutes.</source>
        <translation>سيُعاد الطلب خلال خمس دقائق.</translation>
    </message>
    <message>
        <source>It is asked again in about %1 minutes.</source>
        <translation>سيُعاد الطلب بعد نحو %L1 د.</translation>
    </message>
    <message>
        <source>The Claude service did not accept the sign-in of Claude Code.</source>
        <translation>لم تقبل خدمة Claude تسجيل دخول Claude Code.</translation>
    </message>
    <message>
        <source>Sign-in expired</source>
        <translation>انتهت صلاحية الدخول</translation>
    </message>
    <message>
        <source>The Claude service answered with status %1.</source>
        <translation>ردّت خدمة Claude بالحالة %L1.</translation>
    </message>
    <message>
        <source>No sign-in of Claude Code was found.</source>
        <translation>لم يُعثر على تسجيل دخول لـ Claude Code.</translation>
    </message>
    <message>
        <source>No file with a sign-in of Claude Code was found, and the keyring could not be asked: %1.</source>
        <translation>لم يُعثر على ملف فيه تسجيل دخول Claude Code، وتعذّر سؤال حلقة المفاتيح: %1.</translation>
    </message>
    <message>
        <source>Keychain auth</source>
        <translation>لا تسجيل دخول</translation>
    </message>
    <message>
        <source>The sign-in of Claude Code has expired.</source>
        <translation>انتهت صلاحية تسجيل دخول Claude Code.</translation>
    </message>
    <message>
        <source>The Claude service was asked too many times.</source>
        <translation>كثُرت الطلبات إلى خدمة Claude.</translation>
    </message>
    <message>
        <source>Rate limited</source>
        <translation>تجاوز حد الطلبات</translation>
    </message>
    <message>
        <source>The Claude service could not be reached: %1.</source>
        <translation>تعذّر الوصول إلى خدمة Claude: %1.</translation>
    </message>
    <message>
        <source>Network error</source>
        <translation>خطأ في الشبكة</translation>
    </message>
    <message>
        <source>The answer of the Claude service was not understood.</source>
        <translation>لم يُفهم ردّ خدمة Claude.</translation>
    </message>
    <message>
        <source>The reply of the Codex CLI could not be read.</source>
        <translation>تعذّرت قراءة ردّ Codex CLI.</translation>
    </message>
    <message>
        <source>Could not find %1.</source>
        <translation>تعذّر العثور على ⁦%1⁩.</translation>
    </message>
    <message>
        <source>Command failed (%1): %2</source>
        <translation>فشل الأمر (%L1): %2</translation>
    </message>
    <message>
        <source>Command timed out.</source>
        <translation>انتهت مهلة الأمر.</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>إنها مقفلة</translation>
    </message>
    <message>
        <source>it did not answer in time</source>
        <translation>لم يصل ردّ في الوقت المحدد</translation>
    </message>
    <message>
        <source>it took too long to answer</source>
        <translation>استغرق الردّ وقتًا طويلًا</translation>
    </message>
    <message>
        <source>the desktop&apos;s settings ask for a kind of proxy that is not supported</source>
        <translation>تطلب إعدادات سطح المكتب نوعًا غير مدعوم من الوسطاء</translation>
    </message>
    <message>
        <source>Could not remove %1: %2.</source>
        <translation>تعذّرت إزالة ⁦%1⁩: %2.</translation>
    </message>
    <message>
        <source>Codex returned an unknown error.</source>
        <translation>أعاد Codex خطأ غير معروف.</translation>
    </message>
    <message>
        <source>Not an absolute path: %1</source>
        <translation>ليس مسارًا مطلقًا: ⁦%1⁩</translation>
    </message>
    <message>
        <source>Not an executable file: %1</source>
        <translation>ليس ملفًا تنفيذيًا: ⁦%1⁩</translation>
    </message>
</context>
<context>
    <name>Notification</name>
    <message>
        <source>The windows could not be loaded: %1</source>
        <translation>تعذّر تحميل النوافذ: %1</translation>
    </message>
    <message>
        <source>您的 %1 token 已经重置了。</source>
        <translation>تجددت حصتك في %1.</translation>
    </message>
    <message>
        <source>Open Tallyvane</source>
        <translation>افتح Tallyvane</translation>
    </message>
    <message>
        <source>%1: %2 % of the five-hour quota left</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 the percentage</extracomment>
        <translation>%1: تبقّى %L2٪ من حصة الساعات الخمس</translation>
    </message>
    <message>
        <source>%1: %2 % of the weekly quota left</source>
        <translation>%1: تبقّى %L2٪ من الحصة الأسبوعية</translation>
    </message>
    <message>
        <source>%1: the five-hour quota runs out at %2, before the reset</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 a time such as &quot;16:40&quot; or &quot;Tue 16:40&quot;</extracomment>
        <translation>%1: تنفد حصة الساعات الخمس في %2، قبل التجدد</translation>
    </message>
    <message>
        <source>%1: the weekly quota runs out at %2, before the reset</source>
        <translation>%1: تنفد الحصة الأسبوعية في %2، قبل التجدد</translation>
    </message>
</context>
<context>
    <name>ProviderCard</name>
    <message>
        <source>From %1</source>
        <extracomment>%1 is how long ago the figures were fetched, such as &quot;2 hr ago&quot;</extracomment>
        <translation>بيانات جُلبت %1</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <translation>
            <numerusform>%Ln د</numerusform>
            <numerusform>%Ln د</numerusform>
            <numerusform>%Ln د</numerusform>
            <numerusform>%Ln د</numerusform>
            <numerusform>%Ln د</numerusform>
            <numerusform>%Ln د</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr</source>
        <translation>
            <numerusform>%Ln س</numerusform>
            <numerusform>%Ln س</numerusform>
            <numerusform>%Ln س</numerusform>
            <numerusform>%Ln س</numerusform>
            <numerusform>%Ln س</numerusform>
            <numerusform>%Ln س</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n d</source>
        <translation>
            <numerusform>%Ln ي</numerusform>
            <numerusform>%Ln ي</numerusform>
            <numerusform>%Ln ي</numerusform>
            <numerusform>%Ln ي</numerusform>
            <numerusform>%Ln ي</numerusform>
            <numerusform>%Ln ي</numerusform>
        </translation>
    </message>
    <message>
        <source>At this pace it runs out at %1, %2 before the reset</source>
        <translation>بهذه الوتيرة تنفد في %1، قبل التجدد بمقدار %2</translation>
    </message>
    <message>
        <source>At this pace it lasts until the reset</source>
        <translation>بهذه الوتيرة تكفي حتى التجدد</translation>
    </message>
    <message>
        <source>At the pace of the last hour it runs out at %1, %2 before the reset</source>
        <translation>بوتيرة الساعة الأخيرة تنفد في %1، قبل التجدد بمقدار %2</translation>
    </message>
    <message>
        <source>At the pace of the last day it runs out at %1, %2 before the reset</source>
        <translation>بوتيرة اليوم الأخير تنفد في %1، قبل التجدد بمقدار %2</translation>
    </message>
    <message>
        <source>At the pace of the last hour it lasts until the reset</source>
        <translation>بوتيرة الساعة الأخيرة تكفي حتى التجدد</translation>
    </message>
    <message>
        <source>At the pace of the last day it lasts until the reset</source>
        <translation>بوتيرة اليوم الأخير تكفي حتى التجدد</translation>
    </message>
</context>
<context>
    <name>ProviderCardHeader</name>
    <message>
        <source>Sync pending</source>
        <extracomment>Read aloud for the symbol that marks outdated figures</extracomment>
        <translation>بانتظار المزامنة</translation>
    </message>
</context>
<context>
    <name>ProviderQuotaCard</name>
    <message>
        <source>%1: %2, %3</source>
        <extracomment>A quota window, the percentage left of it, and when it resets</extracomment>
        <translation>%1: %2، %3</translation>
    </message>
    <message>
        <source>5h</source>
        <translation>خمس ساعات</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>الأسبوع</translation>
    </message>
    <message>
        <source>Open %1 usage details</source>
        <extracomment>%1 is an assistant&apos;s name</extracomment>
        <translation>افتح تفاصيل استخدام %1</translation>
    </message>
</context>
<context>
    <name>Quota</name>
    <message>
        <source>Sync pending</source>
        <translation>بانتظار المزامنة</translation>
    </message>
    <message>
        <source>5H %1%  ·  WK %2%</source>
        <extracomment>What is left in the five-hour window and in the week, as short as possible</extracomment>
        <translation>٥ س %L1٪  ·  أسبوع %L2٪</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage</extracomment>
        <translation>%L1٪</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is &quot;Codex&quot; or &quot;Claude&quot;, %2 its figures</extracomment>
        <translation>‏%1: %2</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>غير متاح</translation>
    </message>
    <message>
        <source>Reset unknown</source>
        <translation>موعد التجدد مجهول</translation>
    </message>
    <message>
        <source>in %1d %2h</source>
        <extracomment>Days and hours, as short as possible</extracomment>
        <translation>بعد %L1 ي و%L2 س</translation>
    </message>
    <message>
        <source>in %1h %2m</source>
        <translation>بعد %L1 س و%L2 د</translation>
    </message>
    <message>
        <source>in %1m</source>
        <translation>بعد %L1 د</translation>
    </message>
    <message>
        <source>never</source>
        <translation>لم يتم بعد</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>الآن</translation>
    </message>
    <message numerus="yes">
        <source>%n min ago</source>
        <translation>
            <numerusform>قبل %Ln د</numerusform>
            <numerusform>قبل %Ln د</numerusform>
            <numerusform>قبل %Ln د</numerusform>
            <numerusform>قبل %Ln د</numerusform>
            <numerusform>قبل %Ln د</numerusform>
            <numerusform>قبل %Ln د</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr ago</source>
        <translation>
            <numerusform>قبل %Ln س</numerusform>
            <numerusform>قبل %Ln س</numerusform>
            <numerusform>قبل %Ln س</numerusform>
            <numerusform>قبل %Ln س</numerusform>
            <numerusform>قبل %Ln س</numerusform>
            <numerusform>قبل %Ln س</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n d ago</source>
        <translation>
            <numerusform>قبل %Ln ي</numerusform>
            <numerusform>قبل %Ln ي</numerusform>
            <numerusform>قبل %Ln ي</numerusform>
            <numerusform>قبل %Ln ي</numerusform>
            <numerusform>قبل %Ln ي</numerusform>
            <numerusform>قبل %Ln ي</numerusform>
        </translation>
    </message>
    <message>
        <source>5H</source>
        <extracomment>The five-hour window and the weekly one, as short as possible</extracomment>
        <translation>٥ س</translation>
    </message>
    <message>
        <source>WK</source>
        <translation>أسبوع</translation>
    </message>
    <message>
        <source>%1 runs out %2</source>
        <extracomment>%1 is &quot;5H&quot;, %2 a time such as &quot;in 2h 14m&quot;</extracomment>
        <translation>%1: تنفد %2</translation>
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
        <translation>اكتمل التحديث</translation>
    </message>
    <message>
        <source>Refreshing</source>
        <translation>جارٍ التحديث</translation>
    </message>
</context>
<context>
    <name>SettingsContent</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Color scheme</source>
        <translation>مخطط الألوان</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>Background refresh</source>
        <translation>التحديث في الخلفية</translation>
    </message>
    <message>
        <source>Launch menu bar app at login</source>
        <translation>شغّل Tallyvane في صينية النظام عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>The menu bar app refreshes Codex and Claude every five minutes. Claude usage is read from Claude Code&apos;s stored sign-in; macOS asks once for Keychain access.</source>
        <translation>يحدّث Tallyvane في صينية النظام حصص Codex وClaude كل خمس دقائق. يُقرأ استخدام Claude عبر تسجيل دخول Claude Code المحفوظ؛ ولا يُطلب أبدًا فتح قفل حلقة المفاتيح.</translation>
    </message>
    <message>
        <source>Codex program</source>
        <translation>برنامج Codex</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Reset notifications</source>
        <translation>إشعارات تجدد الحصص</translation>
    </message>
    <message>
        <source>Notify when a quota resets</source>
        <translation>الإشعار عند تجدد حصة</translation>
    </message>
    <message>
        <source>Sends a desktop alert when Codex or Claude&apos;s quota resets during an enabled window. Requires the menu bar app to be running.</source>
        <translation>يُرسَل إشعار على سطح المكتب عند تجدد حصة Codex أو Claude خلال فترة زمنية مفعّلة. يلزم أن يكون Tallyvane قيد التشغيل في صينية النظام.</translation>
    </message>
    <message>
        <source>Notifications are turned off in System Settings</source>
        <translation>الإشعارات معطّلة في إعدادات النظام</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>افتح إعدادات النظام</translation>
    </message>
    <message>
        <source>Add time window</source>
        <translation>أضف فترة زمنية</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>الخصوصية</translation>
    </message>
    <message>
        <source>All history stays on this Mac</source>
        <translation>يبقى السجل كله على هذا الحاسوب</translation>
    </message>
    <message>
        <source>No analytics, cloud database, remote logging, prompts, responses, file paths, emails, credentials, or account identifiers are collected.</source>
        <translation>لا تُجمع بيانات تحليلية ولا مُدخلات ولا ردود ولا مسارات ملفات ولا عناوين بريد ولا بيانات اعتماد ولا معرّفات حسابات، ولا تُستخدم قاعدة بيانات سحابية ولا تسجيل عن بُعد.</translation>
    </message>
    <message>
        <source>Clear usage history</source>
        <translation>امسح سجل الاستخدام</translation>
    </message>
    <message>
        <source>Assistants shown</source>
        <translation>المساعدات المعروضة</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>كلاهما</translation>
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
        <translation>لا يُطلب من المساعد المخفي أي بيانات، ويُحتفظ بسجله. ويُعرض أحدهما دائمًا.</translation>
    </message>
    <message>
        <source>Low quota</source>
        <translation>حصة منخفضة</translation>
    </message>
    <message>
        <source>Notify when a quota runs low</source>
        <translation>الإشعار عند انخفاض حصة</translation>
    </message>
    <message>
        <source>Sends a desktop alert when 25 % and 10 % of a quota are left, and when it is going to run out before its reset. The time windows above apply. Requires the menu bar app to be running.</source>
        <translation>يُرسَل إشعار على سطح المكتب عندما يتبقّى ٢٥٪ ثم ١٠٪ من حصة، وعندما توشك أن تنفد قبل تجددها. تسري الفترات الزمنية أعلاه. يلزم أن يكون Tallyvane قيد التشغيل في صينية النظام.</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Working</source>
        <extracomment>Read aloud for the busy indicator</extracomment>
        <translation>جارٍ العمل</translation>
    </message>
</context>
<context>
    <name>TimeWindowRow</name>
    <message>
        <source>All day</source>
        <translation>طوال اليوم</translation>
    </message>
    <message>
        <source>Start time</source>
        <extracomment>Read aloud for the field</extracomment>
        <translation>وقت البدء</translation>
    </message>
    <message>
        <source>End time</source>
        <extracomment>Read aloud for the field</extracomment>
        <translation>وقت الانتهاء</translation>
    </message>
    <message>
        <source>Remove time window</source>
        <extracomment>Read aloud for the button</extracomment>
        <translation>أزل الفترة الزمنية</translation>
    </message>
    <message>
        <source>Turn on</source>
        <translation>فعّل</translation>
    </message>
</context>
<context>
    <name>UsageHeatmapView</name>
    <message>
        <source>Token Heatmap</source>
        <translation>الخريطة الحرارية للتوكنات</translation>
    </message>
    <message>
        <source>Estimated tokens per day</source>
        <translation>التوكنات المقدّرة لكل يوم</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>المصدر</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>المجموع</translation>
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
        <translation>أقل</translation>
    </message>
    <message>
        <source>More</source>
        <translation>أكثر</translation>
    </message>
</context>
<context>
    <name>UsageHistoryView</name>
    <message>
        <source>Usage History</source>
        <translation>سجل الاستخدام</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>المقياس</translation>
    </message>
    <message>
        <source>%</source>
        <translation>٪</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>توكنات</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>الفترة</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>يومي</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>شهري</translation>
    </message>
    <message>
        <source>Estimated result. Rolling resets, usage between syncs, and provider-side adjustments can affect accuracy. Local token totals are derived from numeric usage fields only; prompts and responses are never stored.</source>
        <translation>النتيجة تقديرية. قد يؤثر في دقتها التجدد المتحرك للحصص، والاستخدام بين المزامنات، وتعديلات مزوّد الخدمة. تُستخرج مجاميع التوكنات المحلية من حقول الاستخدام الرقمية فقط؛ ولا تُخزَّن المُدخلات ولا الردود أبدًا.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>نُسخ</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>انسخ</translation>
    </message>
    <message>
        <source>Copy the daily figures as a table</source>
        <translation>انسخ الأرقام اليومية في شكل جدول</translation>
    </message>
</context>
<context>
    <name>tallyvane::app::StatusArea</name>
    <message>
        <source>Open Tallyvane</source>
        <translation>افتح Tallyvane</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>حدّث</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>أنهِ</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::DashboardModel</name>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is how long ago, such as &quot;5 min ago&quot;</extracomment>
        <translation>آخر تحديث: %1</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::HeatmapModel</name>
    <message>
        <source>%1: %2 tokens</source>
        <extracomment>%1 is a day, %2 a number such as &quot;12K&quot;</extracomment>
        <translation>%1: %2 توكن</translation>
    </message>
    <message>
        <source>%1: No record</source>
        <extracomment>%1 is a day</extracomment>
        <translation>%1: لا يوجد سجل</translation>
    </message>
    <message numerus="yes">
        <source>(the history covers %n days)</source>
        <extracomment>Follows &quot;No record&quot;</extracomment>
        <translation>
            <numerusform>(يغطي السجل %Ln يوم)</numerusform>
            <numerusform>(يغطي السجل %Ln يوم)</numerusform>
            <numerusform>(يغطي السجل %Ln يوم)</numerusform>
            <numerusform>(يغطي السجل %Ln أيام)</numerusform>
            <numerusform>(يغطي السجل %Ln يومًا)</numerusform>
            <numerusform>(يغطي السجل %Ln يوم)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::HistoryModel</name>
    <message>
        <source>% of quota used</source>
        <translation>النسبة المستهلكة من الحصة</translation>
    </message>
    <message>
        <source>Estimated tokens used</source>
        <translation>التوكنات المستهلكة تقديرًا</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage</extracomment>
        <translation>%L1٪</translation>
    </message>
    <message>
        <source>Shares of two weekly quotas, added up</source>
        <translation>مجموع نسبتين من حصتين أسبوعيتين</translation>
    </message>
    <message>
        <source>%1 tokens</source>
        <translation>%1 توكن</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::MenuBarQuotaViewModel</name>
    <message>
        <source>Last updated %1</source>
        <extracomment>%1 is how long ago, such as &quot;20 min ago&quot;</extracomment>
        <translation>آخر تحديث: %1</translation>
    </message>
</context>
<context>
    <name>tallyvane::ui::SettingsModel</name>
    <message>
        <source>In use: %1, found by Tallyvane.</source>
        <extracomment>%1 is a program&apos;s path</extracomment>
        <translation>المستخدَم: ⁦%1⁩، عثر عليه Tallyvane.</translation>
    </message>
    <message>
        <source>In use: %1, chosen by you.</source>
        <translation>المستخدَم: ⁦%1⁩، وهو من اختيارك.</translation>
    </message>
    <message>
        <source>No notification can come: there is no time window.</source>
        <translation>لن يصل أي إشعار: لا توجد فترة زمنية.</translation>
    </message>
    <message>
        <source>No notification can come: no time window allows any.</source>
        <translation>لن يصل أي إشعار: لا توجد فترة زمنية تسمح بذلك.</translation>
    </message>
    <message>
        <source>Usage history cleared.</source>
        <translation>مُسح سجل الاستخدام.</translation>
    </message>
    <message>
        <source>This window is off; no notification comes in it.</source>
        <translation>هذه الفترة معطّلة؛ لن يصل فيها أي إشعار.</translation>
    </message>
    <message>
        <source>No time lies between this start and end.</source>
        <translation>لا يوجد وقت بين هذا البدء وهذا الانتهاء.</translation>
    </message>
</context>
</TS>
