#include "model/locale_labels.h"

#include "model/icu_text.h"

#include <unicode/calendar.h>
#include <unicode/dtfmtsym.h>
#include <unicode/dtptngen.h>
#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

#include <map>

namespace tallyvane::model {

namespace {

/// The moment at which clocks in Greenwich show `time`.
UDate greenwich(std::chrono::local_time<std::chrono::milliseconds> time) {
    return static_cast<UDate>(time.time_since_epoch().count());
}

UDate greenwich(QDate day) {
    return static_cast<UDate>(day.startOfDay(QTimeZone::utc()).toMSecsSinceEpoch());
}

/// In lower case.
QString lettersOf(QStringView text) {
    QString letters;
    for (const QChar character : text) {
        if (character.isLetter()) {
            letters += character.toLower();
        }
    }
    return letters;
}

} // namespace

struct LocaleLabels::Formatters {
    icu::Locale locale;
    icu::number::LocalizedNumberFormatter compact;
    icu::number::LocalizedNumberFormatter decimal;
    std::unique_ptr<icu::DateTimePatternGenerator> patterns;
    std::map<std::string, std::unique_ptr<icu::SimpleDateFormat>> datesBySkeleton;

    explicit Formatters(const icu::Locale& locale)
        : locale(locale),
          compact(icu::number::NumberFormatter::withLocale(locale).notation(
              icu::number::Notation::compactShort())),
          decimal(icu::number::NumberFormatter::withLocale(locale).precision(
              icu::number::Precision::maxFraction(2))) {
        // All times are formatted in GMT. Finding the system's zone could make ICU compare
        // /etc/localtime with every zone file.
        icu::TimeZone::adoptDefault(icu::TimeZone::getGMT()->clone());
        UErrorCode status = U_ZERO_ERROR;
        patterns.reset(icu::DateTimePatternGenerator::createInstance(locale, status));
        if (U_FAILURE(status) != 0) {
            patterns.reset();
        }
    }

    /// Those that all labels of a locale share, as making them takes milliseconds. English ones if
    /// ICU has none.
    static std::shared_ptr<Formatters> of(const std::string& locale) {
        static std::map<std::string, std::weak_ptr<Formatters>> inUse;
        std::weak_ptr<Formatters>& place = inUse[locale];
        auto formatters = place.lock();
        if (!formatters) {
            formatters = std::make_shared<Formatters>(icuLocale(locale));
            if (formatters->format(0, "ccc").isEmpty()) {
                formatters = std::make_shared<Formatters>(icu::Locale::getEnglish());
            }
            place = formatters;
        }
        return formatters;
    }

    /// Null on an error of ICU. Made once, as that takes far longer than to format.
    const icu::SimpleDateFormat* dates(const std::string& skeleton) {
        const auto [place, isNew] = datesBySkeleton.try_emplace(skeleton);
        if (isNew && patterns) {
            UErrorCode status = U_ZERO_ERROR;
            const auto pattern =
                patterns->getBestPattern(icu::UnicodeString(skeleton.c_str()), status);
            auto made = std::make_unique<icu::SimpleDateFormat>(pattern, locale, status);
            if (U_SUCCESS(status) != 0) {
                place->second = std::move(made);
            }
        }
        return place->second.get();
    }

    /// Empty on an error of ICU.
    [[nodiscard]] QString format(UDate time, const std::string& skeleton) {
        const icu::SimpleDateFormat* format = dates(skeleton);
        icu::UnicodeString text;
        return format != nullptr ? plainText(format->format(time, text)) : QString();
    }

    /// 0 for "am" or the locale's equivalent, 1 for "pm", nothing for other letters.
    [[nodiscard]] std::optional<int> halfOfDay(const QString& letters) const {
        if (letters.isEmpty()) {
            return std::nullopt;
        }
        UErrorCode status = U_ZERO_ERROR;
        const icu::DateFormatSymbols symbols(locale, status);
        int32_t count = 0;
        const icu::UnicodeString* own = symbols.getAmPmStrings(count);
        constexpr std::array english{QLatin1StringView{"am"}, QLatin1StringView{"pm"}};
        for (int half = 0; half < 2; ++half) {
            const QString text = half < count ? lettersOf(plainText(own[half])) : QString();
            if (letters == text || letters == english[half] || letters == english[half].first(1)) {
                return half;
            }
        }
        return std::nullopt;
    }
};

LocaleLabels::LocaleLabels(const std::string& locale) : m_formatters(Formatters::of(locale)) {}

QString LocaleLabels::compactNumber(std::int64_t number) const {
    UErrorCode status = U_ZERO_ERROR;
    const auto text = m_formatters->compact.formatInt(number, status).toString(status);
    return U_SUCCESS(status) != 0 ? plainText(text) : QString::number(number);
}

QString LocaleLabels::number(double number) const {
    UErrorCode status = U_ZERO_ERROR;
    const auto text = m_formatters->decimal.formatDouble(number, status).toString(status);
    return U_SUCCESS(status) != 0 ? plainText(text) : QString::number(number, 'f', 2);
}

QString LocaleLabels::month(QDate day) const {
    return m_formatters->format(greenwich(day), "LLL");
}

QString LocaleLabels::monthAndYear(QDate day) const {
    return m_formatters->format(greenwich(day), "yMMMM");
}

QString LocaleLabels::dayAndMonth(QDate day) const {
    return m_formatters->format(greenwich(day), "MMMd");
}

QString LocaleLabels::weekday(QDate day) const {
    return m_formatters->format(greenwich(day), "ccc");
}

QString LocaleLabels::fullDay(QDate day) const {
    return m_formatters->format(greenwich(day), "yMMMEd");
}

QString LocaleLabels::timeOfDay(int minutes) const {
    return m_formatters->format(minutes * 60'000.0, "jmm");
}

QString LocaleLabels::weekdayAndTime(LocalTime time) const {
    return m_formatters->format(greenwich(std::chrono::floor<std::chrono::milliseconds>(time)),
                                "EEEjmm");
}

std::optional<int> LocaleLabels::parseTimeOfDay(QStringView text) const {
    // Groups of digits of any script, and letters that may name the half of the day.
    QStringList groups;
    const QString letters = lettersOf(text);
    bool isInGroup = false;
    for (const QChar character : text) {
        if (character.isDigit()) {
            if (!isInGroup) {
                groups << QString();
            }
            groups.back() += QString::number(character.digitValue());
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
    if (groups.front().size() > 2 || groups.back().size() > 2 || hour > 23 || minute > 59) {
        return std::nullopt;
    }
    if (const auto half = m_formatters->halfOfDay(letters)) {
        if (hour < 1 || hour > 12) {
            return std::nullopt;
        }
        hour = hour % 12 + 12 * *half;
    } else if (!letters.isEmpty() && letters != QLatin1StringView("h")) {
        // Some locales write other words too, such as an abbreviated "hour".
        for (const int written : {hour, hour % 12, hour % 12 + 12}) {
            if (letters == lettersOf(timeOfDay(written * 60 + minute))) {
                return written * 60 + minute;
            }
        }
        return std::nullopt;
    }
    return hour * 60 + minute;
}

Qt::DayOfWeek LocaleLabels::firstWeekday() const {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(m_formatters->locale, status));
    if (U_FAILURE(status) != 0) {
        return Qt::Monday;
    }
    const auto first = calendar->getFirstDayOfWeek(status);
    return first == UCAL_SUNDAY ? Qt::Sunday : static_cast<Qt::DayOfWeek>(first - 1);
}

} // namespace tallyvane::model
