#include "accessible_program.h"
#include "support/xfce_desktop.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QUrl>

using namespace tallyvane;
using tests::inHome;
using tests::patience;

namespace {

/// A desktop, and the program's main window on it.
struct Session {
    Session() {
        // What is scrolled away counts as not visible, and what is hovered tells more.
        tests::output("xdotool search --sync --onlyvisible --name '^Tallyvane$' "
                      "windowsize 1000 1500 mousemove 0 0");
    }

    /// Waits until exactly these texts show. Returns those that do not after "-", and those that
    /// show beside them after "+".
    [[nodiscard]] QString difference(const QStringList& texts) const {
        QStringList differing;
        const auto isAsExpected = [&] {
            QStringList absent = texts;
            differing.clear();
            for (const QString& text : seen.texts()) {
                if (!absent.removeOne(text)) {
                    differing << u'+' + text;
                }
            }
            for (const QString& text : absent) {
                differing << u'-' + text;
            }
            return differing.isEmpty();
        };
        return QTest::qWaitFor(isAsExpected, patience) ? QString() : differing.join(u'\n');
    }

    /// Ends the program and returns everything that it wrote to standard error.
    [[nodiscard]] QByteArray end() {
        program.end();
        return program.readAllStandardError();
    }

    const tests::XfceDesktop desktop;
    const tests::RunningProgram windowManager{"env NO_AT_BRIDGE=1 xfwm4 --compositor=off"};
    const tests::AccessibilityBus bus;
    tests::TallyvaneProgram program;
    const tests::AccessibleProgram seen{bus.connection, program.processId()};
};

QStringList lines(const char* text) {
    return QString::fromUtf8(text).split(u'\n', Qt::SkipEmptyParts);
}

/// With the first text of this name as of a control that is on.
QStringList on(const QString& name, QStringList texts) {
    texts[texts.indexOf(name)] += QLatin1String(" (on)");
    return texts;
}

/// Everything that there is to see on a page.
QStringList page(const QString& title, const QStringList& content) {
    return on(title, lines(R"(
Tallyvane | Tallyvane
Tallyvane
Dashboard
Usage History
Settings
This desktop shows no status icons, so Tallyvane can be seen in this window only.
)")) << title
     << content;
}

QStringList dashboard(const QStringList& codex) {
    return page(QStringLiteral("Dashboard"), lines(R"(
Updated just now
· Auto-refreshes every 5 min
Refresh
)") << codex
    << lines("Claude | 5h: --, Not available; Week: --, Not available")
    << QUrl(QStringLiteral(TALLYVANE_WEBSITE)).host());
}

QStringList dashboard(int codexLeft) {
    return dashboard(
        {QStringLiteral("Codex PLUS | 5h: %1%, Reset unknown; Week: 83%, Reset unknown")
             .arg(codexLeft)});
}

QStringList settings(bool launchesAtLogin) {
    const QStringList content = lines(R"(
Appearance
Color scheme
Color scheme
System (on)
Light
Dark
Background refresh
Launch menu bar app at login
The menu bar app refreshes Codex and Claude every five minutes. Claude usage is read from Claude Code's stored sign-in; macOS asks once for Keychain access.
Reset notifications
Notify when a quota resets
Sends a desktop alert when Codex or Claude's quota resets during an enabled window. Requires the menu bar app to be running.
Notifications are turned off in System Settings
All day
Start time | 09:00
End time | 18:00
Remove time window
Add time window
Privacy
All history stays on this Mac
No analytics, cloud database, remote logging, prompts, responses, file paths, emails, credentials, or account identifiers are collected.
Clear usage history
)");
    return page(QStringLiteral("Settings"),
                launchesAtLogin ? on(QStringLiteral("Launch menu bar app at login"), content)
                                : content);
}

QStringList historyPage(const QString& period) {
    return page(QStringLiteral("Usage History"), on(period, lines(R"(
% of quota used
Metric
% (on)
Tokens
Period
Daily
Monthly
% of quota used
Token Heatmap
Estimated tokens per day
Source
Total (on)
Codex
Claude
Token Heatmap
Less
More
Estimated result. Rolling resets, usage between syncs, and provider-side adjustments can affect accuracy. Local token totals are derived from numeric usage fields only; prompts and responses are never stored.
)")));
}

qsizetype recordedPoints() {
    const QByteArray history = tests::readFile(inHome("data/Gaugewell/usage-history.json"));
    return QJsonDocument::fromJson(history)[u"points"].toArray().size();
}

/// Of the window's backdrop, from 0 to 255.
int brightness() {
    return static_cast<uchar>(
        tests::output("import -window root -crop 1x1+60+300 -depth 8 gray:-").at(0));
}

} // namespace

/// The main window, read and used as with a screen reader.
class AccessibilityTest : public tests::HermeticTest {
    Q_OBJECT

public:
    AccessibilityTest() : HermeticTest(AfterFailure::stop) {}

private Q_SLOTS:
    void initTestCase() { qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"); }

    void init() {
        HermeticTest::init();
        tests::installCodex(63);
    }

    void cleanup() {
        tests::clearHome();
        HermeticTest::cleanup();
    }

    void usesEveryPage() {
        tests::writeFile(inHome("config/group.corvelle.Gaugewell.conf"),
                         "hasAskedLaunchAtLogin=true\n");
        Session session;
        const tests::AccessibleProgram& seen = session.seen;
        QCOMPARE(session.difference(dashboard(37)), QString());

        tests::writeFile(inHome(".local/bin/codex"),
                         "#!/bin/sh\necho '{\"error\":{\"message\":\"signed out\"},\"id\":1}'\n"
                         "cat\n");
        QVERIFY(seen.press(QStringLiteral("Refresh")));
        const QStringList oldFigures = dashboard(lines(R"(
Command failed (-1): signed out
Codex PLUS | 5h: 37%, Sync pending; Week: 83%, Sync pending
Sync pending
)"));
        QCOMPARE(session.difference(oldFigures), QString());

        tests::installCodex(2, "until [ -e \"$HOME/go\" ]; do sleep 0.1; done");
        QVERIFY(seen.press(QStringLiteral("Refresh")));
        QCOMPARE(session.difference(oldFigures + lines("Refreshing\nWorking")), QString());
        tests::writeFile(inHome("go"), {});
        QCOMPARE(session.difference(dashboard(98)), QString());

        QVERIFY(seen.press(QStringLiteral("Usage History")));
        QCOMPARE(session.difference(historyPage(QStringLiteral("Daily"))), QString());
        QVERIFY(seen.press(QStringLiteral("Monthly")));
        QCOMPARE(session.difference(historyPage(QStringLiteral("Monthly"))), QString());

        QVERIFY(seen.press(QStringLiteral("Settings")));
        QCOMPARE(session.difference(settings(false)), QString());
        QVERIFY(recordedPoints() > 0);
        QVERIFY(seen.press(QStringLiteral("Clear usage history")));
        QCOMPARE(session.difference(settings(false) << lines("Usage history cleared.")), QString());
        QCOMPARE(recordedPoints(), 0);

        QVERIFY(brightness() > 128);
        QVERIFY(seen.focus(QStringLiteral("Dark")));
        tests::output("xdotool key space");
        QVERIFY(QTest::qWaitFor([] { return brightness() < 128; }, patience));

        QVERIFY(seen.press(QStringLiteral("Dashboard")));
        QCOMPARE(session.difference(dashboard(98)), QString());
        QCOMPARE(session.end(), QByteArray());
    }

    void answersThePrompt_data() {
        QTest::addColumn<QStringList>("presses");
        QTest::addColumn<bool>("launchesAtLogin");
        QTest::newRow("later, after a page behind it") << lines("Settings\nNot now") << false;
        QTest::newRow("yes") << lines("Continue") << true;
        QTest::newRow("no") << lines("Launch Tallyvane at login\nContinue") << false;
    }
    void answersThePrompt() {
        QFETCH(const QStringList, presses);
        QFETCH(const bool, launchesAtLogin);
        Session session;
        const QStringList question = lines(R"(
Keep quotas up to date?
Keep quotas up to date?
Tallyvane can live in the menu bar and refresh Codex every five minutes after you sign in to your Mac.
Launch Tallyvane at login (on)
Not now
Continue
)");
        QCOMPARE(session.difference(dashboard(37) + question), QString());
        for (const QString& name : presses) {
            QVERIFY(session.seen.press(name));
        }
        QCOMPARE(session.difference(dashboard(37)), QString());
        QCOMPARE(tests::readFile(inHome("config/autostart/org.corvelle.Tallyvane.desktop"))
                     .contains("--background"),
                 launchesAtLogin);
        QVERIFY(session.seen.press(QStringLiteral("Settings")));
        QCOMPARE(session.difference(settings(launchesAtLogin)), QString());
        QCOMPARE(session.end(), QByteArray());
    }
};

TALLYVANE_TEST(AccessibilityTest)
#include "accessibility_test.moc"
