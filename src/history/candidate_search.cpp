#include "history/candidate_search.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tallyvane::history {

using model::AIProvider;

namespace {

/// The bytes looked at between two branches.
constexpr std::size_t stride = 64;

constexpr std::string_view neededWord(AIProvider provider) {
    return provider == AIProvider::codex ? R"("token_count")" : R"("assistant")";
}

template <AIProvider Provider>
[[gnu::always_inline]] inline bool isCandidate(const char* text) {
    constexpr std::string_view word = neededWord(Provider);
    return (text[0] == '"' && std::memcmp(text, word.data(), word.size()) == 0) ||
           (text[0] == '\\' && std::memcmp(text, "\\u00", 4) == 0 && text[4] >= '4' &&
            text[4] <= '7');
}

/// Whether a candidate may begin in the stride. Compares a few bytes of each place, so there are
/// some false positives.
template <AIProvider Provider, std::size_t VectorSize>
[[gnu::always_inline]] inline bool mayBegin(const char* text) {
    typedef signed char Bytes __attribute__((vector_size(VectorSize)));
    constexpr std::string_view word = neededWord(Provider);
    Bytes found{};
#pragma GCC unroll 4
    for (std::size_t i = 0; i < stride; i += VectorSize) {
        Bytes first;
        Bytes second;
        Bytes fifth;
        Bytes middle;
        Bytes last;
        std::memcpy(&first, text + i, VectorSize);
        std::memcpy(&second, text + i + 1, VectorSize);
        std::memcpy(&fifth, text + i + 4, VectorSize);
        std::memcpy(&middle, text + i + word.size() / 2, VectorSize);
        std::memcpy(&last, text + i + word.size() - 1, VectorSize);
        found |= ((first == '"') & (middle == word[word.size() / 2]) & (last == '"')) |
                 ((first == '\\') & (second == 'u') & (fifth >= '4'));
    }
    std::uint64_t any = 0;
    for (std::size_t i = 0; i < VectorSize; i += 8) {
        std::uint64_t part = 0;
        std::memcpy(&part, reinterpret_cast<const char*>(&found) + i, 8);
        any |= part;
    }
    return any != 0;
}

template <AIProvider Provider, std::size_t VectorSize>
[[gnu::always_inline]] inline const char* search(const char* begin, const char* end) {
    for (const char* from = begin; from < end; from += stride) {
        if (mayBegin<Provider, VectorSize>(from)) {
            for (const char* place = from; place < from + stride && place < end; ++place) {
                if (isCandidate<Provider>(place)) {
                    return place;
                }
            }
        }
    }
    return end;
}

template <AIProvider Provider>
const char* plainSearch(const char* begin, const char* end) {
    return search<Provider, 16>(begin, end);
}

#ifdef __x86_64__
template <AIProvider Provider>
[[gnu::target("avx2")]] const char* avx2Search(const char* begin, const char* end) {
    return search<Provider, 32>(begin, end);
}

template <AIProvider Provider>
constexpr std::array<CandidateSearch, 2> searches{avx2Search<Provider>, plainSearch<Provider>};
const std::size_t unsupported = __builtin_cpu_supports("avx2") ? 0 : 1;
#else
template <AIProvider Provider>
constexpr std::array<CandidateSearch, 1> searches{plainSearch<Provider>};
constexpr std::size_t unsupported = 0;
#endif

} // namespace

std::span<const CandidateSearch> candidateSearches(AIProvider provider) {
    const auto& all =
        provider == AIProvider::codex ? searches<AIProvider::codex> : searches<AIProvider::claude>;
    return std::span(all).subspan(unsupported);
}

} // namespace tallyvane::history
