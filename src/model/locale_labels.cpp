#include "model/locale_labels.h"

#include "model/icu_text.h"

#include <unicode/calendar.h>
#include <unicode/dtfmtsym.h>
#include <unicode/dtptngen.h>
#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

namespace tallyvane::model {

struct LocaleLabels::Formatters {
    icu::Locale locale;
    icu::number::LocalizedNumberFormatter compact;
    icu::number::LocalizedNumberFormatter decimal;
    std::unique_ptr<icu::DateTimePatternGenerator> patterns;

    explicit Formatters(const std::string& name)
        : locale(icuLocale(name)),
          compact(icu::number::NumberFormatter::withLocale(locale).notation(
              icu::number::Notation::compactShort())),
          decimal(icu::number::NumberFormatter::withLocale(locale).precision(
              icu::number::Precision::maxFraction(2))) {
        UErrorCode status = U_ZERO_ERROR;
        patterns.reset(icu::DateTimePatternGenerator::createInstance(locale, status));
        requireSuccess(status);
    }

    [[nodiscard]] icu::UnicodeString pattern(const char* skeleton) const {
        UErrorCode status = U_ZERO_ERROR;
        const auto best = patterns->getBestPattern(icu::UnicodeString(skeleton), status);
        requireSuccess(status);
        return best;
    }

    [[nodiscard]] QString format(const QDateTime& time, const char* skeleton) const {
        UErrorCode status = U_ZERO_ERROR;
        icu::SimpleDateFormat dates(pattern(skeleton), locale, status);
        requireSuccess(status);
        dates.setTimeZone(*icu::TimeZone::getGMT());
        icu::UnicodeString text;
        dates.format(static_cast<UDate>(time.toMSecsSinceEpoch()), text);
        return plainText(text);
    }

    /// 0 for "am" or the locale's text for it, 1 for "pm"; nothing for other letters.
    [[nodiscard]] std::optional<int> halfOfDay(const QString& letters) const {
        if (letters.isEmpty()) {
            return std::nullopt;
        }
        UErrorCode status = U_ZERO_ERROR;
        const icu::DateFormatSymbols symbols(locale, status);
        requireSuccess(status);
        int32_t count = 0;
        const icu::UnicodeString* own = symbols.getAmPmStrings(count);
        constexpr std::array english{QLatin1StringView{"am"}, QLatin1StringView{"pm"}};
        for (int half = 0; half < 2; ++half) {
            QString text = half < count ? plainText(own[half]).toLower() : QString();
            text.removeIf([](QChar character) { return !character.isLetter(); });
            if (letters == text || letters == english[half] || letters == english[half].first(1)) {
                return half;
            }
        }
        return std::nullopt;
    }

    [[nodiscard]] QString format(QDate day, const char* skeleton) const {
        return format(day.startOfDay(Qt::UTC), skeleton);
    }
};

LocaleLabels::LocaleLabels(const std::string& locale)
    : m_formatters(std::make_unique<Formatters>(locale)) {}
LocaleLabels::~LocaleLabels() = default;

QString LocaleLabels::compactNumber(std::int64_t number) const {
    UErrorCode status = U_ZERO_ERROR;
    const auto text = m_formatters->compact.formatInt(number, status).toString(status);
    requireSuccess(status);
    return plainText(text);
}

QString LocaleLabels::number(double number) const {
    UErrorCode status = U_ZERO_ERROR;
    const auto text = m_formatters->decimal.formatDouble(number, status).toString(status);
    requireSuccess(status);
    return plainText(text);
}

QString LocaleLabels::month(QDate day) const {
    return m_formatters->format(day, "LLL");
}

QString LocaleLabels::monthAndYear(QDate day) const {
    return m_formatters->format(day, "yMMMM");
}

QString LocaleLabels::dayAndMonth(QDate day) const {
    return m_formatters->format(day, "MMMd");
}

QString LocaleLabels::weekday(QDate day) const {
    return m_formatters->format(day, "ccc");
}

QString LocaleLabels::fullDay(QDate day) const {
    return m_formatters->format(day, "yMMMEd");
}

QString LocaleLabels::timeOfDay(int minutes) const {
    return m_formatters->format(QDateTime::fromSecsSinceEpoch(minutes * qint64{60}, Qt::UTC),
                                "jmm");
}

std::optional<int> LocaleLabels::parseTimeOfDay(QStringView text) const {
    // Groups of digits of any script, and the letters that may say which half of the day is meant.
    QStringList groups;
    QString letters;
    bool isInGroup = false;
    for (const QChar character : text) {
        if (character.isDigit()) {
            if (!isInGroup) {
                groups << QString();
            }
            groups.back() += QString::number(character.digitValue());
        } else if (character.isLetter()) {
            letters += character.toLower();
        }
        isInGroup = character.isDigit();
    }
    if (groups.size() == 1 && groups[0].size() > 2) {
        groups << groups[0].last(2);
        groups[0].chop(2);
    }
    if (groups.isEmpty() || groups.size() > 2) {
        return std::nullopt;
    }
    int hour = groups[0].toInt();
    const int minute = groups.size() > 1 ? groups[1].toInt() : 0;
    if (const auto half = m_formatters->halfOfDay(letters)) {
        if (hour < 1 || hour > 12) {
            return std::nullopt;
        }
        hour = hour % 12 + 12 * *half;
    } else if (!letters.isEmpty() && letters != QLatin1StringView("h")) {
        return std::nullopt;
    }
    if (groups[0].size() > 2 || hour > 23 || minute > 59) {
        return std::nullopt;
    }
    return hour * 60 + minute;
}

Qt::DayOfWeek LocaleLabels::firstWeekday() const {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(*icu::TimeZone::getGMT(), m_formatters->locale, status));
    requireSuccess(status);
    const auto first = calendar->getFirstDayOfWeek(status);
    requireSuccess(status);
    return first == UCAL_SUNDAY ? Qt::Sunday : static_cast<Qt::DayOfWeek>(first - 1);
}

} // namespace tallyvane::model
