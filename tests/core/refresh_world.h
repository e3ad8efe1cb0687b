#pragma once

#include "core/app_model.h"
#include "support/fake_notification_centre.h"
#include "support/home_files.h"
#include "support/manual_clock.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QPromise>
#include <QtCore/QTemporaryDir>

/// The surroundings of a refresh: assistants, session logs, a clock and the stored files.
namespace tallyvane::tests {

using Figure = std::optional<double>;

struct World;

/// One assistant: what its service reports now, as its weekly quota, and what it has reported so
/// far.
struct Assistant final : providers::QuotaClient {
    Assistant(World& itsWorld, model::AIProvider its) : world(itsWorld), id(its) {}

    model::AIProvider provider() const override { return id; }
    QCoro::Task<providers::QuotaResult> fetch(providers::AskedBy askedBy) override;

    World& world;
    model::AIProvider id;
    Figure used;
    std::optional<model::Timestamp> resetsAt;
    std::int64_t tokens = 0;
    bool isFailing = false;
    providers::QuotaFailure failure;
    QList<providers::AskedBy> requests;
    QList<Figure> toldUsed{std::nullopt};
    QList<Figure> toldTokens; ///< nullopt where there were no logs
    Figure stored;
};

struct World {
    /// Writes a log that holds the assistant's tokens.
    void setTokens(Assistant& assistant, std::int64_t tokens) const {
        const bool isCodex = assistant.id == model::AIProvider::codex;
        const QString path = home.filePath(isCodex ? QStringLiteral(".codex/sessions/log.jsonl")
                                                   : QStringLiteral(".claude/projects/log.jsonl"));
        QByteArray line = isCodex
                              ? R"({"payload":{"type":"token_count","info":)"
                                R"({"total_token_usage":{"total_tokens":%}}}})"
                              : R"({"type":"assistant","message":{"usage":{"input_tokens":%}}})";
        writeFile(path, line.replace('%', QByteArray::number(qint64{tokens})));
        if (tokens == 0) {
            QFile::remove(path);
        }
        assistant.tokens = tokens;
    }

    void letAnswer() {
        isHoldingAnswers = false;
        for (QPromise<void>& answer : std::exchange(heldAnswers, {})) {
            answer.start();
            answer.finish();
        }
    }

    /// In memory if possible: a course has hundreds of files.
    QTemporaryDir home{QFileInfo(QStringLiteral("/dev/shm")).isWritable()
                           ? QStringLiteral("/dev/shm/tallyvane-XXXXXX")
                           : QDir::tempPath() + QStringLiteral("/tallyvane-XXXXXX")};
    std::filesystem::path root{home.path().toStdString()};
    ManualClock clock{std::chrono::sys_days{std::chrono::year{2026} / 3 / 1}};
    std::array<Assistant, 2> assistants{Assistant{*this, model::AIProvider::codex},
                                        Assistant{*this, model::AIProvider::claude}};
    bool isHoldingAnswers = false;
    std::vector<QPromise<void>> heldAnswers;
};

inline QCoro::Task<providers::QuotaResult> Assistant::fetch(providers::AskedBy askedBy) {
    requests << askedBy;
    if (world.isHoldingAnswers) {
        const QFuture<void> answered = world.heldAnswers.emplace_back().future();
        co_await answered;
    }
    if (isFailing) {
        co_return std::unexpected(failure);
    }
    toldUsed << used;
    model::ProviderQuotaSnapshot entry{
        .provider = id, .syncedAt = world.clock.now(), .syncState = model::QuotaSyncState::current};
    if (used) {
        entry.week = model::QuotaWindowSnapshot{.usedPercent = *used, .resetsAt = resetsAt};
    }
    co_return entry;
}

struct RecordingWidgetCentre final : platform::WidgetCentre {
    QStringList calls;
    void reloadTimelines(const QString& kind) override { calls << kind; }
    void reloadAllTimelines() override { calls << QStringLiteral("all"); }
};

/// A process that refreshes, in its own time zone; several share the world's files.
struct Writer {
    explicit Writer(World& world, const QByteArray& zoneName = "UTC",
                    std::optional<model::QuotaSnapshot> shown = std::nullopt)
        : zone(QTimeZone(zoneName)),
          locations{.dataHome = world.root / "data", .configHome = world.root / "config"},
          tokenEstimator(world.root),
          model({.store = store,
                 .defaults = defaults,
                 .quotaClients = {world.assistants[0], world.assistants[1]},
                 .tokenEstimator = tokenEstimator,
                 .notifier = notifier,
                 .widgetCentre = widgetCentre,
                 .clock = world.clock,
                 .zone = zone},
                std::move(shown)) {}

    core::RefreshReport::Outcome refresh() {
        const auto task = model.refresh(providers::AskedBy::user);
        return QCoro::waitFor(task).outcome;
    }

    model::LocalZone zone;
    model::StoreLocations locations;
    model::SharedStore store{locations};
    model::DefaultsStore defaults =
        model::DefaultsStore::openFirst(locations.defaultsSuite(), locations.standardDefaults());
    history::LocalTokenEstimator tokenEstimator;
    FakeNotificationCentre notificationCentre;
    notify::QuotaNotifier notifier{notificationCentre};
    RecordingWidgetCentre widgetCentre;
    core::AppModel model;
};

} // namespace tallyvane::tests
