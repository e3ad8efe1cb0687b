#include "history/session_log_counter.h"

#include "history/candidate_search.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <ranges>
#include <simdjson.h>

namespace tallyvane::history {

using model::AIProvider;

namespace {

/// Small enough to stay in the CPU cache between the passes over it.
constexpr std::size_t blockSize = 256 * 1024;

bool isUtf8(std::string_view text) {
    return simdjson::validate_utf8(text.data(), text.size());
}

bool isEscapedByReturn(const char* feed, const char* begin) {
    return feed != begin && feed[-1] == '\r';
}

/// The last line feed in [from, end) that ends a line of the text at `begin`, else null.
const char* lastLineEnd(const char* begin, const char* from, const char* end) {
    while (const void* found = ::memrchr(from, '\n', static_cast<std::size_t>(end - from))) {
        end = static_cast<const char*>(found);
        if (!isEscapedByReturn(end, begin)) {
            return end;
        }
    }
    return nullptr;
}

/// The first line feed in [from, end) that ends a line of the text at `begin`, else `end`.
const char* nextLineEnd(const char* begin, const char* from, const char* end) {
    while (const void* found = std::memchr(from, '\n', static_cast<std::size_t>(end - from))) {
        const auto* feed = static_cast<const char*>(found);
        if (!isEscapedByReturn(feed, begin)) {
            return feed;
        }
        from = feed + 1;
    }
    return end;
}

/// Takes the lines up to the first that may count off the front of `lines`. Returns that one, or an
/// empty text at the end.
std::string_view nextCandidate(CandidateSearch find, std::string_view& lines) {
    const char* first = lines.begin();
    const char* end = lines.end();
    const char* found = find(first, end);
    const char* before = found < end ? lastLineEnd(first, first, found) : nullptr;
    const char* start = found == end ? end : before != nullptr ? before + 1 : first;
    const char* stop = nextLineEnd(start, found, end);
    lines = {std::min(stop + 1, end), end};
    return {start, stop};
}

} // namespace

void SessionLogCounter::begin(AIProvider provider) {
    m_provider = provider;
    m_size = 0;
    m_sum = {};
}

std::span<char> SessionLogCounter::space() {
    constexpr std::size_t slack = LineTokenReader::padding + searchOverrun;
    if (const auto needed = static_cast<qsizetype>(m_size + blockSize + slack);
        needed > m_buffer.size()) {
        m_buffer.resize(needed + needed / 2); // moves no bytes, unlike a vector
    }
    return {m_buffer.data() + m_size, blockSize};
}

bool SessionLogCounter::take(std::size_t size) {
    const char* begin = m_buffer.data();
    const char* fresh = begin + m_size;
    m_size += size;
    if (const char* last = lastLineEnd(begin, fresh, begin + m_size)) {
        if (!countLines({begin, last})) {
            return false;
        }
        const auto counted = static_cast<std::size_t>(last + 1 - begin);
        m_size -= counted;
        std::memmove(m_buffer.data(), m_buffer.data() + counted, m_size);
    }
    return true;
}

std::optional<TokenSum> SessionLogCounter::finish() {
    return countLines({m_buffer.data(), m_size}) ? std::optional(m_sum) : std::nullopt;
}

bool SessionLogCounter::countLines(std::string_view lines) {
    return m_provider == AIProvider::codex ? countCodexLines(lines) : countClaudeLines(lines);
}

bool SessionLogCounter::countCodexLines(std::string_view lines) {
    if (!isUtf8(lines)) {
        return false;
    }
    const CandidateSearch find = candidateSearches(AIProvider::codex).front();
    m_candidates.clear();
    for (auto line = nextCandidate(find, lines); !line.empty(); line = nextCandidate(find, lines)) {
        m_candidates.push_back(line);
    }
    // Totals grow, so that most lines cannot exceed the one after them.
    for (const std::string_view line : std::views::reverse(m_candidates)) {
        if (codexTokenBound(line).value_or(std::numeric_limits<std::int64_t>::max()) >
            m_sum.value) {
            const TokenSum tokens = m_reader.tokens(AIProvider::codex, line).value_or(TokenSum());
            m_sum.isOverflown |= tokens.isOverflown;
            m_sum.value = std::max(m_sum.value, tokens.value);
        }
    }
    return true;
}

bool SessionLogCounter::countClaudeLines(std::string_view lines) {
    const CandidateSearch find = candidateSearches(AIProvider::claude).front();
    for (;;) {
        const char* first = lines.data();
        const std::string_view line = nextCandidate(find, lines);
        if (!isUtf8({first, line.begin()})) {
            return false;
        }
        if (line.empty()) {
            return true;
        }
        const std::optional<TokenSum> tokens = m_reader.tokens(AIProvider::claude, line);
        if (!tokens) {
            return false;
        }
        m_sum.add(*tokens);
    }
}

} // namespace tallyvane::history
