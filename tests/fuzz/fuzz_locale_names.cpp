#include "model/locale_labels.h"

#include <cstdlib>

using namespace tallyvane;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const model::LocaleLabels labels(std::string(data, size));
    const QDate day(2026, 11, 21);
    const QString time = labels.timeOfDay(1439);
    for (const QString& text :
         {labels.compactNumber(12'345), labels.number(0.25), labels.month(day),
          labels.monthAndYear(day), labels.dayAndMonth(day), labels.weekday(day),
          labels.fullDay(day), labels.weekdayAndTime({}), time}) {
        if (text.isEmpty()) {
            std::abort();
        }
    }
    if (labels.parseTimeOfDay(time) != 1439 || labels.firstWeekday() < Qt::Monday ||
        labels.firstWeekday() > Qt::Sunday) {
        std::abort();
    }
    return 0;
}
