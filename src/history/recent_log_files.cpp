#include "history/recent_log_files.h"

#include <list>

namespace tallyvane::history {

namespace fs = std::filesystem;

namespace {

struct Found {
    fs::path path;
    fs::file_time_type modified;
};

/// One folder at a time, so that deep trees take no more descriptors than others. The error is one
/// of the system, not of a folder.
std::error_code collect(const fs::path& root, const std::stop_token& stop, std::list<Found>& logs) {
    std::list<fs::path> folders{root};
    for (; !folders.empty(); folders.pop_front()) {
        std::error_code error;
        for (fs::directory_iterator entry(folders.front(), error), end; !error && entry != end;
             entry.increment(error)) {
            if (stop.stop_requested()) {
                return {};
            }
            std::error_code ignored; // what cannot be looked at is of no kind
            if (entry->path().filename().native().starts_with('.') || entry->is_symlink(ignored)) {
                continue;
            }
            if (entry->is_directory(ignored)) {
                folders.push_back(entry->path());
            } else if (entry->path().extension() == ".jsonl" && entry->is_regular_file(ignored)) {
                std::error_code gone;
                const fs::file_time_type modified = entry->last_write_time(gone);
                if (!gone) {
                    logs.push_back({entry->path(), modified});
                }
            }
        }
        if (isExhaustion(error)) {
            return error;
        }
    }
    return {};
}

} // namespace

bool isExhaustion(const std::error_code& error) {
    return error == std::errc::too_many_files_open ||
           error == std::errc::too_many_files_open_in_system ||
           error == std::errc::not_enough_memory;
}

RecentLogFiles recentLogFiles(const fs::path& root, std::size_t limit,
                              std::chrono::sys_time<std::chrono::nanoseconds> cutoff,
                              const std::stop_token& stop) {
    std::list<Found> logs;
    RecentLogFiles recent{.error = collect(root, stop, logs)};
    const auto oldest = std::chrono::file_clock::from_sys(cutoff);
    recent.tooOld = static_cast<int>(
        std::erase_if(logs, [oldest](const Found& log) { return log.modified < oldest; }));
    // A list's sort keeps the order of logs of one time.
    logs.sort([](const Found& one, const Found& other) { return one.modified > other.modified; });
    for (Found& log : logs) {
        if (recent.files.size() < limit) {
            recent.files.push_back(std::move(log.path));
        } else {
            ++recent.overLimit;
        }
    }
    return recent;
}

} // namespace tallyvane::history
