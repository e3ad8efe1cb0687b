#include "history/session_log_counter.h"

#include <algorithm>
#include <cstring>
#include <simdjson.h>

namespace tallyvane::history {

using model::AIProvider;

namespace {

/// Small enough to stay in the CPU cache between the passes over it.
constexpr std::size_t blockSize = 128 * 1024;

/// The number of bytes searched at once; constant, so that the loop is vectorised.
constexpr std::size_t stride = 64;

/// What a line that counts must contain, unless it escapes a letter or an underscore.
constexpr std::string_view neededWord(AIProvider provider) {
    return provider == AIProvider::codex ? R"("token_count")" : R"("assistant")";
}

bool isEscapedLetter(const char* text) {
    return std::memcmp(text, "\\u00", 4) == 0 && text[4] >= '4' && text[4] <= '7';
}

/// Whether the word or an escaped letter may start in the stride. Branch-free; tests only a few
/// bytes of each position, so there are some false positives.
template <std::size_t LastOfWord>
bool mayBegin(const char* text, char second) {
    unsigned char found = 0;
    for (std::size_t i = 0; i < stride; ++i) {
        const bool isWord =
            (text[i] == '"') & (text[i + 1] == second) & (text[i + LastOfWord] == '"');
        const bool isEscape = (text[i] == '\\') & (text[i + 1] == 'u') & (text[i + 4] >= '4');
        found |= static_cast<unsigned char>(isWord | isEscape);
    }
    return found != 0;
}

/// The first word or escaped letter in [begin, end), else `end`. Reads up to
/// LineTokenReader::padding + stride bytes beyond.
template <AIProvider Provider>
const char* findCandidate(const char* begin, const char* end) {
    constexpr std::string_view word = neededWord(Provider);
    for (const char* from = begin; from < end; from += stride) {
        if (mayBegin<word.size() - 1>(from, word[1])) {
            const char* last = std::min(from + stride, end);
            const char* found = std::find_if(from, last, [&](const char& place) {
                return std::memcmp(&place, word.data(), word.size()) == 0 ||
                       isEscapedLetter(&place);
            });
            if (found != last) {
                return found;
            }
        }
    }
    return end;
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

/// `text` without an incomplete character at its end.
std::string_view wholeCharacters(std::string_view text) {
    for (std::size_t back = 1; back <= std::min<std::size_t>(3, text.size()); ++back) {
        const auto byte = static_cast<unsigned char>(text[text.size() - back]);
        if ((byte & 0xC0) != 0x80) {
            const std::size_t needed = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
            return text.substr(0, text.size() - (needed > back ? back : 0));
        }
    }
    return text;
}

} // namespace

void SessionLogCounter::begin(AIProvider provider) {
    m_provider = provider;
    m_size = 0;
    m_checked = 0;
    m_sum = {};
}

std::span<char> SessionLogCounter::space() {
    constexpr std::size_t slack = LineTokenReader::padding + stride;
    if (m_buffer.size() < m_size + blockSize + slack) {
        m_buffer.resize(2 * m_size + blockSize + slack);
    }
    return std::span(m_buffer).subspan(m_size, blockSize);
}

bool SessionLogCounter::take(std::size_t size) {
    const char* begin = m_buffer.data();
    const char* fresh = begin + m_size;
    const char* end = fresh + size;
    m_size += size;
    const std::string_view unchecked(begin + m_checked, m_size - m_checked);
    if (!isUtf8Until(m_checked + wholeCharacters(unchecked).size())) {
        return false;
    }
    if (const char* last = lastLineEnd(begin, fresh, end)) {
        countLines({begin, last});
        const auto counted = static_cast<std::size_t>(last + 1 - begin);
        m_size -= counted;
        m_checked -= counted;
        std::memmove(m_buffer.data(), m_buffer.data() + counted, m_size);
    }
    return true;
}

std::optional<TokenSum> SessionLogCounter::finish() {
    if (!isUtf8Until(m_size)) {
        return std::nullopt;
    }
    countLines({m_buffer.data(), m_size});
    return m_sum;
}

bool SessionLogCounter::isUtf8Until(std::size_t end) {
    const bool isUtf8 = simdjson::validate_utf8(m_buffer.data() + m_checked, end - m_checked);
    m_checked = end;
    return isUtf8;
}

void SessionLogCounter::countLines(std::string_view lines) {
    const bool isCodex = m_provider == AIProvider::codex;
    const auto find =
        isCodex ? findCandidate<AIProvider::codex> : findCandidate<AIProvider::claude>;
    const char* first = lines.data();
    const char* end = first + lines.size();
    for (const char* found = find(first, end); found < end; found = find(first, end)) {
        const char* before = lastLineEnd(first, first, found);
        const char* start = before != nullptr ? before + 1 : first;
        const char* stop = nextLineEnd(start, found, end);
        const TokenSum line = m_reader.tokens(m_provider, {start, stop});
        if (isCodex) {
            m_sum.isOverflown |= line.isOverflown;
            m_sum.value = std::max(m_sum.value, line.value);
        } else {
            m_sum.add(line);
        }
        first = std::min(stop + 1, end);
    }
}

} // namespace tallyvane::history
