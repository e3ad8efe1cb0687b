#include "model/weekday_time_format.h"

#include "model/icu_text.h"

#include <unicode/dtptngen.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

namespace tallyvane::model {

struct WeekdayTimeFormat::Formatter {
    std::unique_ptr<icu::DateFormat> dates;

    Formatter(const std::string& localeName, const std::string& timeZone) {
        UErrorCode status = U_ZERO_ERROR;
        dates.reset(icu::DateFormat::createInstanceForSkeleton(icu::UnicodeString("EEEjmm"),
                                                               icuLocale(localeName), status));
        requireSuccess(status);
        if (!timeZone.empty()) {
            dates->adoptTimeZone(
                icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(timeZone)));
        }
    }
};

WeekdayTimeFormat::WeekdayTimeFormat(std::string locale, std::string timeZone)
    : m_locale(std::move(locale)), m_timeZone(std::move(timeZone)) {}
WeekdayTimeFormat::~WeekdayTimeFormat() = default;
WeekdayTimeFormat::WeekdayTimeFormat(WeekdayTimeFormat&&) noexcept = default;
WeekdayTimeFormat& WeekdayTimeFormat::operator=(WeekdayTimeFormat&&) noexcept = default;

QString WeekdayTimeFormat::format(Timestamp timestamp) const {
    if (!m_formatter) {
        m_formatter = std::make_unique<Formatter>(m_locale, m_timeZone);
    }
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(timestamp);
    icu::UnicodeString text;
    m_formatter->dates->format(static_cast<UDate>(milliseconds.time_since_epoch().count()), text);
    return plainText(text);
}

} // namespace tallyvane::model
