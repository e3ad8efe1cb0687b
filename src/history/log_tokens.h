#pragma once

#include "model/quota_snapshot.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace tallyvane::history {

/// A sum of token counts that knows whether it ever left the range.
struct TokenSum {
    std::int64_t value = 0;
    bool isOverflown = false;

    void add(const TokenSum& other) {
        isOverflown |= other.isOverflown || __builtin_add_overflow(value, other.value, &value);
    }

    bool operator==(const TokenSum&) const = default;
};

/// What one line of a session log says; 0 unless all of it is a JSON object (RFC 8259) of the kind
/// that counts. The last of several members of one name is meant. A field that is no number, or one
/// whose integer part is beyond 64 bits, is as if it were not there.
///
/// Codex (CLI 0.169): the session's tokens so far, payload.info.total_token_usage.total_tokens,
/// else input_tokens + output_tokens there, where payload.type is "token_count".
/// Claude (Code 2.1): the four token fields of message.usage, where type is "assistant".
[[nodiscard]] TokenSum plainLineTokens(model::AIProvider provider, std::string_view line);

/// The same sums, faster. Keeps its memory from line to line.
class LineTokenReader {
public:
    LineTokenReader();
    ~LineTokenReader();
    LineTokenReader(const LineTokenReader&) = delete;
    LineTokenReader& operator=(const LineTokenReader&) = delete;

    /// The memory of `line` must go on for `padding` more bytes, of any content.
    [[nodiscard]] TokenSum tokens(model::AIProvider provider, std::string_view line);

    static constexpr std::size_t padding = 64;

private:
    struct Parser;
    std::unique_ptr<Parser> m_parser;
};

} // namespace tallyvane::history
