#pragma once

#include "model/file_io.h"
#include "model/raw_values.h"
#include "model/timestamp.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QString>
#include <QtCore/QUuid>

#include <cstdint>
#include <expected>
#include <functional>
#include <optional>
#include <vector>

/// The JSON format of the program's own files, and its strict decoding.
namespace tallyvane::model {

struct DecodeError {
    QString message; ///< for developers: the first deviation from the format
};

/// Encodes `object` with sorted keys, an indent of two spaces, `"key" : value`, whole numbers
/// without a fraction, other numbers in the shortest form that round-trips, and `[]` for an empty
/// list. Equal objects give equal bytes. Fails on numbers that are not finite.
[[nodiscard]] std::expected<QByteArray, FileError> encodeJson(const QJsonObject& object);

/// Reads the members of one object strictly. A missing member or one of the wrong type yields a
/// default value and is noted, and any such note makes decodeJson() fail.
class JsonReader {
public:
    JsonReader(QJsonObject object, std::optional<DecodeError>& firstError)
        : m_object(std::move(object)), m_firstError(firstError) {}

    [[nodiscard]] double number(QLatin1StringView key) const;
    [[nodiscard]] std::int64_t integer(QLatin1StringView key) const;
    [[nodiscard]] bool boolean(QLatin1StringView key) const;
    [[nodiscard]] QUuid uuid(QLatin1StringView key) const;
    [[nodiscard]] Timestamp timestamp(QLatin1StringView key) const;

    /// Optional members may be missing or null.
    [[nodiscard]] std::optional<QString> optionalText(QLatin1StringView key) const;
    [[nodiscard]] std::optional<Timestamp> optionalTimestamp(QLatin1StringView key) const;
    [[nodiscard]] std::optional<JsonReader> optionalObject(QLatin1StringView key) const;

    template <typename E>
    [[nodiscard]] E enumeration(QLatin1StringView key) const {
        const std::optional<E> value = fromRawValue<E>(text(key));
        if (!value) {
            note(key, "has an unknown value");
        }
        return value.value_or(E{});
    }

    /// A list of objects, each read by `readElement`.
    template <typename T, typename ReadElement>
    [[nodiscard]] std::vector<T> list(QLatin1StringView key, ReadElement readElement) const {
        std::vector<T> elements;
        for (const JsonReader& element : objects(key)) {
            elements.push_back(readElement(element));
        }
        return elements;
    }

private:
    [[nodiscard]] QString text(QLatin1StringView key) const;
    [[nodiscard]] std::vector<JsonReader> objects(QLatin1StringView key) const;
    [[nodiscard]] bool holds(QLatin1StringView key) const;
    void note(QLatin1StringView key, const char* problem) const;

    QJsonObject m_object;
    std::reference_wrapper<std::optional<DecodeError>> m_firstError;
};

/// Parses `json`, whose top level must be an object.
[[nodiscard]] std::expected<QJsonObject, DecodeError> parseJsonObject(const QByteArray& json);

/// Parses `json` and converts its top-level object with `read`.
template <typename T, typename Read>
[[nodiscard]] std::expected<T, DecodeError> decodeJson(const QByteArray& json, Read read) {
    const std::expected<QJsonObject, DecodeError> object = parseJsonObject(json);
    if (!object) {
        return std::unexpected(object.error());
    }
    std::optional<DecodeError> firstError;
    T value = read(JsonReader(*object, firstError));
    if (firstError) {
        return std::unexpected(*firstError);
    }
    return value;
}

} // namespace tallyvane::model
