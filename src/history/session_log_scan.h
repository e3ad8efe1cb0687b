#pragma once

#include "model/quota_snapshot.h"
#include "model/timestamp.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <stop_token>
#include <system_error>

namespace tallyvane::history {

/// Tokens per provider; always holds every provider. Negative, to the whole of the range, where the
/// Claude logs hold negative counts; never for Codex.
using TokenTotals = std::map<model::AIProvider, std::int64_t>;

/// Where the assistants' command-line programs keep their session logs.
using LogRoots = std::map<model::AIProvider, std::filesystem::path>;

/// ".codex/sessions" and ".claude/projects" below the user's home directory.
[[nodiscard]] LogRoots logRoots(const std::filesystem::path& home);

/// Why a session log does not count.
enum class SkipReason {
    tooOld,     ///< last modified more than 35 days ago
    overLimit,  ///< not one of the 400 newest below its root
    tooLarge,   ///< of more than 24,999,999 bytes
    notUtf8,    ///< not UTF-8 at some place
    unreadable, ///< for this user, or no regular file any more
    vanished,   ///< removed since its folder was listed
};

/// What a scan saw.
struct ScanReport {
    TokenTotals totals;
    int countedFiles = 0;
    std::map<SkipReason, int> skippedFiles; ///< only reasons that occurred
    std::int64_t readBytes = 0;
    /// Why the system could not read all that is there, if so; the figures mean nothing then.
    std::error_code error;
};

/// For the user: that the session logs could not be counted, and why.
[[nodiscard]] QString scanFailureText(const std::error_code& error);

/// Counts the tokens in the session logs of the 35 days before `now`, Codex first. Reads each of
/// them whole, every time, and remembers nothing; no log is so odd that it fails. Blocks. Ends
/// between two files when `stop` is requested, with figures that mean nothing. Ends the program
/// when a sum leaves the range, which no real log comes near.
[[nodiscard]] ScanReport scanSessionLogs(const LogRoots& roots, model::Timestamp now,
                                         const std::stop_token& stop);

} // namespace tallyvane::history

/// The names that `tallyvane tokens --json` prints.
template <>
inline constexpr std::array tallyvane::model::rawValues<tallyvane::history::SkipReason>{
    QLatin1StringView("tooOld"),  QLatin1StringView("overLimit"),  QLatin1StringView("tooLarge"),
    QLatin1StringView("notUtf8"), QLatin1StringView("unreadable"), QLatin1StringView("vanished")};
