#include "history/json_text.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>
#include <vector>

namespace tallyvane::history {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool isHexDigit(char character) {
    return isDigit(character) || (character >= 'a' && character <= 'f') ||
           (character >= 'A' && character <= 'F');
}

/// Walks over the tokens of a text. A skip function returns false if there is no such token; only
/// the one for a single character then leaves the position unchanged.
class Walker {
public:
    explicit Walker(std::string_view rest) : m_rest(rest) {}

    [[nodiscard]] std::string_view rest() const { return m_rest; }

    void skipSpace() {
        m_rest.remove_prefix(std::min(m_rest.find_first_not_of(" \t\r\n"), m_rest.size()));
    }

    bool skip(char character) {
        const bool isThere = m_rest.starts_with(character);
        m_rest.remove_prefix(isThere ? 1 : 0);
        return isThere;
    }

    bool skipString() {
        if (!skip('"')) {
            return false;
        }
        while (!m_rest.empty()) {
            const char character = m_rest.front();
            m_rest.remove_prefix(1);
            if (character == '"') {
                return true;
            }
            if (static_cast<unsigned char>(character) < 0x20 ||
                (character == '\\' && !skipEscaped())) {
                return false;
            }
        }
        return false;
    }

    /// Skips the name of a member and the colon.
    bool skipName() {
        skipSpace();
        if (!skipString()) {
            return false;
        }
        skipSpace();
        return skip(':');
    }

    bool skipValue() {
        // For each bracket that is open, whether it is an object's. No recursion and few bytes, as
        // nesting may be deep.
        std::vector<bool> objects;
        for (;;) {
            skipSpace();
            const bool isObject = m_rest.starts_with('{');
            if (isObject || m_rest.starts_with('[')) {
                m_rest.remove_prefix(1);
                skipSpace();
                if (!skip(isObject ? '}' : ']')) {
                    objects.push_back(isObject);
                    if (isObject && !skipName()) {
                        return false;
                    }
                    continue;
                }
            } else if (!skipScalar()) {
                return false;
            }
            for (;;) {
                if (objects.empty()) {
                    return true;
                }
                skipSpace();
                if (skip(',')) {
                    break;
                }
                if (!skip(objects.back() ? '}' : ']')) {
                    return false;
                }
                objects.pop_back();
            }
            if (objects.back() && !skipName()) {
                return false;
            }
        }
    }

private:
    bool skipWord(std::string_view word) {
        const bool isThere = m_rest.starts_with(word);
        m_rest.remove_prefix(isThere ? word.size() : 0);
        return isThere;
    }

    bool skipScalar() {
        switch (m_rest.empty() ? '\0' : m_rest.front()) {
        case '"':
            return skipString();
        case 't':
            return skipWord("true");
        case 'f':
            return skipWord("false");
        case 'n':
            return skipWord("null");
        default:
            return skipNumber();
        }
    }

    bool skipEscaped() {
        if (skip('u')) {
            const std::string_view digits = m_rest.substr(0, 4);
            m_rest.remove_prefix(digits.size());
            return digits.size() == 4 && std::ranges::all_of(digits, isHexDigit);
        }
        const bool isThere = !m_rest.empty() && std::string_view("\"\\/bfnrt").contains(m_rest[0]);
        m_rest.remove_prefix(isThere ? 1 : 0);
        return isThere;
    }

    bool skipDigits() {
        const auto* end = std::ranges::find_if_not(m_rest, isDigit);
        const auto count = static_cast<std::size_t>(end - m_rest.begin());
        m_rest.remove_prefix(count);
        return count > 0;
    }

    bool skipNumber() {
        skip('-');
        if (!skip('0') && !skipDigits()) {
            return false;
        }
        if (skip('.') && !skipDigits()) {
            return false;
        }
        if (skip('e') || skip('E')) {
            if (!skip('+')) {
                skip('-');
            }
            return skipDigits();
        }
        return true;
    }

    std::string_view m_rest;
};

/// Whether the string literal `source` means `text`, whose characters have no escapes but numeric
/// ones.
bool spells(std::string_view source, std::string_view text) {
    source = source.substr(1, source.size() - 2);
    for (const char wanted : text) {
        if (source.starts_with(wanted)) {
            source.remove_prefix(1);
            continue;
        }
        unsigned code = 0;
        if (!source.starts_with("\\u") ||
            std::from_chars(source.data() + 2, source.data() + 6, code, 16).ec != std::errc{} ||
            code != static_cast<unsigned char>(wanted)) {
            return false;
        }
        source.remove_prefix(6);
    }
    return source.empty();
}

/// The exact integer part of a number; nothing if that is out of range.
std::optional<std::int64_t> truncated(std::string_view number) {
    const bool isNegative = number.starts_with('-');
    number.remove_prefix(isNegative ? 1 : 0);
    const std::size_t end = std::min(number.find_first_of("eE"), number.size());
    std::int32_t exponent = 0;
    if (end < number.size()) {
        const char* first = number.data() + end + (number[end + 1] == '+' ? 2 : 1);
        const char* last = number.data() + number.size();
        if (std::from_chars(first, last, exponent).ec == std::errc::result_out_of_range) {
            exponent = std::numeric_limits<std::int32_t>::max() * (*first == '-' ? -1 : 1);
        }
    }
    number = number.substr(0, end);
    const std::size_t point = std::min(number.find('.'), number.size());
    std::string digits(number.substr(0, point));
    digits += number.substr(std::min(point + 1, number.size()));

    const std::int64_t integerDigits = static_cast<std::int64_t>(point) + exponent;
    std::int64_t value = 0;
    for (std::int64_t i = 0; i < integerDigits; ++i) {
        const bool isPastDigits = i >= static_cast<std::int64_t>(digits.size());
        if (isPastDigits && value == 0) {
            break;
        }
        const int digit = isPastDigits ? 0 : digits[static_cast<std::size_t>(i)] - '0';
        if (__builtin_mul_overflow(value, 10, &value) ||
            __builtin_add_overflow(value, isNegative ? -digit : digit, &value)) {
            return std::nullopt;
        }
    }
    return value;
}

} // namespace

std::optional<JsonText> JsonText::parseObject(std::string_view text) {
    Walker walker(text);
    walker.skipSpace();
    const std::string_view source = walker.rest();
    if (!source.starts_with('{') || !walker.skipValue()) {
        return std::nullopt;
    }
    const std::size_t size = source.size() - walker.rest().size();
    walker.skipSpace();
    return walker.rest().empty() ? std::optional(JsonText(source.substr(0, size))) : std::nullopt;
}

std::optional<JsonText> JsonText::member(std::string_view name) const {
    std::optional<JsonText> found;
    Walker walker(m_source);
    if (!walker.skip('{')) {
        return found;
    }
    walker.skipSpace();
    if (walker.skip('}')) {
        return found;
    }
    do {
        walker.skipSpace();
        const std::string_view key = walker.rest();
        walker.skipString();
        const bool isWanted = spells(key.substr(0, key.size() - walker.rest().size()), name);
        walker.skipSpace();
        walker.skip(':');
        walker.skipSpace();
        const std::string_view value = walker.rest();
        walker.skipValue();
        if (isWanted) {
            found = JsonText(value.substr(0, value.size() - walker.rest().size()));
        }
        walker.skipSpace();
    } while (walker.skip(','));
    return found;
}

bool JsonText::isString(std::string_view text) const {
    return m_source.starts_with('"') && spells(m_source, text);
}

std::optional<std::int64_t> JsonText::integer() const {
    const char first = m_source.front();
    if (first == 't' || first == 'f') {
        return first == 't' ? 1 : 0;
    }
    if (first == '-' || isDigit(first)) {
        return truncated(m_source);
    }
    return std::nullopt;
}

} // namespace tallyvane::history
