#include "accessible_program.h"
#include "status_item.h"
#include "support/xfce_desktop.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QStandardPaths>

#include <unistd.h>

using namespace tallyvane;
using namespace Qt::StringLiterals;
using tests::inHome;

namespace {

/// A tiling Wayland compositor in the window of an X server, which gives it a pointer and a
/// keyboard, with a bar that has the status area at its left. Programs see no X server.
class SwayDesktop {
public:
    SwayDesktop() {
        tests::writeFile(inHome("sway.conf"), "xwayland disable\ndefault_border none\n");
        tests::writeFile(inHome("waybar.json"), R"({"height": 30, "modules-left": ["tray"]})");
        qputenv("SWAYSOCK", inHome("sway.sock").toUtf8());
        // It refuses to run as root.
        const QByteArray asUser =
            ::geteuid() == 0 ? "unshare --user --map-user=1000 --map-group=1000 " : "";
        m_sway.emplace(asUser + "env WLR_BACKENDS=x11 WLR_RENDERER=pixman sway --config "
                                "\"$HOME/sway.conf\"");
        qputenv("WAYLAND_DISPLAY", "wayland-1");
        m_isRunning = QTest::qWaitFor(
            [] { return output("swaymsg -t get_outputs").contains("\"active\": true"); },
            tests::patience);
        qunsetenv("DISPLAY");
        startBar();
    }
    ~SwayDesktop() {
        qunsetenv("WAYLAND_DISPLAY");
        qunsetenv("SWAYSOCK");
    }
    SwayDesktop(const SwayDesktop&) = delete;
    SwayDesktop& operator=(const SwayDesktop&) = delete;

    void startBar() { m_bar.emplace("env NO_AT_BRIDGE=1 waybar --config \"$HOME/waybar.json\""); }
    void endBar() { m_bar.reset(); }

    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    /// Uses the pointer and the keyboard.
    void use(const QByteArray& commands) const {
        output("env DISPLAY=" + m_x11Display + " xdotool " + commands);
    }
    /// The kinds and sizes of the windows, such as "floating_con 310x205".
    [[nodiscard]] static QStringList windows() {
        QStringList windows;
        collect(QJsonDocument::fromJson(output("swaymsg -t get_tree")).object(), windows);
        return windows;
    }

    const tests::PrivateBus bus;

private:
    static QByteArray output(const QByteArray& command) { return tests::output(command); }
    static void collect(const QJsonObject& node, QStringList& windows) {
        if (node.contains("pid"_L1)) {
            const QJsonObject place = node["rect"_L1].toObject();
            windows << u"%1 %2x%3"_s.arg(node["type"_L1].toString())
                           .arg(place["width"_L1].toInt())
                           .arg(place["height"_L1].toInt());
        }
        for (const auto& list : {"nodes"_L1, "floating_nodes"_L1}) {
            for (const auto child : node[list].toArray()) {
                collect(child.toObject(), windows);
            }
        }
    }

    const tests::VirtualDisplay m_display;
    const QByteArray m_x11Display = qgetenv("DISPLAY");
    bool m_isRunning = false;
    std::optional<tests::RunningProgram> m_sway;
    std::optional<tests::RunningProgram> m_bar;
};

} // namespace

/// The program as a Wayland client, under a compositor that tiles windows.
class WaylandTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void livesInTheBar() {
        for (const auto& program : {u"sway"_s, u"waybar"_s, u"unshare"_s}) {
            if (QStandardPaths::findExecutable(program).isEmpty()) {
                TALLYVANE_SKIP("a program of the desktop is not installed");
            }
        }
        qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
        // The test may ask for what a change of the page has just removed.
        qputenv("QT_LOGGING_RULES", "qt.accessibility.atspi=false");
        tests::installCodex(63);
        tests::writeFile(inHome("config/group.corvelle.Gaugewell.conf"),
                         "hasAskedLaunchAtLogin=true\n");
        SwayDesktop desktop;
        if (!desktop.isRunning()) {
            TALLYVANE_SKIP("sway does not start here");
        }
        const tests::AccessibilityBus accessibility;
        const tests::AccessiblePrograms seen(accessibility.connection);
        const auto shows = [&seen](const QString& text) { return seen.texts().contains(text); };
        tests::TallyvaneProgram program("--background");
        TALLYVANE_TRY_COMPARE(tests::item("XAyatanaLabel"), "(<'37%'>,)");
        QVERIFY(SwayDesktop::windows().isEmpty());

        // The panel floats, until a click elsewhere, Escape or another click on the item.
        const auto isPanelOpen = [] {
            const QStringList windows = SwayDesktop::windows();
            return windows.size() == 1 && windows.constFirst().startsWith("floating_con 310x"_L1);
        };
        const auto hasOpenedPanel = [&] {
            const auto clickAndLook = [&] {
                desktop.use("mousemove 20 15 click 1");
                return QTest::qWaitFor(isPanelOpen, 3000); // a second click would close it
            };
            return QTest::qWaitFor(clickAndLook, tests::patience);
        };
        for (const char* const closing :
             {"mousemove 900 700 click 1", "key Escape", "mousemove 20 15 click 1"}) {
            QVERIFY2(hasOpenedPanel(), qPrintable(SwayDesktop::windows().join(u'\n')));
            desktop.use(closing);
            TALLYVANE_TRY_VERIFY(SwayDesktop::windows().isEmpty());
        }
        QVERIFY(hasOpenedPanel());
        TALLYVANE_TRY_VERIFY(seen.texts().join(u"; "_s).contains(u"5H 37%"_s));

        // Its third control opens the window, which the keyboard takes from page to page.
        desktop.use("key Tab Tab Tab Return");
        TALLYVANE_TRY_COMPARE(SwayDesktop::windows(), QStringList(u"con 1024x738"_s));
        TALLYVANE_TRY_VERIFY(shows(u"Dashboard (on)"_s));
        desktop.use("key ctrl+2");
        TALLYVANE_TRY_VERIFY(shows(u"Token Heatmap"_s));
        desktop.use("key ctrl+comma");
        TALLYVANE_TRY_VERIFY(shows(u"Color scheme"_s));
        desktop.use("key ctrl+w");
        TALLYVANE_TRY_VERIFY(SwayDesktop::windows().isEmpty());

        desktop.endBar();
        TALLYVANE_TRY_COMPARE(tests::shownItems(), 0);
        desktop.startBar();
        TALLYVANE_TRY_COMPARE(tests::item("XAyatanaLabel"), "(<'37%'>,)");
        QVERIFY(hasOpenedPanel());
        desktop.use("key ctrl+q");
        QVERIFY(program.hasEnded());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.readAllStandardError(), QByteArray());
    }
};

TALLYVANE_TEST(WaylandTest)
#include "wayland_test.moc"
