#include "model/json_coding.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <array>
#include <charconv>
#include <cmath>

namespace tallyvane::model {

namespace {

/// The value as a whole number, when it is one that fits.
std::optional<std::int64_t> asInteger(const QJsonValue& value) {
    // toInteger answers its default for anything else, so two defaults tell the cases apart.
    const qint64 integer = value.toInteger(0);
    if (integer != value.toInteger(1)) {
        return std::nullopt;
    }
    return integer;
}

class PrettyPrinter {
public:
    bool write(const QJsonValue& value, int depth) {
        switch (value.type()) {
        case QJsonValue::Object:
            return writeObject(value.toObject(), depth);
        case QJsonValue::Array:
            return writeArray(value.toArray(), depth);
        case QJsonValue::Double:
            return writeNumber(value);
        case QJsonValue::String:
            writeString(value.toString());
            return true;
        case QJsonValue::Bool:
            m_bytes += value.toBool() ? "true" : "false";
            return true;
        case QJsonValue::Null:
        case QJsonValue::Undefined:
            break;
        }
        m_bytes += "null";
        return true;
    }

    QByteArray take() { return std::move(m_bytes); }

private:
    void newLine(int depth) {
        m_bytes += '\n';
        m_bytes += QByteArray(qsizetype{2} * depth, ' ');
    }

    // QJsonObject iterates in the order of its keys' code units, which sorts ASCII keys.
    bool writeObject(const QJsonObject& object, int depth) {
        if (object.isEmpty()) {
            m_bytes += "{}";
            return true;
        }
        char separator = '{';
        for (auto member = object.begin(); member != object.end(); ++member) {
            m_bytes += separator;
            separator = ',';
            newLine(depth + 1);
            writeString(member.key());
            m_bytes += " : ";
            if (!write(member.value(), depth + 1)) {
                return false;
            }
        }
        newLine(depth);
        m_bytes += '}';
        return true;
    }

    bool writeArray(const QJsonArray& array, int depth) {
        if (array.isEmpty()) {
            m_bytes += "[]";
            return true;
        }
        char separator = '[';
        for (const QJsonValue& element : array) {
            m_bytes += separator;
            separator = ',';
            newLine(depth + 1);
            if (!write(element, depth + 1)) {
                return false;
            }
        }
        newLine(depth);
        m_bytes += ']';
        return true;
    }

    bool writeNumber(const QJsonValue& value) {
        const double number = value.toDouble();
        if (!std::isfinite(number)) {
            return false;
        }
        if (const auto integer = asInteger(value); integer) {
            m_bytes += QByteArray::number(qlonglong{*integer});
            return true;
        }
        std::array<char, 32> digits{};
        const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
        m_bytes += QByteArrayView(digits.data(), end);
        return true;
    }

    void writeString(QStringView text) {
        QString escaped;
        for (qsizetype i = 0; i < text.size(); ++i) {
            const QChar c = text[i];
            if (c == u'"' || c == u'\\') {
                escaped += u'\\';
                escaped += c;
            } else if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
                escaped += text.sliced(i++, 2);
            } else if (c.unicode() < 0x20 || c.isSurrogate()) { // half a pair has no UTF-8 form
                escaped += QString::asprintf("\\u%04x", static_cast<unsigned>(c.unicode()));
            } else {
                escaped += c;
            }
        }
        m_bytes += '"' + escaped.toUtf8() + '"';
    }

    QByteArray m_bytes;
};

} // namespace

std::expected<QByteArray, EncodeError> encodeJson(const QJsonObject& object) {
    PrettyPrinter printer;
    if (!printer.write(object, 0)) {
        return std::unexpected(EncodeError{QStringLiteral("A figure is not a finite number.")});
    }
    return printer.take();
}

std::expected<QJsonObject, DecodeError> parseJsonObject(const QByteArray& json) {
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        return std::unexpected(DecodeError{error.errorString()});
    }
    if (!document.isObject()) {
        return std::unexpected(DecodeError{QStringLiteral("the top level is not an object")});
    }
    return document.object();
}

double JsonReader::number(QLatin1StringView key) const {
    const QJsonValue value = m_object[key];
    if (!value.isDouble() || !std::isfinite(value.toDouble())) {
        note(key, "is not a number");
    }
    return value.toDouble();
}

std::int64_t JsonReader::integer(QLatin1StringView key) const {
    const std::optional<std::int64_t> value = asInteger(m_object[key]);
    if (!value) {
        note(key, "is not a whole number");
    }
    return value.value_or(0);
}

bool JsonReader::boolean(QLatin1StringView key) const {
    const QJsonValue value = m_object[key];
    if (!value.isBool()) {
        note(key, "is not true or false");
    }
    return value.toBool();
}

QUuid JsonReader::uuid(QLatin1StringView key) const {
    const QString written = text(key);
    const QUuid value = QUuid::fromString(written);
    // Qt takes more forms than the standard one, and nil for anything else.
    if (value.toString(QUuid::WithoutBraces).compare(written, Qt::CaseInsensitive) != 0) {
        note(key, "is not a UUID");
    }
    return value;
}

Timestamp JsonReader::timestamp(QLatin1StringView key) const {
    const std::optional<Timestamp> value = parseTimestamp(text(key), FractionalSeconds::rejected);
    if (!value) {
        note(key, "is not a date-time in whole seconds");
    }
    return value.value_or(Timestamp{});
}

QString JsonReader::text(QLatin1StringView key) const {
    const QJsonValue value = m_object[key];
    if (!value.isString()) {
        note(key, "is not a text");
    }
    return value.toString();
}

std::vector<JsonReader> JsonReader::objects(QLatin1StringView key) const {
    const QJsonValue value = m_object[key];
    if (!value.isArray()) {
        note(key, "is not a list");
    }
    std::vector<JsonReader> readers;
    for (const QJsonValue& element : value.toArray()) {
        if (!element.isObject()) {
            note(key, "holds something other than objects");
        }
        readers.emplace_back(element.toObject(), m_firstError);
    }
    return readers;
}

std::optional<QString> JsonReader::optionalText(QLatin1StringView key) const {
    return holds(key) ? std::optional(text(key)) : std::nullopt;
}

std::optional<Timestamp> JsonReader::optionalTimestamp(QLatin1StringView key) const {
    return holds(key) ? std::optional(timestamp(key)) : std::nullopt;
}

std::optional<JsonReader> JsonReader::optionalObject(QLatin1StringView key) const {
    if (!holds(key)) {
        return std::nullopt;
    }
    const QJsonValue value = m_object[key];
    if (!value.isObject()) {
        note(key, "is not an object");
    }
    return JsonReader(value.toObject(), m_firstError);
}

bool JsonReader::holds(QLatin1StringView key) const {
    const QJsonValue value = m_object[key];
    return !value.isUndefined() && !value.isNull();
}

void JsonReader::note(QLatin1StringView key, const char* problem) const {
    if (!m_firstError.get()) {
        m_firstError.get() = DecodeError{key + QLatin1Char(' ') + QLatin1StringView(problem)};
    }
}

} // namespace tallyvane::model
