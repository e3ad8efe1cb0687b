#pragma once

#include "history/log_tokens.h"

#include <QtCore/QByteArray>

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace tallyvane::history {

/// Counts the tokens of session logs, one after the other, from blocks of bytes. Buffers no more
/// than one line between blocks.
///
/// A log that is not valid UTF-8 does not count at all. A line feed ends a line unless it follows a
/// carriage return; the last line needs none. The result is, for Codex, the largest figure of all
/// lines, but at least 0, since each line has the session's running total; for Claude, the sum.
class SessionLogCounter {
public:
    /// Starts a new log.
    void begin(model::AIProvider provider);

    /// The buffer for the next bytes of the log, never empty. Valid until the next call.
    [[nodiscard]] std::span<char> space();

    /// Processes the first `size` bytes of space(). False if the log is not valid UTF-8.
    [[nodiscard]] bool take(std::size_t size);

    /// Ends the log and returns its tokens; nothing if it is not valid UTF-8.
    [[nodiscard]] std::optional<TokenSum> finish();

private:
    // False if they are not UTF-8.
    [[nodiscard]] bool countLines(std::string_view lines);
    [[nodiscard]] bool countCodexLines(std::string_view lines);
    [[nodiscard]] bool countClaudeLines(std::string_view lines);

    LineTokenReader m_reader;
    QByteArray m_buffer;    ///< starts at the start of a line
    std::size_t m_size = 0; ///< of the bytes of the log in m_buffer
    std::vector<std::string_view> m_candidates;
    model::AIProvider m_provider{};
    TokenSum m_sum;
};

} // namespace tallyvane::history
