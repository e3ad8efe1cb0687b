#include "ui/dashboard/relative_times.h"

namespace tallyvane::ui {

using namespace std::chrono;

std::optional<milliseconds> untilAgeTextChanges(std::optional<model::Timestamp> date,
                                                model::Timestamp now) {
    if (!date) {
        return std::nullopt;
    }
    const auto age = now - *date;
    const auto unit = age < hours{1}  ? microseconds{minutes{1}}
                      : age < days{1} ? microseconds{hours{1}}
                                      : microseconds{days{1}};
    const auto next = age < minutes{1} ? unit : (age / unit + 1) * unit;
    return ceil<milliseconds>(next - age);
}

std::optional<milliseconds> untilResetTextChanges(std::optional<model::Timestamp> resetsAt,
                                                  model::Timestamp now) {
    if (!resetsAt || *resetsAt <= now) {
        return std::nullopt;
    }
    const auto left = *resetsAt - now;
    // 0 and 1 minutes read alike; other texts change just after a whole minute.
    if (left < minutes{2}) {
        return ceil<milliseconds>(left);
    }
    const bool isSecondMinute = floor<minutes>(left) % hours{1} == minutes{1};
    const auto until = left >= days{1}  ? microseconds{days{1}}
                       : isSecondMinute ? microseconds{floor<hours>(left)}
                                        : microseconds{floor<minutes>(left)};
    return floor<milliseconds>(left - until) + milliseconds{1};
}

} // namespace tallyvane::ui
