#include "model/timestamp.h"

#include <QtCore/QLocale>

#include <cmath>

namespace tallyvane::model {

namespace {

using namespace std::chrono;

constexpr Timestamp earliest = sys_days{year{0} / January / 1};
constexpr Timestamp end = sys_days{year{9999} / December / 31} + days{1};

bool isRepresentable(Timestamp timestamp) {
    return earliest <= timestamp && timestamp < end;
}

/// Takes fields off the front of a text; after the first mismatch nothing matches any more.
class FieldScanner {
public:
    explicit FieldScanner(QStringView text) : m_rest(text) {}

    /// An unsigned number of exactly `digits` digits, not above `maximum`.
    int number(qsizetype digits, int maximum) {
        int value = 0;
        if (m_rest.size() < digits) {
            m_ok = false;
        }
        for (qsizetype i = 0; m_ok && i < digits; ++i) {
            m_ok = isDigit(m_rest[i]);
            value = value * 10 + (m_rest[i].unicode() - u'0');
        }
        m_ok = m_ok && value <= maximum;
        if (m_ok) {
            m_rest = m_rest.sliced(digits);
        }
        return value;
    }

    bool literal(QChar expected) {
        const bool matches = m_ok && m_rest.startsWith(expected);
        if (matches) {
            m_rest = m_rest.sliced(1);
        }
        return matches;
    }

    void require(bool condition) { m_ok = m_ok && condition; }

    /// One or more digits, read as a decimal fraction of a second.
    microseconds fraction() {
        microseconds value{0};
        microseconds unit{100'000};
        require(!m_rest.isEmpty() && isDigit(m_rest.front()));
        while (m_ok && !m_rest.isEmpty() && isDigit(m_rest.front())) {
            value += unit * (m_rest.front().unicode() - u'0');
            unit /= 10;
            m_rest = m_rest.sliced(1);
        }
        return value;
    }

    bool matchedAll() const { return m_ok && m_rest.isEmpty(); }

private:
    static bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

    QStringView m_rest;
    bool m_ok = true;
};

} // namespace

std::optional<Timestamp> parseTimestamp(QStringView text, FractionalSeconds fraction) {
    FieldScanner scanner(text);
    const int yearField = scanner.number(4, 9999);
    scanner.require(scanner.literal(u'-'));
    const int monthField = scanner.number(2, 12);
    scanner.require(scanner.literal(u'-'));
    const int dayField = scanner.number(2, 31);
    scanner.require(scanner.literal(u'T'));
    const int hourField = scanner.number(2, 23);
    scanner.require(scanner.literal(u':'));
    const int minuteField = scanner.number(2, 59);
    scanner.require(scanner.literal(u':'));
    const int secondField = scanner.number(2, 59);
    microseconds fractionField{0};
    if (fraction == FractionalSeconds::allowed && scanner.literal(u'.')) {
        fractionField = scanner.fraction();
    }
    minutes offset{0};
    if (!scanner.literal(u'Z')) {
        const bool isWest = scanner.literal(u'-');
        scanner.require(isWest || scanner.literal(u'+'));
        offset = hours{scanner.number(2, 23)};
        scanner.require(scanner.literal(u':'));
        offset += minutes{scanner.number(2, 59)};
        if (isWest) {
            offset = -offset;
        }
    }
    const auto date = year{yearField} / month{static_cast<unsigned>(monthField)} /
                      day{static_cast<unsigned>(dayField)};
    if (!scanner.matchedAll() || !date.ok()) {
        return std::nullopt;
    }
    const Timestamp timestamp = sys_days{date} + hours{hourField} + minutes{minuteField} +
                                seconds{secondField} + fractionField - offset;
    if (!isRepresentable(timestamp)) {
        return std::nullopt;
    }
    return timestamp;
}

QString formatTimestamp(Timestamp timestamp) {
    Q_ASSERT(isRepresentable(timestamp));
    const auto day = floor<days>(timestamp);
    const year_month_day date{day};
    const hh_mm_ss time{floor<seconds>(timestamp - day)};
    return QString::asprintf("%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
                             static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                             static_cast<int>(time.hours().count()),
                             static_cast<int>(time.minutes().count()),
                             static_cast<int>(time.seconds().count()));
}

QString unixSecondsText(Timestamp timestamp) {
    const double seconds = duration<double>(timestamp.time_since_epoch()).count();
    QString text = QString::number(seconds, 'f', QLocale::FloatingPointShortest);
    if (!text.contains(u'.')) {
        text += QStringLiteral(".0");
    }
    return text;
}

std::optional<Timestamp> timestampFromUnixSeconds(double seconds) {
    const double micros = std::floor(seconds * 1e6);
    const auto count = [](Timestamp t) {
        return static_cast<double>(t.time_since_epoch().count());
    };
    // Written so that a NaN fails the test too.
    if (!(micros >= count(earliest) && micros < count(end))) {
        return std::nullopt;
    }
    return Timestamp{microseconds{static_cast<std::int64_t>(micros)}};
}

} // namespace tallyvane::model
