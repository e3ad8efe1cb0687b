#pragma once

#include "model/quota_snapshot.h"

#include <span>

namespace tallyvane::history {

/// Finds the first place in [begin, end) that only lines that count have: the quoted word that they
/// all contain, or an escaped letter such as "\u0061", with which it may be spelled. Returns `end`
/// if there is none. Reads up to searchOverrun bytes beyond `end`, of any content.
using CandidateSearch = const char* (*)(const char* begin, const char* end);

inline constexpr std::size_t searchOverrun = 128;

/// The searches of this processor for a provider's logs, the fastest first.
[[nodiscard]] std::span<const CandidateSearch> candidateSearches(model::AIProvider provider);

} // namespace tallyvane::history
