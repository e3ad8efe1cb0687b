#include "support/processes.h"
#include "support/tallyvane_program.h"
#include "support/test_main.h"
#include "support/xfce_desktop.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>

using namespace tallyvane;
using tests::installCodex;
using tests::output;
using tests::patience;
using Tallyvane = tests::TallyvaneProgram;

namespace {

/// How many processes run a program of this name in this test's home.
int running(const QByteArray& name) {
    return static_cast<int>(
        std::ranges::count_if(tests::processesIn(qgetenv("HOME")), [&name](const auto& process) {
            return process.read("comm").trimmed() == name.left(15);
        }));
}

} // namespace

/// The whole program among real programs of a desktop.
class DesktopTest : public tests::HermeticTest {
    Q_OBJECT

    std::optional<tests::XfceDesktop> m_desktop;

    /// The bus name of the one item that the panel shows; empty when it shows none.
    static QByteArray itemName() {
        const QByteArray items =
            property("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher",
                     "org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems");
        const qsizetype start = items.indexOf("[':") + 2;
        return items.count(':') == 1 ? items.mid(start, items.indexOf('/') - start) : QByteArray();
    }

    /// What the item shows beside its picture.
    static QByteArray label() {
        const QByteArray name = itemName();
        return name.isEmpty() ? name
                              : property(name, "/StatusNotifierItem", "org.kde.StatusNotifierItem",
                                         "XAyatanaLabel");
    }

    static QByteArray call(const QByteArray& service, const QByteArray& path,
                           const QByteArray& methodAndArguments) {
        return output("gdbus call --session --dest " + service + " --object-path " + path +
                      " --method " + methodAndArguments);
    }

    static QByteArray property(const QByteArray& service, const QByteArray& path,
                               const QByteArray& interface, const QByteArray& name) {
        return call(service, path, "org.freedesktop.DBus.Properties.Get " + interface + ' ' + name);
    }

    /// The windows of the program that can be seen, by their sizes.
    static QList<QByteArray> windows() {
        QList<QByteArray> sizes;
        for (const QByteArray& id :
             output("xdotool search --onlyvisible --name '^Tallyvane$'").split('\n')) {
            if (!id.isEmpty()) {
                const QByteArray geometry = output("xdotool getwindowgeometry " + id);
                sizes.append(geometry.mid(geometry.indexOf("Geometry: ") + 10).trimmed());
            }
        }
        return sizes;
    }

    static bool isPanelOpen() {
        const QList<QByteArray> sizes = windows();
        return sizes.size() == 1 && sizes.first().startsWith("310x");
    }

    /// What dunst has shown, as summary and body.
    static QStringList notifications() {
        const QJsonDocument history = QJsonDocument::fromJson(output("dunstctl history"));
        QStringList texts;
        for (const QJsonValue& shown : history[u"data"][0].toArray()) {
            texts << shown[u"summary"][u"data"].toString() + QLatin1String(" | ") +
                         shown[u"body"][u"data"].toString();
        }
        return texts;
    }

    static void clickItem() { output("xdotool mousemove 24 16 click 1"); }

private Q_SLOTS:
    void init() {
        HermeticTest::init();
        m_desktop.emplace();
    }

    void cleanup() {
        QTRY_COMPARE_WITH_TIMEOUT(running("tallyvane-desktop"), 0, patience);
        QTRY_COMPARE_WITH_TIMEOUT(running("codex"), 0, patience);
        m_desktop.reset();
        tests::clearHome();
    }

    void livesInThePanel() {
        installCodex(63);
        const tests::RunningProgram windowManager("xfwm4");
        const tests::RunningProgram notificationDaemon("dunst");
        // Notifications at all times of day.
        tests::writeToHome(
            QStringLiteral("config/group.corvelle.Gaugewell.conf"),
            "notificationSettings=\"@ByteArray({\\\"enabled\\\":true,\\\"windows\\\":[{\\\"id\\\":"
            "\\\"0d1a3b0e-7f0a-4b7e-9b5c-2f1f6a1c9d11\\\",\\\"enabled\\\":true,\\\"allDay\\\":true,"
            "\\\"startMinutes\\\":0,\\\"endMinutes\\\":0}]})\""
            "\nhasAskedLaunchAtLogin=true\n");
        m_desktop->startPanel();
        Tallyvane program({QStringLiteral("--background")});
        QTRY_COMPARE_WITH_TIMEOUT(label(), "(<'37%'>,)\n", patience);
        QVERIFY(windows().isEmpty());

        // The panel: below the item, until a click elsewhere or Escape.
        QTRY_VERIFY_WITH_TIMEOUT((clickItem(), QTest::qWait(300), isPanelOpen()), patience);
        QVERIFY(output("xdotool search --onlyvisible --name '^Tallyvane$' getwindowgeometry")
                    .contains("Position: 8,"));
        output("xdotool mousemove 900 700 click 1");
        QTRY_VERIFY_WITH_TIMEOUT(windows().isEmpty(), patience);
        QTest::qWait(300); // longer than a click on the item counts as the one that closed it
        clickItem();
        QTRY_VERIFY_WITH_TIMEOUT(isPanelOpen(), patience);
        QTRY_VERIFY_WITH_TIMEOUT((output("xdotool key Escape"), windows().isEmpty()), patience);

        // The menu.
        const auto choose = [](int entry) {
            call(itemName(), "/MenuBar",
                 "com.canonical.dbusmenu.Event " + QByteArray::number(entry) + " clicked '<0>' 0");
        };
        choose(4);
        QTRY_COMPARE_WITH_TIMEOUT(windows(), QList<QByteArray>{"820x700"}, patience);
        QTRY_VERIFY_WITH_TIMEOUT((output("xdotool key ctrl+w"), windows().isEmpty()), patience);

        // The command line refreshes through the program, which tells of a reset.
        installCodex(2);
        Tallyvane refresh({QStringLiteral("refresh")});
        QTRY_COMPARE_WITH_TIMEOUT(refresh.state(), QProcess::NotRunning, patience);
        QVERIFY(refresh.readAllStandardOutput().contains("98% left"));
        QCOMPARE(label(), "(<'98%'>,)\n");
        QTRY_COMPARE_WITH_TIMEOUT(
            (output("dunstctl close-all"), notifications()),
            QStringList{QStringLiteral("Tallyvane | 您的 Codex token 已经重置了。")}, patience);

        // A second start shows the window of the first.
        Tallyvane second;
        QTRY_COMPARE_WITH_TIMEOUT(second.state(), QProcess::NotRunning, patience);
        QCOMPARE(second.exitCode(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(windows(), QList<QByteArray>{"820x700"}, patience);

        m_desktop->endPanel();
        QTRY_COMPARE_WITH_TIMEOUT(itemName(), QByteArray(), patience);
        m_desktop->startPanel();
        QTRY_COMPARE_WITH_TIMEOUT(label(), "(<'98%'>,)\n", patience);

        choose(7);
        QTRY_COMPARE_WITH_TIMEOUT(program.state(), QProcess::NotRunning, patience);
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        QCOMPARE(program.readAllStandardError(), QByteArray());
    }

    void startsOnce_data() {
        QTest::addColumn<int>("starts");
        QTest::newRow("two") << 2;
        QTest::newRow("ten") << 10;
    }
    void startsOnce() {
        QFETCH(const int, starts);
        std::vector<std::unique_ptr<Tallyvane>> programs(static_cast<std::size_t>(starts));
        for (auto& program : programs) {
            program = std::make_unique<Tallyvane>(QStringList{QStringLiteral("--background")});
        }
        QTRY_COMPARE_WITH_TIMEOUT(call("org.freedesktop.DBus", "/",
                                       "org.freedesktop.DBus.NameHasOwner org.corvelle.Tallyvane"),
                                  "(true,)\n", patience);
        const auto runningStarts = [&] {
            return std::ranges::count_if(programs, [](const auto& program) {
                return program->state() != QProcess::NotRunning;
            });
        };
        QTRY_COMPARE_WITH_TIMEOUT(runningStarts(), 1, patience);
        for (const auto& program : programs) {
            QCOMPARE(program->exitCode(), 0);
        }
    }

    void clearsItsOwnPicturesAlone() {
        const QString folder =
            qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/tallyvane/");
        const QString ours = QStringLiteral("gauges-%1-symbolic.svg").arg(QString(32, u'0'));
        const QString foreign = QStringLiteral("gauges-mine-symbolic.svg");
        for (const QString& name : {ours, foreign}) {
            tests::writeFile(folder + name, "x");
        }
        {
            const Tallyvane program({QStringLiteral("--background")});
            QTRY_COMPARE_WITH_TIMEOUT(
                call("org.freedesktop.DBus", "/",
                     "org.freedesktop.DBus.NameHasOwner org.corvelle.Tallyvane"),
                "(true,)\n", patience);
        }
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList{foreign});
        QDir(folder).removeRecursively();
    }

    void goesOnWhenItIsReplaced() {
        const QString source = QFileInfo(QStringLiteral(TALLYVANE_PROGRAM)).path();
        const QDir installed(qEnvironmentVariable("HOME") + QStringLiteral("/.local"));
        const QString library = installed.filePath(QStringLiteral("tallyvane-windows.so"));
        installed.mkpath(QStringLiteral("."));
        for (const char* file : {"/tallyvane", "/tallyvane-desktop", "/tallyvane-windows.so"}) {
            QVERIFY(
                QFile::copy(source + QLatin1String(file), installed.path() + QLatin1String(file)));
        }
        Tallyvane program({QStringLiteral("--background")},
                          installed.filePath(QStringLiteral("tallyvane")));
        QTRY_COMPARE_WITH_TIMEOUT(call("org.freedesktop.DBus", "/",
                                       "org.freedesktop.DBus.NameHasOwner org.corvelle.Tallyvane"),
                                  "(true,)\n", patience);
        QVERIFY(QFile::remove(library));
        tests::writeToHome(QStringLiteral(".local/tallyvane-windows.so"), "another version");
        const Tallyvane second;
        QTRY_COMPARE_WITH_TIMEOUT(windows(), QList<QByteArray>{"820x700"}, patience);
    }

    void needsADisplay_data() {
        QTest::addColumn<QByteArray>("x11");
        QTest::addColumn<QByteArray>("wayland");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("none") << QByteArray() << QByteArray() << QByteArray("no display");
        QTest::newRow("X11 is gone") << QByteArray(":none") << QByteArray() << QByteArray(":none");
        QTest::newRow("Wayland is gone")
            << QByteArray() << QByteArray("gone") << QByteArray("qt6-wayland");
    }
    void needsADisplay() {
        QFETCH(const QByteArray, x11);
        QFETCH(const QByteArray, wayland);
        QFETCH(const QByteArray, expected);
        qputenv("DISPLAY", x11);
        qputenv("WAYLAND_DISPLAY", wayland);
        Tallyvane program;
        QTRY_COMPARE_WITH_TIMEOUT(program.state(), QProcess::NotRunning, patience);
        qunsetenv("WAYLAND_DISPLAY");
        QCOMPARE(program.exitCode(), 1);
        const QByteArray error = program.readAllStandardError();
        QVERIFY2(error.contains(expected) && error.count('\n') == 1, error);
    }
};

TALLYVANE_TEST_MAIN(DesktopTest)
#include "desktop_test.moc"
