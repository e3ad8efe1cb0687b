#pragma once

#include "model/local_zone.h"

#include <QtCore/QDate>
#include <QtCore/QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace tallyvane::model {

/// Formats numbers, days and times of day in the style of a locale, with ICU. Main thread only.
class LocaleLabels {
public:
    /// `locale` is a POSIX or BCP 47 name such as "de_AT.UTF-8" or "sr-Latn". The texts of unknown
    /// locales are English.
    explicit LocaleLabels(const std::string& locale);

    /// "950", "1.2K", "12K", "3.4M".
    [[nodiscard]] QString compactNumber(std::int64_t number) const;
    /// "12.5", with at most two fractional digits.
    [[nodiscard]] QString number(double number) const;

    [[nodiscard]] QString month(QDate day) const;        ///< "Nov"
    [[nodiscard]] QString monthAndYear(QDate day) const; ///< "November 2026"
    [[nodiscard]] QString dayAndMonth(QDate day) const;  ///< "Nov 21"
    [[nodiscard]] QString weekday(QDate day) const;      ///< "Sat"
    [[nodiscard]] QString fullDay(QDate day) const;      ///< "Sat, Nov 21, 2026"

    /// "14:05" or "2:05 PM"; `minutes` after midnight, 0 to 1439.
    [[nodiscard]] QString timeOfDay(int minutes) const;
    /// "Tue 3:45 PM" or "Di., 15:45".
    [[nodiscard]] QString weekdayAndTime(LocalTime time) const;
    /// Parses a time of day as typed by a person, such as "14:05", "1405", "9", "2.05 pm" or a text
    /// of timeOfDay(). Returns minutes after midnight, nothing for any other text.
    [[nodiscard]] std::optional<int> parseTimeOfDay(QStringView text) const;

    [[nodiscard]] Qt::DayOfWeek firstWeekday() const;

private:
    struct Formatters;

    std::shared_ptr<Formatters> m_formatters;
};

} // namespace tallyvane::model
