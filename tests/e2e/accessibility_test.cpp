#include "accessible_program.h"
#include "support/test_main.h"
#include "support/xfce_desktop.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QUrl>

using namespace tallyvane;
using tests::patience;

namespace {

/// A desktop, and the program's main window on it.
struct Session {
    Session() {
        // What is scrolled away counts as not visible, and what is hovered tells more.
        tests::output("xdotool search --sync --onlyvisible --name '^Tallyvane$' "
                      "windowsize 1000 1500 mousemove 0 0");
    }

    /// Those of the texts that cannot be seen now.
    [[nodiscard]] QStringList missing(QStringList texts) const {
        for (const QString& text : seen.texts()) {
            texts.removeOne(text);
        }
        return texts;
    }

    const tests::XfceDesktop desktop;
    const tests::RunningProgram windowManager{"env NO_AT_BRIDGE=1 xfwm4"};
    const tests::AccessibilityBus bus;
    tests::TallyvaneProgram program;
    const tests::AccessibleProgram seen{bus.connection, program.processId()};
};

/// Everything that there is to see on a page.
QStringList page(const QString& title, const QStringList& content) {
    QStringList texts{
        QStringLiteral("Tallyvane | Tallyvane"),
        QStringLiteral("Tallyvane"),
        QStringLiteral("Dashboard"),
        QStringLiteral("Usage History"),
        QStringLiteral("Settings"),
        QStringLiteral("This desktop shows no status icons, so Tallyvane can be seen in this "
                       "window only."),
        title,
    };
    texts[texts.indexOf(title)] += QLatin1String(" (on)");
    return texts + content;
}

QStringList dashboard(const QString& codex) {
    return page(QStringLiteral("Dashboard"),
                {QStringLiteral("Updated just now"), QStringLiteral("· Auto-refreshes every 5 min"),
                 QStringLiteral("Refresh"), codex,
                 QStringLiteral("Claude | 5h: --, Not available; Week: --, Not available"),
                 QUrl(QStringLiteral(TALLYVANE_WEBSITE)).host()});
}

QStringList settings(const QString& launchAtLogin) {
    return page(
        QStringLiteral("Settings"),
        {QStringLiteral("Appearance"),
         QStringLiteral("Color scheme"),
         QStringLiteral("Color scheme"),
         QStringLiteral("System (on)"),
         QStringLiteral("Light"),
         QStringLiteral("Dark"),
         QStringLiteral("Background refresh"),
         launchAtLogin,
         QStringLiteral("The menu bar app refreshes Codex and Claude every five minutes. Claude "
                        "usage is read from Claude Code's stored sign-in; macOS asks once for "
                        "Keychain access."),
         QStringLiteral("Reset notifications"),
         QStringLiteral("Notify when a quota resets"),
         QStringLiteral("Sends a desktop alert when Codex or Claude's quota resets during an "
                        "enabled window. Requires the menu bar app to be running."),
         QStringLiteral("Notifications are turned off in System Settings"),
         QStringLiteral("All day"),
         QStringLiteral("Start time | 09:00"),
         QStringLiteral("End time | 18:00"),
         QStringLiteral("Remove time window"),
         QStringLiteral("Add time window"),
         QStringLiteral("Privacy"),
         QStringLiteral("All history stays on this Mac"),
         QStringLiteral("No analytics, cloud database, remote logging, prompts, responses, file "
                        "paths, emails, credentials, or account identifiers are collected."),
         QStringLiteral("Clear usage history")});
}

qsizetype recordedPoints() {
    QFile file(QDir::home().filePath(QStringLiteral("data/Gaugewell/usage-history.json")));
    return file.open(QIODevice::ReadOnly)
               ? QJsonDocument::fromJson(file.readAll())[u"points"].toArray().size()
               : -1;
}

} // namespace

/// The main window, read and used as with a screen reader.
class AccessibilityTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"); }

    void init() {
        HermeticTest::init();
        tests::installCodex(63);
    }

    void cleanup() { tests::clearHome(); }

    void usesEveryPage() {
        tests::writeToHome(QStringLiteral("config/group.corvelle.Gaugewell.conf"),
                           "hasAskedLaunchAtLogin=true\n");
        Session session;
        const tests::AccessibleProgram& seen = session.seen;
        const QString codex =
            QStringLiteral("Codex PLUS | 5h: %1%, Reset unknown; Week: 83%, Reset unknown");
        QTRY_COMPARE_WITH_TIMEOUT(seen.texts(), dashboard(codex.arg(37)), patience);

        tests::installCodex(2, "until [ -e \"$HOME/data/go\" ]; do sleep 0.1; done");
        QVERIFY(seen.press(QStringLiteral("Refresh")));
        QTRY_COMPARE_WITH_TIMEOUT(
            session.missing({QStringLiteral("Refreshing"), QStringLiteral("Working")}),
            QStringList(), patience);
        tests::writeToHome(QStringLiteral("data/go"), {});
        QTRY_COMPARE_WITH_TIMEOUT(seen.texts(), dashboard(codex.arg(98)), patience);

        tests::writeToHome(QStringLiteral(".local/bin/codex"),
                           "#!/bin/sh\necho '{\"error\":{\"message\":\"signed out\"},\"id\":1}'\n"
                           "cat\n");
        QVERIFY(seen.press(QStringLiteral("Refresh")));
        QTRY_COMPARE_WITH_TIMEOUT(
            session.missing({QStringLiteral("Command failed (-1): signed out"),
                             QStringLiteral("Sync pending")}),
            QStringList(), patience);

        QVERIFY(seen.press(QStringLiteral("Usage History")));
        const QStringList history = page(
            QStringLiteral("Usage History"),
            {QStringLiteral("% of quota used"), QStringLiteral("Metric"), QStringLiteral("% (on)"),
             QStringLiteral("Tokens"), QStringLiteral("Period"), QStringLiteral("Daily (on)"),
             QStringLiteral("Monthly"), QStringLiteral("% of quota used"),
             QStringLiteral("Token Heatmap"), QStringLiteral("Estimated tokens per day"),
             QStringLiteral("Source"), QStringLiteral("Total (on)"), QStringLiteral("Codex"),
             QStringLiteral("Claude"), QStringLiteral("Token Heatmap"), QStringLiteral("Less"),
             QStringLiteral("More"),
             QStringLiteral("Estimated result. Rolling resets, usage between syncs, and "
                            "provider-side adjustments can affect accuracy. Local token totals "
                            "are derived from numeric usage fields only; prompts and responses "
                            "are never stored.")});
        QTRY_COMPARE_WITH_TIMEOUT(session.missing(history), QStringList(), patience);
        QVERIFY(seen.press(QStringLiteral("Monthly")));
        QTRY_COMPARE_WITH_TIMEOUT(
            session.missing(history),
            QStringList{QStringLiteral("Daily (on)")} << QStringLiteral("Monthly"), patience);

        QVERIFY(seen.press(QStringLiteral("Settings")));
        const QStringList launchesNot = settings(QStringLiteral("Launch menu bar app at login"));
        QTRY_COMPARE_WITH_TIMEOUT(seen.texts(), launchesNot, patience);
        QVERIFY(recordedPoints() > 0);
        QVERIFY(seen.press(QStringLiteral("Clear usage history")));
        QTRY_COMPARE_WITH_TIMEOUT(
            seen.texts(), launchesNot + QStringList{QStringLiteral("Usage history cleared.")},
            patience);
        QCOMPARE(recordedPoints(), 0);

        QVERIFY(seen.press(QStringLiteral("Dashboard")));
        QTRY_COMPARE_WITH_TIMEOUT(session.missing(dashboard(QStringLiteral("Sync pending"))),
                                  QStringList(), patience);
        QCOMPARE(session.program.end(), QByteArray());
    }

    void answersThePrompt_data() {
        QTest::addColumn<QStringList>("presses");
        QTest::addColumn<bool>("launchesAtLogin");
        const QString proceed = QStringLiteral("Continue");
        QTest::newRow("later") << QStringList{QStringLiteral("Not now")} << false;
        QTest::newRow("yes") << QStringList{proceed} << true;
        QTest::newRow("no") << QStringList{QStringLiteral("Launch Tallyvane at login"), proceed}
                            << false;
        QTest::newRow("nothing behind it")
            << QStringList{QStringLiteral("Settings"), QStringLiteral("Not now")} << false;
    }
    void answersThePrompt() {
        QFETCH(const QStringList, presses);
        QFETCH(const bool, launchesAtLogin);
        Session session;
        const QString codex =
            QStringLiteral("Codex PLUS | 5h: 37%, Reset unknown; Week: 83%, Reset unknown");
        const QStringList question{
            QStringLiteral("Keep quotas up to date?"),
            QStringLiteral("Keep quotas up to date?"),
            QStringLiteral("Tallyvane can live in the menu bar and refresh Codex every five "
                           "minutes after you sign in to your Mac."),
            QStringLiteral("Launch Tallyvane at login (on)"),
            QStringLiteral("Not now"),
            QStringLiteral("Continue"),
        };
        QTRY_COMPARE_WITH_TIMEOUT(session.seen.texts(), dashboard(codex) + question, patience);
        for (const QString& name : presses) {
            QVERIFY(session.seen.press(name));
        }
        QTRY_COMPARE_WITH_TIMEOUT(session.seen.texts(), dashboard(codex), patience);
        QFile entry(QDir::home().filePath(
            QStringLiteral("config/autostart/org.corvelle.Tallyvane.desktop")));
        QCOMPARE(entry.open(QIODevice::ReadOnly) && entry.readAll().contains("--background"),
                 launchesAtLogin);
        QVERIFY(session.seen.press(QStringLiteral("Settings")));
        QTRY_COMPARE_WITH_TIMEOUT(session.seen.texts(),
                                  settings(QLatin1String("Launch menu bar app at login") +
                                           QLatin1String(launchesAtLogin ? " (on)" : "")),
                                  patience);
        QCOMPARE(session.program.end(), QByteArray());
    }
};

TALLYVANE_TEST_MAIN(AccessibilityTest)
#include "accessibility_test.moc"
