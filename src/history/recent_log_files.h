#pragma once

#include <chrono>
#include <filesystem>
#include <stop_token>
#include <system_error>
#include <vector>

namespace tallyvane::history {

/// The session logs below one folder that count.
struct RecentLogFiles {
    std::vector<std::filesystem::path> files; ///< the newest first
    int tooOld = 0;                           ///< logs last modified before the cut-off
    int overLimit = 0;                        ///< more logs than the limit; the oldest
    std::error_code error;                    ///< why the system could not list them all, if so
};

/// Whether the system had no descriptor or no memory left, which says nothing of the file at hand.
[[nodiscard]] bool isExhaustion(const std::error_code& error);

/// The `limit` newest regular files below `root` with the extension "jsonl" that were modified at
/// `cutoff` or later. Skips hidden files, hidden folders and everything in them. Follows no link
/// but `root` itself. Passes over what it cannot read, and ends early when `stop` is requested.
[[nodiscard]] RecentLogFiles recentLogFiles(const std::filesystem::path& root, std::size_t limit,
                                            std::chrono::sys_time<std::chrono::nanoseconds> cutoff,
                                            const std::stop_token& stop);

} // namespace tallyvane::history
