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

ContainerSource StoreLocations::containerSource() const {
    std::error_code ignored;
    return std::filesystem::is_directory(container(ContainerSource::appGroup), ignored)
               ? ContainerSource::appGroup
               : ContainerSource::fallback;
}

std::filesystem::path StoreLocations::container(ContainerSource source) const {
    return dataHome / (source == ContainerSource::appGroup ? groupIdentifier : "Gaugewell");
}

StoreFiles StoreLocations::filesIn(const std::filesystem::path& container) {
    return {.snapshot = container / "quota-snapshot.json",
            .history = container / "usage-history.json",
            .lock = container / "tallyvane.lock"};
}

SharedStore::SharedStore(const StoreLocations& locations)
    : m_defaultsSuite(locations.defaultsSuite()),
      m_containerSource(locations.containerSource()),
      m_baseURL(locations.container(m_containerSource)),
      m_files(StoreLocations::filesIn(m_baseURL)) {
    makePrivateDirectory(m_baseURL);
}

std::expected<std::optional<FileLock>, FileError> SharedStore::tryLock() const {
    makePrivateDirectory(m_baseURL); // it may have been removed
    auto lock = model::tryLock(m_files.lock);
    if (!lock) {
        // Names the file that the user cares about.
        return std::unexpected(saveError(m_files.snapshot, lock.error().value()));
    }
    return *std::move(lock);
}

std::optional<QuotaSnapshot> SharedStore::loadSnapshot() const {
    if (auto snapshot = decoded(readFile(m_files.snapshot, maximumFileSize)); snapshot) {
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
    if (auto saved = saveFile(m_files.snapshot, *json); !saved) {
        return saved;
    }
    if (auto suite = DefaultsStore::open(m_defaultsSuite); suite) {
        (void)suite->setData(mirrorKey, *json); // losing the mirror is no error
    }
    return {};
}

std::optional<QByteArray> SharedStore::loadHistory() const {
    return readFile(m_files.history, maximumFileSize);
}

std::expected<void, FileError> SharedStore::saveHistory(const QByteArray& json) const {
    return saveFile(m_files.history, json);
}

} // namespace tallyvane::model
