#include "providers/reply_reading.h"

#include "model/foreign_text.h"

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

QString planName(const QString& identifier) {
    using model::readableLine;
    constexpr qsizetype length = model::maximumPlanNameLength;
    // Cut twice: first so that a huge text is not converted whole, then because lower case may be
    // longer than upper case.
    QString name = readableLine(readableLine(identifier, length).toLower(), length);
    name.replace(u'_', u' ');
    bool startsWord = true;
    for (QChar& c : name) {
        if (startsWord) {
            c = c.toUpper();
        }
        startsWord = c.isSpace();
    }
    return name;
}

} // namespace tallyvane::providers
