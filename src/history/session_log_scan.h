#pragma once

#include "model/quota_snapshot.h"
#include "model/timestamp.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <stop_token>
#include <system_error>

namespace tallyvane::history {

/// Tokens of every provider. Any 64-bit value for Claude, whose logs may hold negative counts;
/// never negative for Codex.
using TokenTotals = std::map<model::AIProvider, std::int64_t>;

/// The directories of the session logs.
using LogRoots = std::map<model::AIProvider, std::filesystem::path>;

/// ".codex/sessions" and ".claude/projects" below the user's home directory.
[[nodiscard]] LogRoots logRoots(const std::filesystem::path& home);

/// Why a session log is not counted.
enum class SkipReason {
    tooOld,     ///< last modified more than 35 days ago
    overLimit,  ///< not among the 400 newest below its root
    tooLarge,   ///< more than 24,999,999 bytes
    notUtf8,    ///< contains invalid UTF-8
    unreadable, ///< by this user, or no longer a regular file
    vanished,   ///< removed after its folder was listed
};

/// The result of a scan.
struct ScanReport {
    TokenTotals totals;
    int countedFiles = 0;
    std::map<SkipReason, int> skippedFiles; ///< by reason; only those that occurred
    std::int64_t readBytes = 0;
    std::error_code error; ///< if set, the system lacked resources and the figures are invalid
};

/// The user's text for ScanReport::error.
[[nodiscard]] model::Message scanFailureText(const std::error_code& error);

/// Counts the tokens in the session logs modified in the 35 days before `now`, Codex first.
/// Blocking and stateless: every call reads every log. Malformed logs never make it fail. Stops
/// between two files when `stop` is requested, with invalid figures. Aborts the program if a sum
/// overflows.
[[nodiscard]] ScanReport scanSessionLogs(const LogRoots& roots, model::Timestamp now,
                                         const std::stop_token& stop);

} // namespace tallyvane::history

/// The keys in the output of `tallyvane tokens --json`.
template <>
inline constexpr std::array tallyvane::model::rawValues<tallyvane::history::SkipReason>{
    QLatin1StringView("tooOld"),  QLatin1StringView("overLimit"),  QLatin1StringView("tooLarge"),
    QLatin1StringView("notUtf8"), QLatin1StringView("unreadable"), QLatin1StringView("vanished")};
