#include "history/calendar_days.h"
#include "support/test_main.h"

#include <QtCore/QProcess>

#include <set>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace tallyvane;
using model::Timestamp;

namespace {

/// What date(1) prints for each moment in the zone of the environment.
QByteArrayList printed(const std::vector<Timestamp>& moments, const char* format) {
    QProcess date;
    date.start(u"date"_s, {u"-f"_s, u"-"_s, QString::fromLatin1(format)});
    for (const Timestamp moment : moments) {
        const auto second = std::chrono::floor<std::chrono::seconds>(moment);
        date.write('@' + QByteArray::number(qint64{second.time_since_epoch().count()}) + '\n');
    }
    date.closeWriteChannel();
    date.waitForFinished();
    return date.readAllStandardOutput().chopped(1).split('\n');
}

/// Moments around every clock change of 2026 in the zones below, and distant ones.
std::vector<Timestamp> moments() {
    std::vector<Timestamp> moments;
    for (const double seconds :
         {-62e9, -5e9, -1e9, -1., 0., 2147483647., 2147483648., 1e10, 25e10}) {
        moments.push_back(*model::timestampFromUnixSeconds(seconds));
    }
    for (const char* day :
         {"02-14", "02-28", "03-07", "03-21", "03-26", "03-28", "04-04", "04-23", "09-05", "09-26",
          "10-03", "10-23", "10-25", "10-27", "10-29", "10-31", "12-31"}) {
        const auto start = *model::parseTimestamp(
            u"2026-%1T00:00:00Z"_s.arg(QLatin1StringView(day)), model::FractionalSeconds::rejected);
        for (Timestamp moment = start; moment < start + 48h; moment += 30min) {
            moments.push_back(moment - 1s);
            moments.push_back(moment);
        }
    }
    return moments;
}

} // namespace

class CalendarDaysTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void agreesWithDate_data() {
        QTest::addColumn<QByteArray>("tz");
        for (const char* tz :
             {"", "UTC", "UTC0", "Europe/Berlin", ":Europe/Berlin", "America/St_Johns",
              "America/Santiago", "America/Havana", "America/New_York", "Africa/Casablanca",
              "Africa/Cairo", "Asia/Kathmandu", "Asia/Gaza", "Australia/Lord_Howe",
              "Pacific/Chatham", "Pacific/Kiritimati", "Pacific/Apia", "Antarctica/Troll",
              "localtime", "/usr/share/zoneinfo/Asia/Tokyo",
              // POSIX rules, north and south
              "EST5EDT,M3.2.0,M11.1.0", "NZST-12NZDT,M9.5.0,M4.1.0/3",
              "<-03>3<-02>,M3.5.0/-2,M10.5.0/-1", "IST-2IDT,M3.4.4/26,M10.5.0",
              "XXX3YYY,J60/0,J300/0", "<+0330>-3:30", "AAA24", "AAA-24BBB-25",
              // Not a zone
              ":", ":nonexistent", "garbage!", "/etc/passwd", "/etc", "\xff\xfe", "M3.2.0"}) {
            QTest::newRow(tz) << QByteArray(tz);
        }
    }

    void agreesWithDate() {
        QFETCH(const QByteArray, tz);
        qputenv("TZ", tz);
        ::tzset();
        const auto zone = model::LocalZone::ofSystem(model::ZoneSource::variable);
        const std::vector<Timestamp> all = moments();
        QByteArrayList shown;
        std::set<QDate> days;
        for (const Timestamp moment : all) {
            const Timestamp local{zone.localTime(moment + 999999us).time_since_epoch()};
            shown << model::formatTimestamp(local).toLatin1();
            days.insert(history::localDay(moment, zone));
        }
        QCOMPARE(shown, printed(all, "+%FT%TZ"));

        std::vector<Timestamp> borders;
        QByteArrayList besides;
        for (const QDate day : days) {
            borders.push_back(history::startOfDay(day, zone));
            borders.push_back(borders.back() - 1s);
            besides << day.toString(Qt::ISODate).toLatin1()
                    << day.addDays(-1).toString(Qt::ISODate).toLatin1();
        }
        QCOMPARE(besides, printed(borders, "+%F"));
    }

    void addsDaysByTheClock() {
        const model::LocalZone zone{QTimeZone("Europe/Berlin")};
        const auto start = history::startOfDay({2026, 3, 28}, zone);
        QCOMPARE(history::addDays(start, 2, zone), history::startOfDay({2026, 3, 30}, zone));
    }
};

TALLYVANE_TEST(CalendarDaysTest)
#include "calendar_days_test.moc"
