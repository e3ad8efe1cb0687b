#include "model/json_coding.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <array>
#include <charconv>
#include <cmath>

namespace tallyvane::model {

namespace {

/// The value of a whole number in range.
std::optional<std::int64_t> asInteger(const QJsonValue& value) {
    // toInteger() returns its default for anything else; two defaults tell the cases apart.
    const qint64 integer = value.toInteger(0);
    if (integer != value.toInteger(1)) {
        return std::nullopt;
    }
    return integer;
}

class PrettyPrinter {
public:
    void write(const QJsonValue& value, int depth) {
        switch (value.type()) {
        case QJsonValue::Object:
            writeObject(value.toObject(), depth);
            break;
        case QJsonValue::Array:
            writeArray(value.toArray(), depth);
            break;
        case QJsonValue::Double:
            writeNumber(value);
            break;
        case QJsonValue::String:
            writeString(value.toString());
            break;
        case QJsonValue::Bool:
            m_bytes += value.toBool() ? "true" : "false";
            break;
        case QJsonValue::Null:
        case QJsonValue::Undefined:
            m_bytes += "null";
            break;
        }
    }

    [[nodiscard]] const QByteArray& bytes() const { return m_bytes; }
    [[nodiscard]] bool isFinite() const { return m_isFinite; } ///< whether all numbers are

private:
    // QJsonObject iterates in the order of its keys' code units, which sorts ASCII keys.
    void writeObject(const QJsonObject& object, int depth) {
        m_bytes += '{';
        for (auto member = object.begin(); member != object.end(); ++member) {
            startElement(depth + 1);
            writeString(member.key());
            m_bytes += " : ";
            write(member.value(), depth + 1);
        }
        writeEnd('}', depth);
    }

    void writeArray(const QJsonArray& array, int depth) {
        m_bytes += '[';
        for (const QJsonValue& element : array) {
            startElement(depth + 1);
            write(element, depth + 1);
        }
        writeEnd(']', depth);
    }

    void startElement(int depth) {
        if (!isAfterStart()) {
            m_bytes += ',';
        }
        newLine(depth);
    }

    void writeEnd(char bracket, int depth) {
        if (!isAfterStart()) {
            newLine(depth);
        }
        m_bytes += bracket;
    }

    [[nodiscard]] bool isAfterStart() const {
        return m_bytes.endsWith('{') || m_bytes.endsWith('[');
    }

    void newLine(int depth) { m_bytes += '\n' + QByteArray(qsizetype{2} * depth, ' '); }

    void writeNumber(const QJsonValue& value) {
        const double number = value.toDouble();
        m_isFinite = m_isFinite && std::isfinite(number);
        if (const auto integer = asInteger(value); integer) {
            m_bytes += QByteArray::number(qlonglong{*integer});
            return;
        }
        std::array<char, 32> digits{};
        const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
        m_bytes += QByteArrayView(digits.data(), end);
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
            } else if (c.unicode() < 0x20 || c.isSurrogate()) { // lone surrogates have no UTF-8
                escaped += QString::asprintf("\\u%04x", static_cast<unsigned>(c.unicode()));
            } else {
                escaped += c;
            }
        }
        m_bytes += '"' + escaped.toUtf8() + '"';
    }

    QByteArray m_bytes;
    bool m_isFinite = true;
};

} // namespace

std::expected<QByteArray, FileError> encodeJson(const QJsonObject& object) {
    PrettyPrinter printer;
    printer.write(object, 0);
    if (!printer.isFinite()) {
        return std::unexpected(
            FileError{Message(QT_TRANSLATE_NOOP("Message", "A figure is not a finite number."))});
    }
    return printer.bytes();
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
    // fromString() accepts other forms too, and returns nil for anything else.
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
