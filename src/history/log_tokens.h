#pragma once

#include "model/quota_snapshot.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace tallyvane::history {

/// A sum of token counts that records overflow.
struct TokenSum {
    std::int64_t value = 0;
    bool isOverflown = false;

    void add(const TokenSum& other) {
        isOverflown |= other.isOverflown || __builtin_add_overflow(value, other.value, &value);
    }

    bool operator==(const TokenSum&) const = default;
};

/// The tokens in one line of a session log; 0 unless the line is a JSON object (RFC 8259) of the
/// right type. The last of duplicate members counts. Fields that are not numbers, or whose integer
/// part exceeds 64 bits, are treated as absent.
///
/// Codex (CLI 0.169): the session's running total, payload.info.total_token_usage.total_tokens or
/// else input_tokens + output_tokens there, if payload.type is "token_count".
/// Claude (Code 2.1): the sum of the four token fields of message.usage, if type is "assistant".
[[nodiscard]] TokenSum plainLineTokens(model::AIProvider provider, std::string_view line);

/// No less than the tokens of a line of a Codex log. Found without reading all of it, so only in a
/// line that is written as Codex writes it; nothing for others.
[[nodiscard]] std::optional<std::int64_t> codexTokenBound(std::string_view line);

/// The same as plainLineTokens(), but faster. Reuses its memory from line to line.
class LineTokenReader {
public:
    LineTokenReader();
    ~LineTokenReader();
    LineTokenReader(const LineTokenReader&) = delete;
    LineTokenReader& operator=(const LineTokenReader&) = delete;

    /// Nothing if `line` is not valid UTF-8. At least `padding` more bytes, of any content, must be
    /// readable after it.
    [[nodiscard]] std::optional<TokenSum> tokens(model::AIProvider provider, std::string_view line);

    static constexpr std::size_t padding = 64;

private:
    struct Parser;
    std::unique_ptr<Parser> m_parser;
};

} // namespace tallyvane::history
