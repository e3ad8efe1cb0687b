#include "model/timestamp.h"

#include <QtCore/QLocale>

#include <algorithm>
#include <cmath>

namespace tallyvane::model {

namespace {

using namespace std::chrono;

constexpr Timestamp earliest = sys_days{year{0} / January / 1};
constexpr Timestamp end = sys_days{year{9999} / December / 31} + days{1};

bool isRepresentable(Timestamp timestamp) {
    return earliest <= timestamp && timestamp < end;
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// Whether `text` equals `form`, in which each 'd' stands for a digit.
bool hasForm(QStringView text, QStringView form) {
    return std::ranges::equal(text, form, [](QChar c, QChar expected) {
        return expected == u'd' ? isDigit(c) : c == expected;
    });
}

/// Removes one or more leading digits and returns them as a decimal fraction of a second.
std::optional<microseconds> takeFraction(QStringView& text) {
    const auto* const end = std::ranges::find_if_not(text, isDigit);
    microseconds fraction{0};
    microseconds unit{100'000};
    for (const auto* digit = text.begin(); digit != end; ++digit) {
        fraction += unit * digit->digitValue();
        unit /= 10;
    }
    const bool isEmpty = end == text.begin();
    text = text.sliced(end - text.begin());
    return isEmpty ? std::nullopt : std::optional(fraction);
}

/// Reads "Z" or an offset such as "+01:00".
std::optional<minutes> parseOffset(QStringView text) {
    if (text == u"Z") {
        return minutes{0};
    }
    const bool isEast = hasForm(text, u"+dd:dd");
    if (!isEast && !hasForm(text, u"-dd:dd")) {
        return std::nullopt;
    }
    const hours hour{text.sliced(1, 2).toInt()};
    const minutes minute{text.sliced(4).toInt()};
    if (hour >= days{1} || minute >= hours{1}) {
        return std::nullopt;
    }
    return isEast ? hour + minute : -(hour + minute);
}

} // namespace

std::optional<Timestamp> parseTimestamp(QStringView text, FractionalSeconds fraction) {
    constexpr QStringView form = u"dddd-dd-ddTdd:dd:dd";
    if (!hasForm(text.first(std::min(text.size(), form.size())), form)) {
        return std::nullopt;
    }
    const auto field = [text](qsizetype at, qsizetype length = 2) {
        return text.sliced(at, length).toInt();
    };
    QStringView rest = text.sliced(form.size());
    std::optional<microseconds> subseconds(0);
    if (fraction == FractionalSeconds::allowed && rest.startsWith(u'.')) {
        rest = rest.sliced(1);
        subseconds = takeFraction(rest);
    }
    const std::optional<minutes> offset = parseOffset(rest);
    const auto date = year{field(0, 4)} / field(5) / field(8);
    const hours hour{field(11)};
    const minutes minute{field(14)};
    const seconds second{field(17)};
    if (!subseconds || !offset || !date.ok() || hour >= days{1} || minute >= hours{1} ||
        second >= minutes{1}) {
        return std::nullopt;
    }
    const Timestamp timestamp = sys_days{date} + hour + minute + second + *subseconds - *offset;
    return isRepresentable(timestamp) ? std::optional(timestamp) : std::nullopt;
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
    // In this form the test is false for a NaN too.
    if (!(micros >= count(earliest) && micros < count(end))) {
        return std::nullopt;
    }
    return Timestamp{microseconds{static_cast<std::int64_t>(micros)}};
}

} // namespace tallyvane::model
