#include "model/timestamp.h"
#include "support/test_main.h"

using namespace std::chrono_literals;
using namespace tallyvane::model;

class TimestampTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void parses() {
        const std::pair<const char*, const char*> rows[] = {
            {"2025-01-31T14:05:00Z", "2025-01-31T14:05:00Z"},
            {"2025-01-31T00:30:00+01:00", "2025-01-30T23:30:00Z"},
            {"2024-02-29T23:59:59-23:59", "2024-03-01T23:58:59Z"},
            {"1969-12-31T23:59:59Z", "1969-12-31T23:59:59Z"},
            {"0000-01-01T00:00:00Z", "0000-01-01T00:00:00Z"}};
        for (const auto& [text, expected] : rows) {
            const QString given = QString::fromLatin1(text);
            const auto parsed = parseTimestamp(given, FractionalSeconds::rejected);
            QVERIFY2(parsed && parsed == parseTimestamp(given, FractionalSeconds::allowed), text);
            QCOMPARE(formatTimestamp(*parsed), QString::fromLatin1(expected));
        }
        for (const QStringView text : {u"2026-04-11T07:00:00.528743+00:00",
                                       u"2026-04-11T07:00:00.5287431234567890123456789Z"}) {
            QVERIFY(!parseTimestamp(text, FractionalSeconds::rejected));
            const auto parsed = parseTimestamp(text, FractionalSeconds::allowed);
            QCOMPARE(parsed->time_since_epoch() % 1s, 528'743us);
        }
    }

    void rejects() {
        const std::pair<const char*, const char*> changes[] = {
            {"T14:05:00Z", ""}, {"Z", ""},          {"T", " "},         {"T", "t"},
            {"Z", "z"},         {"-01-", "-1-"},    {"-01-", "-13-"},   {"-01-", "-00-"},
            {"01-31", "02-29"}, {"01-31", "04-31"}, {"01-31", "01-00"}, {"14:", "24:"},
            {":05", ":60"},     {":00Z", ":60Z"},   {"Z", "+1:00"},     {"Z", "+01"},
            {"Z", "+24:00"},    {"Z", "+00:60"},    {"Z", "Z "},        {"Z", ".Z"},
            {"2025", "-025"},   {"2025", "+2025"},  {"Z", "01:00"},     {"Z", "+01:00Z"},
            {"Z", ".5"}};
        for (const auto& [place, change] : changes) {
            const QString text = QStringLiteral("2025-01-31T14:05:00Z")
                                     .replace(QLatin1StringView(place), QLatin1StringView(change));
            QVERIFY2(!parseTimestamp(text, FractionalSeconds::allowed), qPrintable(text));
        }
        for (const QStringView text :
             {u"", u"0000-01-01T00:00:00+00:01", u"9999-12-31T23:59:59-00:01"}) {
            QVERIFY(!parseTimestamp(text, FractionalSeconds::allowed));
        }
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
