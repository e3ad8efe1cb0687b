#pragma once

#include "history/log_tokens.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace tallyvane::history {

/// Counts the tokens of one session log after the other from their bytes, block by block, and
/// remembers no more than the line that a block ends in.
///
/// A log is UTF-8 or counts as a whole for nothing. Its lines end at each line feed but those after
/// a carriage return; the last one needs no end. Codex: the largest figure of a line, and at least
/// 0, since each line tells the session's sum so far. Claude: the sum of all lines.
class SessionLogCounter {
public:
    /// Begins a new log.
    void begin(model::AIProvider provider);

    /// Where the next bytes of the log go; never empty. Valid until the next call.
    [[nodiscard]] std::span<char> space();

    /// Takes the first `size` bytes of space(). False: the log is not UTF-8 and at its end.
    [[nodiscard]] bool take(std::size_t size);

    /// The log's tokens, when all of it was taken; nothing when it is not UTF-8.
    [[nodiscard]] std::optional<TokenSum> finish();

private:
    [[nodiscard]] bool isUtf8Until(std::size_t end);
    void countLines(std::string_view lines);

    LineTokenReader m_reader;
    std::vector<char> m_buffer; ///< from the start of a line on
    std::size_t m_size = 0;     ///< of m_buffer, what is taken
    std::size_t m_checked = 0;  ///< of that, what is known as UTF-8
    model::AIProvider m_provider{};
    TokenSum m_sum;
};

} // namespace tallyvane::history
