#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <optional>

/// Loose reading of JSON that others wrote: a member that is missing or of another type is absent.
namespace tallyvane::providers {

/// The top-level object of `json`; nothing when it is not JSON or not an object.
[[nodiscard]] std::optional<QJsonObject> parseObject(const QByteArray& json);

/// A member that is a finite JSON number.
[[nodiscard]] std::optional<double> numberMember(const QJsonObject& object, QLatin1StringView key);

[[nodiscard]] std::optional<QString> textMember(const QJsonObject& object, QLatin1StringView key);

[[nodiscard]] std::optional<QJsonObject> objectMember(const QJsonObject& object,
                                                      QLatin1StringView key);

} // namespace tallyvane::providers
