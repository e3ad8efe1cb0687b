#include "app/status_report.h"
#include "support/test_main.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

using namespace std::chrono_literals;
using namespace tallyvane::app;
using namespace tallyvane::model;

class StatusReportTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void text() {
        QuotaSnapshot snapshot = usedSnapshot(42, 80.4);
        snapshot.providers[0].planName = QStringLiteral("Plus");
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

    void waybar_data() {
        QTest::addColumn<QuotaSnapshot>("snapshot");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("className");
        const auto row = [](const char* className, const char* text, QuotaSnapshot snapshot) {
            QTest::addRow("%s %s", className, text)
                << snapshot << QString::fromLatin1(text) << QString::fromLatin1(className);
        };
        const auto changed = [](QuotaSnapshot snapshot, auto change) {
            change(snapshot);
            return snapshot;
        };
        row("ok", "25%", usedSnapshot(75, 42));
        row("low", "24%", usedSnapshot(42, 75.6));
        row("none", "", placeholderSnapshot(m_now));
        row("stale", "20%", changed(usedSnapshot(42, 80), [](QuotaSnapshot& snapshot) {
                snapshot.providers[1].syncState = QuotaSyncState::pending;
            }));
        row("ok", "58%", changed(usedSnapshot(42, 10), [](QuotaSnapshot& snapshot) {
                snapshot.providers[1].syncState = QuotaSyncState::pending;
            }));
        row("stale", "57%", changed(usedSnapshot(43, 10), [](QuotaSnapshot& snapshot) {
                snapshot.updatedAt -= 16min;
            }));
    }

    void waybar() {
        QFETCH(QuotaSnapshot, snapshot);
        QFETCH(QString, text);
        QFETCH(QString, className);
        const QString line = waybarLine(snapshot, m_now);
        QCOMPARE(line.count(u'\n'), 1);
        const QJsonObject json = QJsonDocument::fromJson(line.toUtf8()).object();
        QCOMPARE(json[u"text"].toString(), text);
        QCOMPARE(json[u"class"].toString(), className);
        QCOMPARE(json[u"percentage"].toInt(), text.chopped(text.isEmpty() ? 0 : 1).toInt());
        QVERIFY(json[u"tooltip"].toString().contains(u"\nClaude: "));
    }

    void waybarEscapesMarkup() {
        QuotaSnapshot snapshot = usedSnapshot(1, 1);
        snapshot.providers[1].syncState = QuotaSyncState::pending;
        snapshot.providers[1].statusMessage = QStringLiteral("<b>&");
        QVERIFY(waybarLine(snapshot, m_now).contains(u"Claude: &lt;b&gt;&amp;"));
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
