#pragma once

#include "model/locale_labels.h"

namespace tallyvane::model {

/// Formats moments as abbreviated weekday, hour and minute for a locale and a zone, such as
/// "Tue 3:45 PM" or "Di., 15:45". Loads the locale on first use, which takes milliseconds.
class WeekdayTimeFormat {
public:
    /// `locale` is a name as LocaleLabels takes it.
    WeekdayTimeFormat(std::string locale, const LocalZone& zone)
        : m_locale(std::move(locale)), m_zone(zone) {}

    [[nodiscard]] QString format(Timestamp timestamp) const {
        return labels().weekdayAndTime(m_zone.localTime(timestamp));
    }

    /// Without the weekday if the moment is less than a day after `now`.
    [[nodiscard]] QString format(Timestamp timestamp, Timestamp now) const {
        if (timestamp - now >= std::chrono::days{1}) {
            return format(timestamp);
        }
        const LocalTime time = m_zone.localTime(timestamp);
        const auto sinceMidnight = time - std::chrono::floor<std::chrono::days>(time);
        return labels().timeOfDay(static_cast<int>(sinceMidnight / std::chrono::minutes{1}));
    }

private:
    const LocaleLabels& labels() const {
        if (!m_labels) {
            m_labels = std::make_unique<LocaleLabels>(m_locale);
        }
        return *m_labels;
    }

    std::string m_locale;
    LocalZone m_zone;
    mutable std::unique_ptr<LocaleLabels> m_labels;
};

} // namespace tallyvane::model
