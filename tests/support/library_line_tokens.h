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
class LibraryLineTokens {
public:
    [[nodiscard]] static std::optional<history::TokenSum> of(model::AIProvider provider,
                                                             std::string_view line) {
        if (line.starts_with("\xEF\xBB\xBF") || line.contains('\0')) {
            return std::nullopt;
        }
        try {
            LibraryLineTokens tokens;
            const Json json = Json::parse(line);
            tokens.count(provider, json);
            return tokens.m_isRounded ? std::nullopt : std::optional(tokens.m_sum);
        } catch (const Json::parse_error& error) {
            const bool isSurrogate = std::string_view(error.what()).contains("surrogate");
            return isSurrogate ? std::nullopt : std::optional(history::TokenSum{});
        } catch (const Json::out_of_range&) {
            return std::nullopt;
        }
    }

private:
    /// A long double holds each fraction whose integer part a count can be.
    using Json = nlohmann::basic_json<std::map, std::vector, std::string, bool, std::int64_t,
                                      std::uint64_t, long double>;

    static const Json& at(const Json& json, const char* name) {
        static const Json none;
        return json.is_object() && json.contains(name) ? json[name] : none;
    }

    void count(model::AIProvider provider, const Json& line) {
        if (provider == model::AIProvider::claude) {
            if (at(line, "type") == "assistant") {
                const Json& usage = at(at(line, "message"), "usage");
                for (const char* name :
                     {"input_tokens", "output_tokens", "cache_creation_input_tokens",
                      "cache_read_input_tokens"}) {
                    m_sum.add({.value = number(at(usage, name)).value_or(0)});
                }
            }
        } else if (at(at(line, "payload"), "type") == "token_count") {
            const Json& usage = at(at(at(line, "payload"), "info"), "total_token_usage");
            if (const auto total = number(at(usage, "total_tokens"))) {
                m_sum.value = *total;
                return;
            }
            for (const char* name : {"input_tokens", "output_tokens"}) {
                m_sum.add({.value = number(at(usage, name)).value_or(0)});
            }
        }
    }

    std::optional<std::int64_t> number(const Json& json) {
        if (json.is_boolean()) {
            return json.get<bool>() ? 1 : 0;
        }
        if (json.is_number_unsigned() && json.get<std::uint64_t>() > INT64_MAX) {
            return std::nullopt;
        }
        if (json.is_number_integer()) {
            return json.get<std::int64_t>();
        }
        if (!json.is_number_float()) {
            return std::nullopt;
        }
        const auto value = json.get<long double>();
        const long double whole = std::trunc(value);
        const bool isInRange = std::abs(whole) < 0x1p63L;
        m_isRounded |= whole == value && std::abs(whole) <= 0x1p64L;
        return isInRange ? std::optional(static_cast<std::int64_t>(whole)) : std::nullopt;
    }

    history::TokenSum m_sum;
    bool m_isRounded = false;
};

} // namespace tallyvane::tests
