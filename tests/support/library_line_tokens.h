#pragma once

#include "history/log_tokens.h"

#include <cmath>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>

namespace tallyvane::tests {

/// What one line of a session log counts by a JSON library that the program does not use. Nothing
/// where that library holds no opinion: it takes a byte-order mark and ends at a NUL, refuses
/// halves of surrogate pairs and numbers past its greatest, and rounds those with a fraction.
inline std::optional<history::TokenSum> libraryLineTokens(model::AIProvider provider,
                                                          std::string_view line) {
    // A long double holds each fraction whose integer part a count can be.
    using Json = nlohmann::basic_json<std::map, std::vector, std::string, bool, std::int64_t,
                                      std::uint64_t, long double>;
    static const Json none;
    const auto at = [](const Json& json, const char* name) -> const Json& {
        return json.is_object() && json.contains(name) ? json[name] : none;
    };
    bool isRounded = false;
    const auto number = [&isRounded](const Json& json) -> std::optional<std::int64_t> {
        if (json.is_boolean()) {
            return json.get<bool>() ? 1 : 0;
        }
        if (!json.is_number()) {
            return std::nullopt;
        }
        // This type holds each 64-bit integer too.
        const auto value = json.get<long double>();
        const long double whole = std::trunc(value);
        isRounded |= json.is_number_float() && whole == value && std::abs(whole) <= 0x1p64L;
        const bool isInRange = whole >= -0x1p63L && whole < 0x1p63L;
        return isInRange ? std::optional(static_cast<std::int64_t>(whole)) : std::nullopt;
    };
    const auto sumOf = [&](const Json& usage, std::initializer_list<const char*> names) {
        history::TokenSum sum;
        for (const char* name : names) {
            sum.add({.value = number(at(usage, name)).value_or(0)});
        }
        return sum;
    };
    if (line.starts_with("\xEF\xBB\xBF") || line.contains('\0')) {
        return std::nullopt;
    }
    try {
        const Json json = Json::parse(line);
        history::TokenSum sum;
        if (provider == model::AIProvider::claude && at(json, "type") == "assistant") {
            sum = sumOf(at(at(json, "message"), "usage"),
                        {"input_tokens", "output_tokens", "cache_creation_input_tokens",
                         "cache_read_input_tokens"});
        } else if (const Json& payload = at(json, "payload");
                   provider == model::AIProvider::codex && at(payload, "type") == "token_count") {
            const Json& usage = at(at(payload, "info"), "total_token_usage");
            const auto total = number(at(usage, "total_tokens"));
            sum = total ? history::TokenSum{.value = *total}
                        : sumOf(usage, {"input_tokens", "output_tokens"});
        }
        return isRounded ? std::nullopt : std::optional(sum);
    } catch (const Json::parse_error& error) {
        const bool isSurrogate = std::string_view(error.what()).contains("surrogate");
        return isSurrogate ? std::nullopt : std::optional(history::TokenSum{});
    } catch (const Json::out_of_range&) {
        return std::nullopt;
    }
}

} // namespace tallyvane::tests
