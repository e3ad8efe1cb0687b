#pragma once

#include "model/file_io.h"
#include "model/file_lock.h"
#include "model/quota_snapshot.h"

#include <filesystem>
#include <optional>

namespace tallyvane::model {

/// Where the store looks; made from the environment by the program's entry.
struct StoreLocations {
    std::filesystem::path dataHome;   ///< $XDG_DATA_HOME; absolute
    std::filesystem::path configHome; ///< $XDG_CONFIG_HOME; absolute

    /// The key-value file shared with the desktop widget.
    [[nodiscard]] std::filesystem::path defaultsSuite() const;
    /// The program's own key-value file, used when the suite cannot be opened.
    [[nodiscard]] std::filesystem::path standardDefaults() const;
};

enum class ContainerSource { appGroup, fallback };
template <>
inline constexpr std::array rawValues<ContainerSource>{QLatin1StringView{"appGroup"},
                                                       QLatin1StringView{"fallback"}};

/// The directory of the two files that the program keeps, and the reading and writing of them.
/// Holds no state of its own; may be used from any thread.
class SharedStore {
public:
    /// Chooses the widget's container when there is one, else a folder of our own, which is made.
    explicit SharedStore(const StoreLocations& locations);

    [[nodiscard]] const std::filesystem::path& baseURL() const { return m_baseURL; }
    [[nodiscard]] ContainerSource containerSource() const { return m_containerSource; }

    /// The right to write, which one program at a time has, in whatever session it runs; nothing
    /// while another has it. It is a lock of tallyvane.lock beside the two files.
    [[nodiscard]] std::expected<std::optional<FileLock>, FileError> tryLock() const;

    /// The stored snapshot, from quota-snapshot.json or else from its mirror in the defaults suite
    /// (key "quotaSnapshotData"); nothing when neither can be read and decoded.
    [[nodiscard]] std::optional<QuotaSnapshot> loadSnapshot() const;

    /// Writes the file and then the mirror, which stays as it was when the file cannot be written.
    [[nodiscard]] std::expected<void, FileError> saveSnapshot(const QuotaSnapshot& snapshot) const;

    /// The bytes of usage-history.json; nothing when it cannot be read.
    [[nodiscard]] std::optional<QByteArray> loadHistory() const;

    /// Writes usage-history.json.
    [[nodiscard]] std::expected<void, FileError> saveHistory(const QByteArray& json) const;

private:
    [[nodiscard]] std::filesystem::path snapshotFile() const;
    [[nodiscard]] std::filesystem::path historyFile() const;

    std::filesystem::path m_defaultsSuite;
    std::filesystem::path m_baseURL;
    ContainerSource m_containerSource;
};

} // namespace tallyvane::model
