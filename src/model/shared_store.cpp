#include "model/shared_store.h"

#include "model/defaults_store.h"

namespace tallyvane::model {

namespace {

constexpr auto groupIdentifier = "group.corvelle.Gaugewell";
constexpr qsizetype maximumFileSize = qsizetype{64} << 20;

const QString mirrorKey = QStringLiteral("quotaSnapshotData");

std::optional<QuotaSnapshot> decoded(const std::optional<QByteArray>& json) {
    if (!json) {
        return std::nullopt;
    }
    const auto snapshot = decodeSnapshot(*json);
    return snapshot ? std::optional(*snapshot) : std::nullopt;
}

} // namespace

std::filesystem::path StoreLocations::defaultsSuite() const {
    return configHome / (std::string(groupIdentifier) + ".conf");
}

std::filesystem::path StoreLocations::standardDefaults() const {
    return configHome / "tallyvane.conf";
}

SharedStore::SharedStore(const StoreLocations& locations)
    : m_defaultsSuite(locations.defaultsSuite()),
      m_baseURL(locations.dataHome / groupIdentifier),
      m_containerSource(ContainerSource::appGroup) {
    std::error_code ignored;
    if (!std::filesystem::is_directory(m_baseURL, ignored)) {
        m_baseURL = locations.dataHome / "Gaugewell";
        m_containerSource = ContainerSource::fallback;
        makePrivateDirectory(m_baseURL);
    }
}

std::expected<std::optional<FileLock>, FileError> SharedStore::tryLock() const {
    makePrivateDirectory(m_baseURL); // it may have been removed
    auto lock = model::tryLock(m_baseURL / "tallyvane.lock");
    if (!lock) {
        // Names the file that the user cares about.
        return std::unexpected(saveError(snapshotFile(), lock.error().value()));
    }
    return *std::move(lock);
}

std::optional<QuotaSnapshot> SharedStore::loadSnapshot() const {
    if (auto snapshot = decoded(readFile(snapshotFile(), maximumFileSize)); snapshot) {
        return snapshot;
    }
    auto suite = DefaultsStore::open(m_defaultsSuite);
    return suite ? decoded(suite->data(mirrorKey)) : std::nullopt;
}

std::expected<void, FileError> SharedStore::saveSnapshot(const QuotaSnapshot& snapshot) const {
    const auto json = encodeSnapshot(snapshot);
    if (!json) {
        return std::unexpected(json.error());
    }
    if (auto saved = saveFile(snapshotFile(), *json); !saved) {
        return saved;
    }
    if (auto suite = DefaultsStore::open(m_defaultsSuite); suite) {
        (void)suite->setData(mirrorKey, *json); // losing the mirror is no error
    }
    return {};
}

std::optional<QByteArray> SharedStore::loadHistory() const {
    return readFile(historyFile(), maximumFileSize);
}

std::expected<void, FileError> SharedStore::saveHistory(const QByteArray& json) const {
    return saveFile(historyFile(), json);
}

std::filesystem::path SharedStore::snapshotFile() const {
    return m_baseURL / "quota-snapshot.json";
}

std::filesystem::path SharedStore::historyFile() const {
    return m_baseURL / "usage-history.json";
}

} // namespace tallyvane::model
