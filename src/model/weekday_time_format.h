#pragma once

#include "model/local_zone.h"

#include <QtCore/QString>

#include <memory>
#include <string>

namespace tallyvane::model {

class LocaleLabels;

/// Writes moments as abbreviated weekday, hour and minute in a locale's own manner, such as
/// "Tue 3:45 PM" or "Di. 15:45". Made on first use, since loading a locale takes milliseconds.
class WeekdayTimeFormat {
public:
    /// `locale` is a name as LocaleLabels takes it; `zone` is where the moments are shown.
    WeekdayTimeFormat(std::string locale, const LocalZone& zone);
    ~WeekdayTimeFormat();
    WeekdayTimeFormat(WeekdayTimeFormat&&) noexcept;
    WeekdayTimeFormat& operator=(WeekdayTimeFormat&&) noexcept;

    [[nodiscard]] QString format(Timestamp timestamp) const;

private:
    std::string m_locale;
    LocalZone m_zone;
    mutable std::unique_ptr<LocaleLabels> m_labels;
};

} // namespace tallyvane::model
