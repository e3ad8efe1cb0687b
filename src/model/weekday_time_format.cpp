#include "model/weekday_time_format.h"

#include "model/locale_labels.h"

namespace tallyvane::model {

WeekdayTimeFormat::WeekdayTimeFormat(std::string locale, const LocalZone& zone)
    : m_locale(std::move(locale)), m_zone(zone) {}
WeekdayTimeFormat::~WeekdayTimeFormat() = default;
WeekdayTimeFormat::WeekdayTimeFormat(WeekdayTimeFormat&&) noexcept = default;
WeekdayTimeFormat& WeekdayTimeFormat::operator=(WeekdayTimeFormat&&) noexcept = default;

QString WeekdayTimeFormat::format(Timestamp timestamp) const {
    if (!m_labels) {
        m_labels = std::make_unique<LocaleLabels>(m_locale);
    }
    return m_labels->weekdayAndTime(m_zone.localTime(timestamp));
}

} // namespace tallyvane::model
