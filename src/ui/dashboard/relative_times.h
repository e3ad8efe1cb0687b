#pragma once

#include "model/timestamp.h"

#include <chrono>
#include <optional>

/// When texts about times relative to now next change; pure functions.
namespace tallyvane::ui {

/// The shortest wait of an alarm that sets its successor, so that no clock change makes it spin.
inline constexpr std::chrono::milliseconds shortestWait{1000};

/// How long model::ageText stays the same; nothing if it never changes.
[[nodiscard]] std::optional<std::chrono::milliseconds>
untilAgeTextChanges(std::optional<model::Timestamp> date, model::Timestamp now);

/// How long model::resetText of a current entry stays the same; nothing if it never changes.
[[nodiscard]] std::optional<std::chrono::milliseconds>
untilResetTextChanges(std::optional<model::Timestamp> resetsAt, model::Timestamp now);

} // namespace tallyvane::ui
