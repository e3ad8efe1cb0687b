#pragma once

#include "model/file_io.h"
#include "model/quota_snapshot.h"

#include <filesystem>
#include <optional>

namespace tallyvane::model {

/// The files in the container.
struct StoreFiles {
    std::filesystem::path snapshot;
    std::filesystem::path history;
    std::filesystem::path lock;
};

enum class ContainerSource { appGroup, fallback };
template <>
inline constexpr std::array rawValues<ContainerSource>{QLatin1StringView{"appGroup"},
                                                       QLatin1StringView{"fallback"}};

/// The base directories of the stored files.
struct StoreLocations {
    std::filesystem::path dataHome;   ///< $XDG_DATA_HOME; absolute
    std::filesystem::path configHome; ///< $XDG_CONFIG_HOME; absolute

    /// The key-value file shared with the widget.
    [[nodiscard]] std::filesystem::path defaultsSuite() const;
    /// The program's own key-value file, for when the suite cannot be opened.
    [[nodiscard]] std::filesystem::path standardDefaults() const;

    /// Whether the container that is shared with the widget exists; else the program has its own.
    [[nodiscard]] ContainerSource containerSource() const;
    [[nodiscard]] std::filesystem::path container(ContainerSource source) const;
    [[nodiscard]] static StoreFiles filesIn(const std::filesystem::path& container);
};

/// Reads and writes the program's two files. Thread-safe: it has no mutable state.
class SharedStore {
public:
    /// Uses the container shared with the widget if it exists, else creates a directory of its own.
    explicit SharedStore(const StoreLocations& locations);

    [[nodiscard]] const std::filesystem::path& baseURL() const { return m_baseURL; }
    [[nodiscard]] ContainerSource containerSource() const { return m_containerSource; }

    /// Locks tallyvane.lock beside the two files; only its holder may write them. Nothing while
    /// another program of the user, in whatever session, holds it.
    [[nodiscard]] std::expected<std::optional<FileLock>, FileError> tryLock() const;

    /// Reads quota-snapshot.json, or else its mirror in the defaults suite (key
    /// "quotaSnapshotData"). Nothing when neither can be read and decoded.
    [[nodiscard]] std::optional<QuotaSnapshot> loadSnapshot() const;

    /// Writes the file, then the mirror. Leaves the mirror alone when writing the file fails.
    [[nodiscard]] std::expected<void, FileError> saveSnapshot(const QuotaSnapshot& snapshot) const;

    /// Reads usage-history.json; nothing when that fails.
    [[nodiscard]] std::optional<QByteArray> loadHistory() const;

    /// Writes usage-history.json.
    [[nodiscard]] std::expected<void, FileError> saveHistory(const QByteArray& json) const;

private:
    std::filesystem::path m_defaultsSuite;
    ContainerSource m_containerSource;
    std::filesystem::path m_baseURL;
    StoreFiles m_files;
};

} // namespace tallyvane::model
