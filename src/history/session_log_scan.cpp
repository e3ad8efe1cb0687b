#include "history/session_log_scan.h"

#include "history/recent_log_files.h"
#include "history/session_log_counter.h"
#include "model/file_descriptor.h"

#include <cerrno>
#include <expected>

namespace tallyvane::history {

using model::AIProvider;

namespace {

constexpr std::chrono::seconds ageLimit{3'024'000};
constexpr std::size_t fileLimit = 400;
constexpr std::int64_t sizeLimit = 24'999'999;

/// One scan's state.
class Scan {
public:
    Scan(const LogRoots& roots, model::Timestamp now, const std::stop_token& stop)
        : m_roots(roots), m_now(now), m_stop(stop) {}

    [[nodiscard]] ScanReport run() {
        for (const auto& [provider, root] : m_roots) {
            m_report.totals[provider] = total(provider);
        }
        return m_report;
    }

private:
    std::int64_t total(AIProvider provider) {
        const RecentLogFiles recent =
            recentLogFiles(m_roots.at(provider), fileLimit, m_now - ageLimit, m_stop);
        if (recent.error) {
            m_report.error = recent.error;
        }
        skip(SkipReason::tooOld, recent.tooOld);
        skip(SkipReason::overLimit, recent.overLimit);
        TokenSum sum;
        for (const std::filesystem::path& file : recent.files) {
            if (m_stop.stop_requested()) {
                break;
            }
            if (const auto tokens = fileTokens(provider, file)) {
                ++m_report.countedFiles;
                sum.add(*tokens);
            } else {
                skip(tokens.error(), 1);
            }
        }
        if (sum.isOverflown) {
            qFatal("The session logs count more tokens than a number can hold.");
        }
        return sum.value;
    }

    void skip(SkipReason reason, int count) {
        if (count > 0) {
            m_report.skippedFiles[reason] += count;
        }
    }

    std::expected<TokenSum, SkipReason> fileTokens(AIProvider provider,
                                                   const std::filesystem::path& path) {
        // Not blocking, should the file have become a pipe.
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
            // Again: its writer may outrun this reader.
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
    model::Timestamp m_now;
    const std::stop_token& m_stop;
    SessionLogCounter m_counter;
    ScanReport m_report;
};

} // namespace

QString scanFailureText(const std::error_code& error) {
    return QStringLiteral("The session logs could not be counted: %1.")
        .arg(qt_error_string(error.value()));
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
