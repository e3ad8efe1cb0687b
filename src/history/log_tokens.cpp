#include "history/log_tokens.h"

#include "history/json_text.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <optional>
#include <simdjson.h>

namespace tallyvane::history {

using model::AIProvider;

namespace {

/// Longer lines are rare, and the parser allocates nine bytes per byte of the longest line.
constexpr std::size_t maximumParsedSize = 1 << 20;

/// The interface of JsonText for a parsed document.
class ParsedJson {
public:
    ParsedJson(simdjson::dom::element element, bool& hasFraction)
        : m_element(element), m_hasFraction(&hasFraction) {}

    [[nodiscard]] std::optional<ParsedJson> member(std::string_view name) const {
        std::optional<ParsedJson> found;
        simdjson::dom::object object;
        if (m_element.get(object) == simdjson::SUCCESS) {
            for (const simdjson::dom::key_value_pair field : object) {
                if (field.key == name) {
                    found = ParsedJson(field.value, *m_hasFraction);
                }
            }
        }
        return found;
    }

    [[nodiscard]] bool isString(std::string_view text) const {
        std::string_view string;
        return m_element.get(string) == simdjson::SUCCESS && string == text;
    }

    [[nodiscard]] std::optional<std::int64_t> integer() const {
        using simdjson::dom::element_type;
        switch (m_element.type()) {
        case element_type::INT64:
            return m_element.get_int64().value_unsafe();
        case element_type::BOOL:
            return m_element.get_bool().value_unsafe() ? 1 : 0;
        case element_type::DOUBLE:
            *m_hasFraction = true;
            break;
        default:
            break;
        }
        return std::nullopt;
    }

private:
    simdjson::dom::element m_element;
    bool* m_hasFraction; ///< set when the value of integer() was rounded in parsing
};

template <typename Json>
std::optional<Json> find(const Json& json, std::initializer_list<std::string_view> path) {
    std::optional<Json> found = json;
    for (const std::string_view name : path) {
        if (found) {
            found = found->member(name);
        }
    }
    return found;
}

template <typename Json>
TokenSum sumOf(const Json& usage, std::initializer_list<std::string_view> names) {
    TokenSum sum;
    for (const std::string_view name : names) {
        const auto field = usage.member(name);
        sum.add({.value = field ? field->integer().value_or(0) : 0});
    }
    return sum;
}

template <typename Json>
TokenSum codexTokens(const Json& line) {
    const auto type = find(line, {"payload", "type"});
    const auto usage = find(line, {"payload", "info", "total_token_usage"});
    if (!type || !type->isString("token_count") || !usage) {
        return {};
    }
    const auto total = usage->member("total_tokens");
    const auto tokens = total ? total->integer() : std::nullopt;
    return tokens ? TokenSum{.value = *tokens} : sumOf(*usage, {"input_tokens", "output_tokens"});
}

template <typename Json>
TokenSum claudeTokens(const Json& line) {
    const auto type = line.member("type");
    const auto usage = find(line, {"message", "usage"});
    if (!type || !type->isString("assistant") || !usage) {
        return {};
    }
    return sumOf(*usage, {"input_tokens", "output_tokens", "cache_creation_input_tokens",
                          "cache_read_input_tokens"});
}

template <typename Json>
TokenSum lineTokens(AIProvider provider, const Json& line) {
    return provider == AIProvider::codex ? codexTokens(line) : claudeTokens(line);
}

/// The rest of `text` after the first `word`, if it is there.
std::optional<std::string_view> after(std::string_view word, std::string_view text) {
    const void* found = ::memmem(text.data(), text.size(), word.data(), word.size());
    if (found == nullptr) {
        return std::nullopt;
    }
    return std::string_view(static_cast<const char*>(found) + word.size(), text.end());
}

/// Takes a member such as `"name":12` off the front of `text`.
std::optional<std::pair<std::string_view, std::int64_t>> takeCount(std::string_view& text) {
    const std::size_t end = text.find("\":");
    if (!text.starts_with('"') || end == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view name = text.substr(1, end - 1);
    text.remove_prefix(end + 2);
    std::int64_t count = 0;
    const auto [rest, error] = std::from_chars(text.begin(), text.end(), count);
    text.remove_prefix(static_cast<std::size_t>(rest - text.begin()));
    return error == std::errc{} ? std::optional(std::pair(name, count)) : std::nullopt;
}

} // namespace

TokenSum plainLineTokens(AIProvider provider, std::string_view line) {
    const auto object = JsonText::parseObject(line);
    return object ? lineTokens(provider, *object) : TokenSum{};
}

std::optional<std::int64_t> codexTokenBound(std::string_view line) {
    // With one such name and nothing escaped, the figures cannot be anywhere else.
    constexpr std::string_view name = R"("total_token_usage")";
    auto rest = after(name, line);
    if (!rest || !rest->starts_with(":{") || after(name, *rest) || line.contains('\\')) {
        return std::nullopt;
    }
    rest->remove_prefix(1);
    std::optional<std::int64_t> total;
    std::int64_t input = 0;
    std::int64_t output = 0;
    do {
        rest->remove_prefix(1);
        const auto member = takeCount(*rest);
        if (!member) {
            return std::nullopt;
        }
        if (member->first == "total_tokens") {
            total = std::max(total.value_or(0), member->second);
        } else if (member->first == "input_tokens") {
            input = std::max(input, member->second);
        } else if (member->first == "output_tokens") {
            output = std::max(output, member->second);
        }
    } while (rest->starts_with(','));
    std::int64_t sum = 0;
    if (!rest->starts_with('}') || __builtin_add_overflow(input, output, &sum)) {
        return std::nullopt;
    }
    return total.value_or(sum);
}

struct LineTokenReader::Parser : simdjson::dom::parser {};

LineTokenReader::LineTokenReader() : m_parser(std::make_unique<Parser>()) {}

LineTokenReader::~LineTokenReader() = default;

std::optional<TokenSum> LineTokenReader::tokens(AIProvider provider, std::string_view line) {
    static_assert(padding >= simdjson::SIMDJSON_PADDING);
    simdjson::dom::element element;
    // A byte-order mark is invalid (RFC 8259), but newer versions of the parser accept it.
    if (line.size() <= maximumParsedSize && !line.starts_with("\xEF\xBB\xBF") &&
        m_parser->parse(line.data(), line.size(), false).get(element) == simdjson::SUCCESS) {
        bool hasFraction = false;
        const TokenSum sum = lineTokens(provider, ParsedJson(element, hasFraction));
        if (!hasFraction) {
            return sum;
        }
    }
    // The parser rejects some valid lines: integers beyond 64 bits, lone surrogates, deep nesting.
    if (!simdjson::validate_utf8(line.data(), line.size())) {
        return std::nullopt;
    }
    return plainLineTokens(provider, line);
}

} // namespace tallyvane::history
