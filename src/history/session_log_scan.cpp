#include "history/session_log_scan.h"

#include "history/session_log_counter.h"
#include "model/file_descriptor.h"

#include <cerrno>
#include <expected>
#include <list>

namespace tallyvane::history {

using model::AIProvider;

namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds ageLimit{3'024'000};
constexpr std::size_t fileLimit = 400;
constexpr std::int64_t sizeLimit = 24'999'999;

struct LogFile {
    fs::path path;
    fs::file_time_type modified;
};

/// Whether the process or the system ran out of resources, which is no fault of the file at hand.
bool isExhaustion(const std::error_code& error) {
    return error == std::errc::too_many_files_open ||
           error == std::errc::too_many_files_open_in_system ||
           error == std::errc::not_enough_memory;
}

/// The state of one scan.
class Scan {
public:
    Scan(const LogRoots& roots, model::Timestamp now, const std::stop_token& stop)
        : m_roots(roots),
          m_oldest(std::chrono::file_clock::from_sys(now - ageLimit)),
          m_stop(stop) {}

    [[nodiscard]] ScanReport run() {
        for (const auto& [provider, root] : m_roots) {
            m_report.totals[provider] = total(provider);
        }
        return m_report;
    }

private:
    std::int64_t total(AIProvider provider) {
        TokenSum sum;
        for (const LogFile& file : recentLogFiles(m_roots.at(provider), fileLimit)) {
            if (m_stop.stop_requested()) {
                break;
            }
            if (const auto tokens = fileTokens(provider, file.path)) {
                ++m_report.countedFiles;
                sum.add(*tokens);
            } else {
                ++m_report.skippedFiles[tokens.error()];
            }
        }
        if (sum.isOverflown) {
            qFatal("The session logs count more tokens than a number can hold.");
        }
        return sum.value;
    }

    /// The `limit` newest logs below `root`, the newest first.
    std::list<LogFile> recentLogFiles(const fs::path& root, std::size_t limit) {
        std::list<LogFile> logs = allLogFiles(root);
        logs.sort([](const LogFile& one, const LogFile& other) { // stable
            return one.modified > other.modified;
        });
        while (logs.size() > limit) {
            logs.pop_back();
            ++m_report.skippedFiles[SkipReason::overLimit];
        }
        return logs;
    }

    /// Regular files called "*.jsonl" that are recent enough. Skips hidden files and folders, and
    /// whatever cannot be read. Follows no link but `root` itself.
    std::list<LogFile> allLogFiles(const fs::path& root) {
        std::list<LogFile> logs;
        // One folder at a time, so that deep trees take no more descriptors than flat ones.
        std::list<fs::path> folders{root};
        for (; !folders.empty(); folders.pop_front()) {
            std::error_code error;
            for (fs::directory_iterator entry(folders.front(), error), end; !error && entry != end;
                 entry.increment(error)) {
                if (m_stop.stop_requested()) {
                    return logs;
                }
                std::error_code ignored; // the answer is then no
                if (entry->path().filename().native().starts_with('.') ||
                    entry->is_symlink(ignored)) {
                    continue;
                }
                if (entry->is_directory(ignored)) {
                    folders.push_back(entry->path());
                } else if (entry->path().extension() == ".jsonl" &&
                           entry->is_regular_file(ignored)) {
                    addLog(*entry, logs);
                }
            }
            if (isExhaustion(error)) {
                m_report.error = error;
                return logs;
            }
        }
        return logs;
    }

    void addLog(const fs::directory_entry& entry, std::list<LogFile>& logs) {
        std::error_code gone;
        const fs::file_time_type modified = entry.last_write_time(gone);
        if (!gone && modified >= m_oldest) {
            logs.push_back({entry.path(), modified});
        } else if (!gone) {
            ++m_report.skippedFiles[SkipReason::tooOld];
        }
    }

    std::expected<TokenSum, SkipReason> fileTokens(AIProvider provider, const fs::path& path) {
        // O_NONBLOCK in case the file has become a pipe.
        const model::FileDescriptor file(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
        struct stat status = {};
        if (file.get() < 0) {
            if (const std::error_code error(errno, std::system_category()); isExhaustion(error)) {
                m_report.error = error;
            }
            return std::unexpected(errno == ENOENT ? SkipReason::vanished : SkipReason::unreadable);
        }
        if (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
            return std::unexpected(SkipReason::unreadable);
        }
        if (status.st_size > sizeLimit) {
            return std::unexpected(SkipReason::tooLarge);
        }

        m_counter.begin(provider);
        std::int64_t size = 0;
        for (;;) {
            const std::span<char> space = m_counter.space();
            const ssize_t count = ::read(file.get(), space.data(), space.size());
            if (count < 0 && errno == EINTR) {
                continue;
            }
            if (count < 0) {
                return std::unexpected(SkipReason::unreadable);
            }
            if (count == 0) {
                break;
            }
            size += count;
            m_report.readBytes += count;
            // Again, because the file may be growing.
            if (size > sizeLimit) {
                return std::unexpected(SkipReason::tooLarge);
            }
            if (!m_counter.take(static_cast<std::size_t>(count))) {
                return std::unexpected(SkipReason::notUtf8);
            }
        }
        if (const auto tokens = m_counter.finish()) {
            return *tokens;
        }
        return std::unexpected(SkipReason::notUtf8);
    }

    const LogRoots& m_roots;
    fs::file_time_type m_oldest;
    const std::stop_token& m_stop;
    SessionLogCounter m_counter;
    ScanReport m_report;
};

} // namespace

model::Message scanFailureText(const std::error_code& error) {
    return model::Message(
        QT_TRANSLATE_NOOP("Message", "The session logs could not be counted: %1."),
        {qt_error_string(error.value())});
}

LogRoots logRoots(const std::filesystem::path& home) {
    return {{AIProvider::codex, home / ".codex" / "sessions"},
            {AIProvider::claude, home / ".claude" / "projects"}};
}

ScanReport scanSessionLogs(const LogRoots& roots, model::Timestamp now,
                           const std::stop_token& stop) {
    return Scan(roots, now, stop).run();
}

} // namespace tallyvane::history
