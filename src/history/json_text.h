#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tallyvane::history {

/// A value of a JSON text (RFC 8259), looked at in its source form and nothing copied. Takes the
/// grammar as it is: numbers of any size, lone escaped surrogates, nesting of any depth, no
/// byte-order mark. That the text is UTF-8 is its caller's business. Views the caller's bytes.
class JsonText {
public:
    /// The object that `text` is; nothing unless the whole of it is one valid object.
    [[nodiscard]] static std::optional<JsonText> parseObject(std::string_view text);

    /// The last member called `name`, of lower-case letters and underscores; nothing when there is
    /// none or this is no object.
    [[nodiscard]] std::optional<JsonText> member(std::string_view name) const;

    /// Whether this is the string `text`, of lower-case letters and underscores.
    [[nodiscard]] bool isString(std::string_view text) const;

    /// A number without its fraction; true as 1 and false as 0. Nothing when that is out of range
    /// or this is anything else.
    [[nodiscard]] std::optional<std::int64_t> integer() const;

private:
    explicit JsonText(std::string_view source) : m_source(source) {}

    std::string_view m_source; ///< one valid value, without space around it
};

} // namespace tallyvane::history
