#pragma once

#include "model/timestamp.h"

#include <chrono>
#include <optional>

/// When the texts that tell times relative to now are next to be written anew; pure functions.
namespace tallyvane::ui {

/// No alarm that sets the next one rings sooner: whatever the clocks do, the program rests.
inline constexpr std::chrono::milliseconds shortestWait{1000};

/// How long model::ageText stays as it is; nothing when it never changes.
[[nodiscard]] std::optional<std::chrono::milliseconds>
untilAgeTextChanges(std::optional<model::Timestamp> date, model::Timestamp now);

/// How long model::resetText of a current entry stays as it is; nothing when it never changes.
[[nodiscard]] std::optional<std::chrono::milliseconds>
untilResetTextChanges(std::optional<model::Timestamp> resetsAt, model::Timestamp now);

} // namespace tallyvane::ui
