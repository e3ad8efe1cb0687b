#include "providers/json_members.h"

#include <QtCore/QJsonDocument>

#include <cmath>

namespace tallyvane::providers {

std::optional<QJsonObject> parseObject(const QByteArray& json) {
    const QJsonDocument document = QJsonDocument::fromJson(json);
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

std::optional<double> numberMember(const QJsonObject& object, QLatin1StringView key) {
    const QJsonValue value = object[key];
    const bool isNumber = value.isDouble() && std::isfinite(value.toDouble());
    return isNumber ? std::optional(value.toDouble()) : std::nullopt;
}

std::optional<QString> textMember(const QJsonObject& object, QLatin1StringView key) {
    const QJsonValue value = object[key];
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

std::optional<QJsonObject> objectMember(const QJsonObject& object, QLatin1StringView key) {
    const QJsonValue value = object[key];
    return value.isObject() ? std::optional(value.toObject()) : std::nullopt;
}

} // namespace tallyvane::providers
