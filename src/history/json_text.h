#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tallyvane::history {

/// A view of a value in a JSON text (RFC 8259). Accepts the full grammar: numbers of any size,
/// escaped lone surrogates, any depth of nesting; no byte-order mark. Does not check for UTF-8.
class JsonText {
public:
    /// Nothing unless all of `text` is one valid object.
    [[nodiscard]] static std::optional<JsonText> parseObject(std::string_view text);

    /// The last member called `name`, which consists of lower-case letters and underscores. Nothing
    /// if there is none or this is not an object.
    [[nodiscard]] std::optional<JsonText> member(std::string_view name) const;

    /// Whether this is the string `text`, which consists of lower-case letters and underscores.
    [[nodiscard]] bool isString(std::string_view text) const;

    /// A number truncated to an integer, with true as 1 and false as 0. Nothing for other values or
    /// if it is out of range.
    [[nodiscard]] std::optional<std::int64_t> integer() const;

private:
    explicit JsonText(std::string_view source) : m_source(source) {}

    std::string_view m_source; ///< one valid value without surrounding space
};

} // namespace tallyvane::history
