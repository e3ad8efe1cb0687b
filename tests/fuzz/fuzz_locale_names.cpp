#include "fuzz/fuzz_target.h"
#include "model/locale_labels.h"

/// Every locale name gives complete labels, and times of day that can be parsed.
void tallyvane::fuzz::check(const QByteArray& input) {
    const model::LocaleLabels labels(input.toStdString());
    const QDate day(2026, 11, 21);
    const QString time = labels.timeOfDay(1439);
    for (const QString& text :
         {labels.compactNumber(12'345), labels.number(0.25), labels.month(day),
          labels.monthAndYear(day), labels.dayAndMonth(day), labels.weekday(day),
          labels.fullDay(day), labels.weekdayAndTime({}), time}) {
        require(!text.isEmpty());
    }
    require(labels.parseTimeOfDay(time) == 1439);
    require(labels.firstWeekday() >= Qt::Monday && labels.firstWeekday() <= Qt::Sunday);
}
