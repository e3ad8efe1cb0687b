#include "app/status_report.h"
#include "support/test_main.h"

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
        const WeekdayTimeFormat weekdayTime("en_US", LocalZone(QTimeZone::utc()));
        QCOMPARE(statusText(snapshot, m_now, weekdayTime, Palette::plain),
                 QStringLiteral("Codex (Plus), synced 2 min ago\n"
                                "  5 hours   58% left  in 1h 30m\n"
                                "  Week        -       Reset unknown\n"
                                "Claude, synced 2 min ago\n"
                                "  5 hours   19% left  in 1h 30m\n"
                                "  Week     100% left  Tue 12:00 AM\n"));
        const QString coloured = statusText(snapshot, m_now, weekdayTime, Palette::ansi);
        QVERIFY(coloured.contains(u"\033[32m 58% left\033[0m"));
        QVERIFY(coloured.contains(u"\033[31m 19% left\033[0m"));
        QVERIFY(statusText({}, m_now, weekdayTime, Palette::plain)
                    .startsWith(u"Codex, never synced\n  5 hours     -       Not available\n"));
    }

    void waybar() {
        const auto check = [this](const char* className, const char* text,
                                  const QuotaSnapshot& snapshot) {
            const QString line = waybarLine(snapshot, m_now);
            QVERIFY2(line.count(u'\n') == 1, text);
            const QJsonDocument json = QJsonDocument::fromJson(line.toUtf8());
            QCOMPARE(json[u"text"].toString(), QLatin1StringView(text));
            QCOMPARE(json[u"class"].toString(), QLatin1StringView(className));
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

    const Timestamp m_now =
        std::chrono::sys_days{std::chrono::year{2025} / std::chrono::January / 28};
};

TALLYVANE_TEST(StatusReportTest)
#include "status_report_test.moc"
