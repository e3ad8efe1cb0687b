#include "status_item.h"
#include "support/processes.h"
#include "support/tallyvane_program.h"
#include "support/xfce_desktop.h"

#include <algorithm>
#include <sys/inotify.h>
#include <unistd.h>

using namespace tallyvane;
using namespace Qt::StringLiterals;
using tests::callOnBus;
using tests::inHome;
using tests::installCodex;
using tests::item;
using tests::output;
using tests::patience;
using tests::shownItems;
using Tallyvane = tests::TallyvaneProgram;

namespace {

/// How many processes run a program of this name in this test's home.
int running(const QByteArray& name) {
    return static_cast<int>(
        std::ranges::count_if(tests::processesIn(qgetenv("HOME")), [&name](const auto& process) {
            return process.read("comm").trimmed() == name.left(15);
        }));
}

/// Calls a method of the menu for an entry: "1" and "2" are the assistants.
QByteArray menu(const QByteArray& method, const QByteArray& entryAndMore) {
    return callOnBus(u"org.corvelle.Tallyvane"_s, "/MenuBar",
                     "com.canonical.dbusmenu." + method + ' ' + entryAndMore);
}

void choose(const QByteArray& entry) {
    menu("Event", entry + " clicked '<0>' 0");
}

const QByteArray openEntry = "4";
const QByteArray refreshEntry = "5";
const QByteArray quitEntry = "7";

/// The sizes of the program's visible windows, a line each.
QByteArray windows() {
    return output("xdotool search --onlyvisible --name '^Tallyvane$' getwindowgeometry %@ | "
                  "sed -n 's/.*Geometry: //p'");
}

const QByteArray mainWindow = "820x760\n";

bool isPanelOpen() {
    const QByteArray sizes = windows();
    return sizes.startsWith("310x") && sizes.count('\n') == 1;
}

/// Clicks on the item, again if the panel is not open after this many milliseconds: a click soon
/// after the one that closed the panel does not open it. A panel that was slow is closed again.
bool hasOpenedPanel(int wait = 1000) {
    return QTest::qWaitFor(
        [wait] {
            output("xdotool mousemove 24 16 click 1");
            return QTest::qWaitFor(isPanelOpen, wait);
        },
        patience);
}

/// Presses keys until no window is left.
bool hasClosed(const QByteArray& keys) {
    return QTest::qWaitFor([&keys] { return output("xdotool key " + keys), windows().isEmpty(); },
                           patience);
}

} // namespace

/// The whole program among real programs of a desktop.
class DesktopTest : public tests::HermeticTest {
    Q_OBJECT

    std::optional<tests::XfceDesktop> m_desktop;

public:
    DesktopTest() : HermeticTest(AfterFailure::stop) {}

private Q_SLOTS:
    void initTestCase() {
        qputenv("PATH", inHome("bin").toUtf8() + ':' + qgetenv("PATH"));
        qputenv("QML_DISABLE_DISK_CACHE", "1"); // only debug builds have one
    }

    void init() {
        HermeticTest::init();
        m_desktop.emplace();
    }

    void cleanup() {
        TALLYVANE_TRY_COMPARE(running("tallyvane-desktop"), 0);
        TALLYVANE_TRY_COMPARE(running("codex"), 0);
        m_desktop.reset();
        tests::clearHome();
        HermeticTest::cleanup();
    }

    void livesInThePanel() {
        installCodex(63);
        tests::writeFile(inHome("bin/xdg-open"), "#!/bin/sh\necho \"$1\" >>\"$HOME/opened\"\n");
        const tests::RunningProgram notificationDaemon("dunst");
        // Notifications at all times of day.
        tests::writeFile(
            inHome("config/group.corvelle.Gaugewell.conf"),
            "notificationSettings=\"@ByteArray({\\\"enabled\\\":true,\\\"windows\\\":[{\\\"id\\\":"
            "\\\"0d1a3b0e-7f0a-4b7e-9b5c-2f1f6a1c9d11\\\",\\\"enabled\\\":true,\\\"allDay\\\":true,"
            "\\\"startMinutes\\\":0,\\\"endMinutes\\\":0}]})\""
            "\nhasAskedLaunchAtLogin=true\n");
        // Of the pictures for the panel it removes those of an earlier run, and in the end its own.
        tests::writeFile(inHome("tallyvane/gauges-mine-symbolic.svg"), "x");
        tests::writeFile(inHome("tallyvane/gauges-%1-symbolic.svg").arg(QString(32, u'0')), "x");
        m_desktop->startPanel();
        Tallyvane program("--background");
        TALLYVANE_TRY_COMPARE(item("XAyatanaLabel"), "(<'37%'>,)");
        QVERIFY(windows().isEmpty());

        // The panel: below the item, until a click elsewhere or Escape.
        QVERIFY(hasOpenedPanel(patience / 3)); // the first time takes longest
        const QByteArray geometry =
            output("xdotool search --onlyvisible --name '^Tallyvane$' getwindowgeometry");
        QVERIFY2(geometry.contains("Position: 8,"), geometry);
        QVERIFY(output("xprop -name Tallyvane _NET_WM_STATE").contains("_SKIP_TASKBAR"));
        output("xdotool mousemove 900 700 click 1");
        TALLYVANE_TRY_VERIFY(windows().isEmpty());
        const tests::RunningProgram windowManager("xfwm4"); // which adds to the window's state
        QVERIFY(hasOpenedPanel());
        QVERIFY(hasClosed("Escape"));
        // A right click on the item opens the menu instead.
        QVERIFY(hasOpenedPanel());
        const auto desktopWindows = [] {
            return output("xdotool search --onlyvisible --class 'panel|wrapper'").count('\n');
        };
        const qsizetype withoutMenu = desktopWindows();
        output("xdotool mousemove 24 16 click 3");
        TALLYVANE_TRY_VERIFY(windows().isEmpty() && desktopWindows() > withoutMenu);
        output("xdotool key Down Down Down Return");
        TALLYVANE_TRY_COMPARE(windows(), mainWindow);
        QVERIFY(hasClosed("ctrl+w"));
        // The panel's third control opens the window, and its fourth refreshes.
        QVERIFY(hasOpenedPanel());
        output("xdotool key Tab Tab Tab Return");
        TALLYVANE_TRY_COMPARE(windows(), mainWindow);
        QVERIFY(hasClosed("ctrl+w"));
        installCodex(60);
        QVERIFY(hasOpenedPanel());
        output("xdotool key Tab Tab Tab Tab space");
        TALLYVANE_TRY_COMPARE(item("XAyatanaLabel"), "(<'40%'>,)");
        QVERIFY(hasClosed("Escape"));

        // The menu.
        choose("2");
        TALLYVANE_TRY_COMPARE(tests::readFile(inHome("opened")),
                              "https://claude.ai/settings/usage\n");
        choose(openEntry);
        TALLYVANE_TRY_COMPARE(windows(), mainWindow);
        QVERIFY(hasClosed("ctrl+w"));
        installCodex(50);
        TALLYVANE_TRY_COMPARE(menu("GetProperty", refreshEntry + " enabled"), "(<true>,)");
        choose(refreshEntry);
        TALLYVANE_TRY_COMPARE(item("XAyatanaLabel"), "(<'50%'>,)");
        QVERIFY(item("ToolTip").contains("50%"));
        QVERIFY(menu("GetProperty", "1 label").contains("50%"));

        // The command line refreshes through the program, which tells of a reset.
        installCodex(2);
        Tallyvane refresh("refresh");
        QVERIFY(refresh.hasEnded());
        QVERIFY(refresh.readAllStandardOutput().contains("98% left"));
        QCOMPARE(item("XAyatanaLabel"), "(<'98%'>,)");
        TALLYVANE_TRY_COMPARE((output("dunstctl action"), windows()), mainWindow);
        const auto shownTexts = [] {
            return output("sh -c 'dunstctl close-all; dunstctl history'")
                .count("\"您的 Codex token 已经重置了。\"");
        };
        TALLYVANE_TRY_COMPARE(shownTexts(), 1);
        QVERIFY(hasClosed("ctrl+w"));

        // A preference that another program stores.
        const auto show = [](const char* providers) {
            return Tallyvane(QByteArray("config set providers ") + providers).hasEnded();
        };
        QVERIFY(show("claude"));
        TALLYVANE_TRY_COMPARE(item("XAyatanaLabel"), "(<''>,)");
        QVERIFY(!menu("GetProperty", "1 label").contains("Codex"));
        QVERIFY(menu("GetProperty", "2 label").contains("Claude"));
        installCodex(1);
        QVERIFY(show("both"));
        TALLYVANE_TRY_COMPARE(item("XAyatanaLabel"), "(<'99%'>,)");

        m_desktop->endPanel();
        TALLYVANE_TRY_COMPARE(shownItems(), 0);
        m_desktop->startPanel();
        TALLYVANE_TRY_COMPARE(item("XAyatanaLabel"), "(<'99%'>,)");

        QVERIFY(hasOpenedPanel());
        output("xdotool key Tab Tab Tab Tab Tab Return");
        QVERIFY(program.hasEnded());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        QCOMPARE(program.readAllStandardError(), QByteArray());
        QCOMPARE(
            output("find \"$HOME\" -path \"$HOME/config/xfce4\" -prune -o -not -type d -printf "
                   "'%P\\n' | LC_ALL=C sort"),
            ".local/bin/codex\n"
            "bin/xdg-open\n"
            "config/group.corvelle.Gaugewell.conf\n"
            "data/Gaugewell/quota-snapshot.json\n"
            "data/Gaugewell/tallyvane.lock\n"
            "data/Gaugewell/usage-history.json\n"
            "opened\n"
            "tallyvane/gauges-mine-symbolic.svg\n");
    }

    void startsOnce() {
        std::array<Tallyvane, 10> programs;
        const auto ended = [&] {
            return std::ranges::count(programs, QProcess::NotRunning, &QProcess::state);
        };
        TALLYVANE_TRY_COMPARE(ended(), 9);
        TALLYVANE_TRY_COMPARE(windows(), mainWindow);
        QCOMPARE(ended(), 9);
        for (const Tallyvane& program : programs) {
            QCOMPARE(program.exitCode(), 0);
        }
    }

    /// Neither a codex that does not end nor a long count of the logs delays it.
    void quitsAtOnce() {
        installCodex(63, "trap '' TERM\nsleep 1000");
        constexpr int logs = 400;
        const QByteArray folder = inHome(".codex/sessions").toUtf8();
        QVERIFY(QDir::home().mkpath(QStringLiteral(".codex/sessions")));
        for (int number = 100; number < 100 + logs; ++number) {
            QFile log(inHome(".codex/sessions/%1.jsonl").arg(number));
            QVERIFY(log.open(QIODevice::WriteOnly) && log.resize(4 << 20));
        }
        const int notifier = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
        QVERIFY(::inotify_add_watch(notifier, folder.data(), IN_OPEN) > 0);
        qsizetype opened = 0;
        const auto countOpened = [&] {
            QByteArray events(1 << 20, Qt::Uninitialized);
            // A name of nine characters fills sixteen bytes.
            constexpr qsizetype eventSize = sizeof(inotify_event) + 16;
            const auto size = ::read(notifier, events.data(), static_cast<size_t>(events.size()));
            opened += std::max<qsizetype>(size, 0) / eventSize;
            return opened;
        };
        const Tallyvane program("--background");
        TALLYVANE_TRY_VERIFY(running("codex") > 0 && countOpened() > 1);
        choose(quitEntry);
        QVERIFY(program.hasEnded());
        QVERIFY(running("codex") > 0);
        QVERIFY2(countOpened() < logs, qPrintable(QString::number(opened)));
        ::close(notifier);
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
    }

    void goesOnWhenItIsReplaced() {
        QVERIFY(QDir::home().mkdir(u"installed"_s));
        for (const auto& file :
             {u"tallyvane"_s, u"libtallyvane-program.so"_s, u"tallyvane-desktop"_s,
              u"tallyvane-claude.so"_s, u"tallyvane-windows.so"_s}) {
            QVERIFY(QFile::copy(QFileInfo(QStringLiteral(TALLYVANE_PROGRAM)).dir().filePath(file),
                                inHome("installed/") + file));
        }
        const Tallyvane program("--background", inHome("installed/tallyvane"));
        TALLYVANE_TRY_VERIFY(menu("GetProperty", quitEntry + " label").contains("Quit"));
        QVERIFY(QFile::remove(inHome("installed/tallyvane-windows.so")));
        tests::writeFile(inHome("installed/tallyvane-windows.so"), "another version");
        const Tallyvane second;
        TALLYVANE_TRY_COMPARE(windows(), mainWindow);
    }

    /// The terminal gets the source's texts from a program that shows Arabic ones.
    void speaksTheLanguageOfTheUser() {
        qputenv("LANG", "ar_EG.UTF-8");
        const Tallyvane program("--background");
        qputenv("LANG", "C.UTF-8");
        TALLYVANE_TRY_VERIFY(menu("GetProperty", quitEntry + " label").contains("أنهِ"));
        QVERIFY(callOnBus(u"org.corvelle.Tallyvane"_s, "/MenuBar",
                          "org.freedesktop.DBus.Properties.Get com.canonical.dbusmenu "
                          "TextDirection")
                    .contains("rtl"));
        const QByteArray printed = output("sh -c '" TALLYVANE_PROGRAM " refresh 2>&1'");
        QVERIFY2(printed.contains("Could not find Codex CLI."), printed);
    }

    void needsADisplay() {
        for (const auto& [variables, expected] :
             {std::pair{"-u DISPLAY", "no display"},
              {"DISPLAY=:none", ":none"},
              {"-u DISPLAY WAYLAND_DISPLAY=gone", "qt6-wayland"}}) {
            const QByteArray printed = output("sh -c 'env " + QByteArray(variables) +
                                              " " TALLYVANE_PROGRAM " 2>&1; echo $?'");
            QVERIFY2(printed.contains(expected) && printed.endsWith(".\n1\n") &&
                         printed.count('\n') == 2,
                     printed);
        }
    }
};

TALLYVANE_TEST(DesktopTest)
#include "desktop_test.moc"
