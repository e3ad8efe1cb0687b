#include "accessible_program.h"
#include "support/xfce_desktop.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QUrl>

using namespace tallyvane;
using namespace Qt::StringLiterals;
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

    const tests::XfceDesktop desktop;
    const tests::RunningProgram windowManager{"env NO_AT_BRIDGE=1 xfwm4 --compositor=off"};
    const tests::AccessibilityBus bus;
    tests::TallyvaneProgram program;
    const tests::AccessiblePrograms seen{bus.connection};
};

QStringList lines(const char* text) {
    return QString::fromUtf8(text).split(u'\n', Qt::SkipEmptyParts);
}

/// Everything that there is to see on a page, and the program itself.
QStringList page(const QString& title, const QStringList& content) {
    QStringList texts = lines(R"(
Tallyvane
Tallyvane
Dashboard
Usage History
Settings
Keyboard shortcuts and About
This desktop shows no status icons, so Tallyvane can be seen in this window only. It keeps running when you close the window.
Add a status area to the panel, often called system tray, that shows StatusNotifier items.
Quit Tallyvane
Don't show again
)");
    texts[texts.indexOf(title)] += u" (on)"_s;
    return texts << u"tallyvane | " TALLYVANE_PROGRAM "-desktop"_s << title << content;
}

QStringList dashboard(const QStringList& codex) {
    return page(u"Dashboard"_s, lines(R"(
Updated just now
· Auto-refreshes every 5 min
Refresh
Claude | 5h: --, Not available; Week: --, Not available; No sign-in of Claude Code was found. Start 'claude' in a terminal and sign in.
)") << codex
    << u"Bars and percentages show what is left of each quota."_s
    << QUrl(QStringLiteral(TALLYVANE_WEBSITE)).host());
}

QStringList dashboard(int codexLeft) {
    return dashboard(
        {u"Codex PLUS | 5h: %1%, Reset unknown; Week: 83%, Reset unknown"_s.arg(codexLeft)});
}

QStringList settings(const char* launch) {
    return page(u"Settings"_s, lines(R"(
Appearance
Color scheme
Color scheme
System (on)
Light
Dark
Assistants shown
Assistants shown
Both (on)
Codex
Claude
A hidden assistant is not asked for figures, and its history is kept. One is always shown.
Background refresh
The menu bar app refreshes Codex and Claude every five minutes. Claude usage is read from Claude Code's stored sign-in; macOS asks once for Keychain access.
Codex program
Codex program | Automatic
In use: ~/.local/bin/codex, found by Tallyvane.
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
Low quota
Notify when a quota runs low
Sends a desktop alert when 25 % and 10 % of a quota are left, and when it is going to run out before its reset. The time windows above apply. Requires the menu bar app to be running.
)") << lines(launch));
}

const QStringList historyPage = page(u"Usage History"_s, lines(R"(
% of quota used
Codex
Claude
Metric
% (on)
Tokens
Period
Daily (on)
Monthly
Copy
% of quota used
Nothing recorded yet
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
)"));

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

private Q_SLOTS:
    void usesEveryPage() {
        qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
        tests::installCodex(63);
        Session session;
        const tests::AccessiblePrograms& seen = session.seen;
        QCOMPARE(session.difference(dashboard(37) + lines(R"(
Keep quotas up to date?
Keep quotas up to date?
Tallyvane can live in the menu bar and refresh Codex every five minutes after you sign in to your Mac.
Launch Tallyvane at login (on)
Not now
Continue
)")),
                 QString());
        QVERIFY(seen.press(u"Launch Tallyvane at login"_s) && seen.press(u"Continue"_s));
        QCOMPARE(session.difference(dashboard(37)), QString());

        tests::writeFile(inHome(".local/bin/codex"),
                         "#!/bin/sh\necho '{\"error\":{\"message\":\"signed out\"},\"id\":1}'\n"
                         "cat\n");
        QVERIFY(seen.press(u"Refresh"_s));
        const QStringList oldFigures = dashboard(lines(R"(
Command failed (-1): signed out
Start 'codex' in a terminal to see whether it works there.
Codex PLUS | 5h: 37%, Sync pending; Week: 83%, Sync pending; From just now
Sync pending
)"));
        QCOMPARE(session.difference(oldFigures), QString());
        tests::installCodex(2, "until [ -e \"$HOME/go\" ]; do sleep 0.1; done");
        QVERIFY(seen.press(u"Refresh"_s));
        QCOMPARE(session.difference(oldFigures + lines("Refreshing\nWorking")), QString());
        tests::writeFile(inHome("go"), {});
        QCOMPARE(session.difference(dashboard(98)), QString());

        QVERIFY(seen.press(u"Usage History"_s));
        QCOMPARE(session.difference(historyPage), QString());

        QVERIFY(seen.press(u"Settings"_s));
        const char* const launch = "Launch menu bar app at login";
        QCOMPARE(session.difference(settings(launch)), QString());
        QVERIFY(seen.press(QString::fromUtf8(launch)));
        QCOMPARE(session.difference(settings("Launch menu bar app at login (on)")), QString());
        QVERIFY(tests::readFile(inHome("config/autostart/org.corvelle.Tallyvane.desktop"))
                    .contains("--background"));
        QVERIFY(recordedPoints() > 0);
        QVERIFY(seen.press(u"Clear usage history"_s));
        QCOMPARE(session.difference(
                     settings("Launch menu bar app at login (on)\nUsage history cleared.")),
                 QString());
        QCOMPARE(recordedPoints(), 0);

        QVERIFY(brightness() > 128);
        QVERIFY(seen.press(u"Dark"_s));
        TALLYVANE_TRY_VERIFY(brightness() < 128);
        QVERIFY(seen.press(u"Dashboard"_s));
        QCOMPARE(session.difference(dashboard(98)), QString());
        session.program.end();
        QCOMPARE(session.program.readAllStandardError(), QByteArray());
    }
};

TALLYVANE_TEST(AccessibilityTest)
#include "accessibility_test.moc"
