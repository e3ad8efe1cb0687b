#include "model/timestamp.h"
#include "support/test_main.h"

using namespace std::chrono_literals;
using namespace tallyvane::model;

class TimestampTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void parses_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("whole"); // as written back; empty: refused
        QTest::addColumn<bool>("alsoWithFraction");
        const auto row = [](const char* text, const char* whole, bool alsoWithFraction) {
            QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(whole)
                                << alsoWithFraction;
        };
        row("2025-01-31T14:05:00Z", "2025-01-31T14:05:00Z", true);
        row("2025-01-31T00:30:00+01:00", "2025-01-30T23:30:00Z", true);
        row("2024-02-29T23:59:59-23:59", "2024-03-01T23:58:59Z", true);
        row("1969-12-31T23:59:59Z", "1969-12-31T23:59:59Z", true);
        row("0000-01-01T00:00:00Z", "0000-01-01T00:00:00Z", true);
        row("2026-04-11T07:00:00.528743+00:00", "", true);
        row("2026-04-11T07:00:00.5287431234567890123456789Z", "", true);
        for (const char* refused : {"",
                                    "2025-01-31",
                                    "2025-01-31T14:05:00",
                                    "2025-01-31 14:05:00Z",
                                    "2025-01-31t14:05:00z",
                                    "2025-1-31T14:05:00Z",
                                    "2025-13-01T00:00:00Z",
                                    "2025-00-10T00:00:00Z",
                                    "2025-02-29T00:00:00Z",
                                    "2025-04-31T00:00:00Z",
                                    "2025-01-31T24:00:00Z",
                                    "2025-01-31T23:60:00Z",
                                    "2025-01-31T23:59:60Z",
                                    "2025-01-31T14:05:00+1:00",
                                    "2025-01-31T14:05:00+01",
                                    "2025-01-31T14:05:00+24:00",
                                    "2025-01-31T14:05:00Z ",
                                    "2025-01-31T14:05:00.Z",
                                    "-025-01-31T14:05:00Z",
                                    "+2025-01-31T14:05:00Z",
                                    "0000-01-01T00:00:00+00:01",
                                    "9999-12-31T23:59:59-00:01"}) {
            row(refused, "", false);
        }
    }

    void parses() {
        QFETCH(QString, text);
        QFETCH(QString, whole);
        QFETCH(bool, alsoWithFraction);
        const auto parsed = parseTimestamp(text, FractionalSeconds::rejected);
        QCOMPARE(parsed ? formatTimestamp(*parsed) : QString(), whole);
        QCOMPARE(parseTimestamp(text, FractionalSeconds::allowed).has_value(), alsoWithFraction);
    }

    void keepsMicroseconds() {
        const auto parsed =
            parseTimestamp(u"2026-04-11T07:00:00.528743+00:00", FractionalSeconds::allowed);
        QCOMPARE(parsed->time_since_epoch() % 1s, 528'743us);
    }

    void unixSeconds() {
        QCOMPARE(formatTimestamp(*timestampFromUnixSeconds(1750000000)),
                 QStringLiteral("2025-06-15T15:06:40Z"));
        QCOMPARE(formatTimestamp(*timestampFromUnixSeconds(-0.5)),
                 QStringLiteral("1969-12-31T23:59:59Z"));
        for (const double refused :
             {1e300, -1e300, 253402300800.0, -62167219201.0, qInf(), qQNaN()}) {
            QVERIFY(!timestampFromUnixSeconds(refused));
        }
    }
};

TALLYVANE_TEST_MAIN(TimestampTest)
#include "timestamp_test.moc"
