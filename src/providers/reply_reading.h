#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <optional>

/// Lenient reading of what the assistants and their services write.
namespace tallyvane::providers {

/// The top-level object of `json`, or nullopt if it is not JSON or not an object.
[[nodiscard]] std::optional<QJsonObject> parseObject(const QByteArray& json);

/// The member's value, or nullopt unless it is a finite number.
[[nodiscard]] std::optional<double> numberMember(const QJsonObject& object, QLatin1StringView key);

/// The member's value, or nullopt unless it is a string.
[[nodiscard]] std::optional<QString> textMember(const QJsonObject& object, QLatin1StringView key);

/// The display name for a plan identifier: "team_premium" becomes "Team Premium". A readable line
/// of at most model::maximumPlanNameLength characters.
[[nodiscard]] QString planName(const QString& identifier);

} // namespace tallyvane::providers
