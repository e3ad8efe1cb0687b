#include "history/candidate_search.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>
#ifdef __x86_64__
#include <immintrin.h>
#endif

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
    constexpr std::size_t half = word.size() / 2;
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
        std::memcpy(&middle, text + i + half, VectorSize);
        std::memcpy(&last, text + i + word.size() - 1, VectorSize);
        found |= ((first == '"') & (middle == word[half]) & (last == '"')) |
                 ((first == '\\') & (second == 'u') & (fifth >= '4'));
    }
    std::array<std::uint64_t, VectorSize / 8> parts{};
    std::memcpy(parts.data(), &found, VectorSize);
    std::uint64_t any = 0;
    for (const std::uint64_t part : parts) {
        any |= part;
    }
    return any != 0;
}

template <AIProvider Provider, auto MayBegin>
[[gnu::always_inline]] inline const char* search(const char* begin, const char* end) {
    for (const char* from = begin; from < end; from += stride) {
        if (MayBegin(from)) {
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
    return search<Provider, mayBegin<Provider, 16>>(begin, end);
}

#ifdef __x86_64__
template <AIProvider Provider>
[[gnu::target("avx2")]] const char* avx2Search(const char* begin, const char* end) {
    return search<Provider, mayBegin<Provider, 32>>(begin, end);
}

/// The same as mayBegin, since GCC 12 makes slow code of vectors as large as the stride.
template <AIProvider Provider>
[[gnu::target("avx512bw")]] inline bool mayBeginInStride(const char* text) {
    constexpr std::string_view word = neededWord(Provider);
    constexpr std::size_t half = word.size() / 2;
    const __m512i first = _mm512_loadu_si512(text);
    const __m512i second = _mm512_loadu_si512(text + 1);
    const __m512i fifth = _mm512_loadu_si512(text + 4);
    const __m512i middle = _mm512_loadu_si512(text + half);
    const __m512i last = _mm512_loadu_si512(text + word.size() - 1);
    __mmask64 words = _mm512_cmpeq_epi8_mask(first, _mm512_set1_epi8('"'));
    words = _mm512_mask_cmpeq_epi8_mask(words, middle, _mm512_set1_epi8(word[half]));
    words = _mm512_mask_cmpeq_epi8_mask(words, last, _mm512_set1_epi8('"'));
    __mmask64 escapes = _mm512_cmpeq_epi8_mask(first, _mm512_set1_epi8('\\'));
    escapes = _mm512_mask_cmpeq_epi8_mask(escapes, second, _mm512_set1_epi8('u'));
    escapes = _mm512_mask_cmpge_epi8_mask(escapes, fifth, _mm512_set1_epi8('4'));
    return (words | escapes) != 0;
}

template <AIProvider Provider>
[[gnu::target("avx512bw")]] const char* avx512Search(const char* begin, const char* end) {
    return search<Provider, mayBeginInStride<Provider>>(begin, end);
}

template <AIProvider Provider>
constexpr std::array<CandidateSearch, 3> searches{avx512Search<Provider>, avx2Search<Provider>,
                                                  plainSearch<Provider>};

std::size_t unsupportedSearches() {
    return __builtin_cpu_supports("avx512bw") != 0 ? 0
           : __builtin_cpu_supports("avx2") != 0   ? 1
                                                   : 2;
}
#else
template <AIProvider Provider>
constexpr std::array<CandidateSearch, 1> searches{plainSearch<Provider>};

std::size_t unsupportedSearches() {
    return 0;
}
#endif

} // namespace

std::span<const CandidateSearch> candidateSearches(AIProvider provider) {
    const auto& all =
        provider == AIProvider::codex ? searches<AIProvider::codex> : searches<AIProvider::claude>;
    return std::span(all).subspan(unsupportedSearches());
}

} // namespace tallyvane::history
