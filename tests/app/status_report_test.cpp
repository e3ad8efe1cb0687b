#include "app/pace_report.h"
#include "app/status_format.h"
#include "app/status_report.h"
#include "support/test_main.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace tallyvane::app;
using namespace tallyvane::model;

class StatusReportTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void text() {
        QuotaSnapshot snapshot = usedSnapshot(42, 80.4);
        snapshot.providers[0].planName = u"Plus"_s;
        snapshot.providers[1].week =
            QuotaWindowSnapshot{.usedPercent = 0, .resetsAt = m_now + 7 * 24h};
        QCOMPARE(statusText(snapshot, m_now, m_weekdayTime, Palette::plain),
                 QStringLiteral("Codex (Plus), synced 2 min ago\n"
                                "  5 hours   58% left  in 1h 30m      lasts\n"
                                "  Week        -       Reset unknown\n"
                                "Claude, synced 2 min ago\n"
                                "  5 hours   19% left  in 1h 30m      runs out in 48m\n"
                                "  Week     100% left  Tue 12:00 AM\n"));
        const QString coloured = statusText(snapshot, m_now, m_weekdayTime, Palette::ansi);
        QVERIFY(coloured.contains(u"\033[32m 58% left\033[0m"));
        QVERIFY(coloured.contains(u"\033[31m 19% left\033[0m"));
        QVERIFY(statusText(usedSnapshot(75, 0), m_now, m_weekdayTime, Palette::ansi)
                    .contains(u"\033[32m 25% left"));
        QVERIFY(statusText(shownSnapshot({}), m_now, m_weekdayTime, Palette::plain)
                    .startsWith(u"Codex, never synced\n  5 hours     -       Not available\n"));
        snapshot.providers[0].planName = u"A\033[31m\u202E\u009BB"_s; // from whomever
        QVERIFY(statusText(shownSnapshot(snapshot, AIProvider::codex), m_now, m_weekdayTime,
                           Palette::plain)
                    .startsWith(u"Codex (A), synced 2 min ago\n"));
        QCOMPARE(shownSnapshot(snapshot, AIProvider::claude).providers.size(), std::size_t{1});
    }

    void fields() {
        QuotaSnapshot snapshot = usedSnapshot(42, 80.4);
        snapshot.providers[0].planName = u"Max 20x%{A1:sh:}#[x]<b>"_s;
        snapshot.providers[1].week = QuotaWindowSnapshot{.usedPercent = 1, .resetsAt = m_now};
        snapshot.providers[1].syncState = QuotaSyncState::pending;
        const QuotaSnapshot claude = shownSnapshot(snapshot, AIProvider::claude);
        const QuotaSnapshot fast = usedSnapshot(80.4, 0);
        const QuotaSnapshot nothing = placeholderSnapshot(m_now);
        // Where the second begins with '!', part of the error.
        const std::tuple<const QuotaSnapshot&, const char*, const char*> rows[] = {
            {snapshot, "{lowest}% {{{updated}}}", "20% {just now}"},
            {snapshot, "{codex.fiveHour} {codex.fiveHour.reset}", "58 in 1h 30m"},
            {snapshot, "{codex.fiveHour.pace} {codex.fiveHour.runsOut}", "+27 -"},
            {fast, "{codex.fiveHour.pace} {codex.fiveHour.runsOut}", "-11 in 48m"},
            {snapshot, "{codex.week} {codex.week.reset} {codex.state}", "- - current"},
            {snapshot, "{codex.plan}|{claude.plan}", "Max 20xA1shxb|-"},
            {claude, "{claude.fiveHour.reset} {claude.week} {claude.state}",
             "in 1h 30m 99 pending"},
            {claude, "{lowest} {claude.week.reset} {codex.fiveHour} {codex.state}", "20 - - -"},
            {nothing, "{lowest} {codex.state} {updated}", "- unavailable -"},
            {snapshot, "{lowest", "!'{' alone"},
            {snapshot, "lowest}", "!'}' alone"},
            {snapshot, "{codex}", "!'{codex}'"},
            {snapshot, "{gemini.week}", "!'{gemini.week}'"},
            {snapshot, "{codex.plan.reset}", "!'{codex.plan.reset}'"},
            {snapshot, "{codex.week.}", "!'{codex.week.}'"},
            {snapshot, "{codex.week.reset.x}", "!'{codex.week.reset.x}'"}};
        for (const auto& [shown, format, expected] : rows) {
            const auto text =
                formattedStatus(QString::fromLatin1(format), shown, m_now, m_weekdayTime);
            const QString result = text ? *text : u'!' + text.error();
            QVERIFY2(text ? result == QLatin1StringView(expected)
                          : result.contains(QLatin1StringView(expected + 1)),
                     qPrintable(result));
        }
    }

    void paces() {
        QuotaSnapshot snapshot = usedSnapshot(80.4, 100);
        snapshot.providers[0].week = {.usedPercent = 1, .resetsAt = m_now + 167h};
        QCOMPARE(paceTable(snapshot, m_now),
                 QStringLiteral("Provider  Window    Left   Even  Ahead  Used at reset  Outlook\n"
                                "Codex     5 hours    20%    31%    -11           116%  "
                                "runs out in 48m\n"
                                "Codex     Week       99%    99%      0              -  -\n"
                                "Claude    5 hours     0%    31%    -31           144%  -\n"
                                "Claude    Week         -      -      -              -  -\n"));
        const QJsonArray windows =
            QJsonDocument::fromJson(paceJson(snapshot, m_now))[u"windows"].toArray();
        QCOMPARE(windows.size(), 3);
        QCOMPARE(windows[0][u"runsOutAt"].toString(), u"2025-01-28T00:48:42Z");
        QVERIFY(windows[1][u"projectedPercent"].isUndefined());
        QVERIFY(windows[2][u"runsOutAt"].isUndefined());
    }

    void waybar() {
        const auto check = [this](const char* className, const char* text,
                                  const QuotaSnapshot& snapshot) {
            const QString line = waybarLine(snapshot, m_now);
            QVERIFY2(line.count(u'\n') == 1, text);
            const QJsonDocument json = QJsonDocument::fromJson(line.toUtf8());
            QCOMPARE(json[u"text"].toString(), QLatin1StringView(text));
            QCOMPARE(json[u"class"].toString(), QLatin1StringView(className));
            QCOMPARE(json[u"percentage"].isUndefined(), *text == '\0');
            QCOMPARE(json[u"percentage"].toInt(), QByteArray(text).replace("%", "").toInt());
            QVERIFY2(json[u"tooltip"].toString().contains(u"\nClaude: "), text);
        };
        check("ok", "25%", usedSnapshot(75, 42));
        check("low", "24%", usedSnapshot(42, 75.6));
        check("none", "", placeholderSnapshot(m_now));
        QuotaSnapshot pending = usedSnapshot(42, 80);
        pending.providers[1].syncState = QuotaSyncState::pending;
        check("stale", "20%", pending);
        pending.providers[1].fiveHour->usedPercent = 10;
        check("ok", "58%", pending);
        QuotaSnapshot early = usedSnapshot(42, 10);
        early.updatedAt += 1min;
        check("ok", "58%", early);
        early.updatedAt += 1s;
        check("stale", "58%", early);
        QVERIFY(waybarLine(usedSnapshot(80.4, 0), m_now)
                    .contains(u"WK -\\n\u20035H runs out in 48m\\nClaude: "));
        QVERIFY(!waybarLine(placeholderSnapshot(m_now), m_now).contains(u'0'));
        QuotaSnapshot old = usedSnapshot(43, 10);
        old.updatedAt -= 16min;
        check("stale", "57%", old);
        pending.providers[1].statusMessage = u"<b>&"_s; // not markup
        QVERIFY(waybarLine(pending, m_now).contains(u"Claude: &lt;b&gt;&amp;"));
    }

private:
    QuotaSnapshot usedSnapshot(double codexUsed, double claudeUsed) const {
        QuotaSnapshot snapshot = placeholderSnapshot(m_now);
        for (ProviderQuotaSnapshot& entry : snapshot.providers) {
            const double used = entry.provider == AIProvider::codex ? codexUsed : claudeUsed;
            entry.fiveHour = QuotaWindowSnapshot{.usedPercent = used, .resetsAt = m_now + 90min};
            entry.syncedAt = m_now - 2min;
            entry.syncState = QuotaSyncState::current;
        }
        return snapshot;
    }

    const WeekdayTimeFormat m_weekdayTime{"en_US", LocalZone(QTimeZone::utc())};
    const Timestamp m_now =
        std::chrono::sys_days{std::chrono::year{2025} / std::chrono::January / 28};
};

TALLYVANE_TEST(StatusReportTest)
#include "status_report_test.moc"
