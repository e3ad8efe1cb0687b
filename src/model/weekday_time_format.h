#pragma once

#include "model/timestamp.h"

#include <QtCore/QString>

#include <memory>
#include <string>

namespace tallyvane::model {

/// Writes moments as abbreviated weekday, hour and minute in a locale's own manner, such as
/// "Tue 3:45 PM" or "Di. 15:45". Made on first use, since loading a locale takes milliseconds.
class WeekdayTimeFormat {
public:
    /// `locale` is a POSIX or BCP 47 name such as "de_AT.UTF-8"; `timeZone` an IANA name, empty for
    /// the machine's own.
    WeekdayTimeFormat(std::string locale, std::string timeZone);
    ~WeekdayTimeFormat();
    WeekdayTimeFormat(WeekdayTimeFormat&&) noexcept;
    WeekdayTimeFormat& operator=(WeekdayTimeFormat&&) noexcept;

    [[nodiscard]] QString format(Timestamp timestamp) const;

private:
    struct Formatter;

    std::string m_locale;
    std::string m_timeZone;
    mutable std::unique_ptr<Formatter> m_formatter;
};

} // namespace tallyvane::model
