#pragma once

#include <QtCore/QString>

namespace tallyvane::providers {

/// The display name of a plan identifier: "team_premium" becomes "Team Premium". A readable line
/// of at most model::maximumPlanNameLength characters.
[[nodiscard]] QString planName(const QString& identifier);

} // namespace tallyvane::providers
