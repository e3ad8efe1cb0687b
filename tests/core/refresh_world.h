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

/// One assistant: what its service reports now, and what it has reported so far.
struct Assistant {
    model::AIProvider provider;
    Figure used;
    std::int64_t tokens = 0;
    bool isFailing = false;
    providers::QuotaFailure failure;
    QList<providers::AskedBy> requests;
    QList<Figure> toldUsed;
    QList<Figure> toldTokens; ///< nullopt where there were no logs
    Figure stored;
};

struct World {
    /// Writes a log that holds the assistant's tokens.
    void setTokens(Assistant& assistant, std::int64_t tokens) const {
        const bool isCodex = assistant.provider == model::AIProvider::codex;
        const QString path = home.filePath(isCodex ? QStringLiteral(".codex/sessions/log.jsonl")
                                                   : QStringLiteral(".claude/projects/log.jsonl"));
        const QByteArray line =
            isCodex ? R"({"payload":{"type":"token_count","info":{"total_token_usage":)"
                      R"({"total_tokens":%}}}})"
                    : R"({"type":"assistant","message":{"usage":{"input_tokens":%}}})";
        if (tokens == 0) {
            QFile::remove(path);
        } else {
            writeFile(path, QByteArray(line).replace('%', QByteArray::number(qint64{tokens})));
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
    std::array<Assistant, 2> assistants{Assistant{model::AIProvider::codex},
                                        Assistant{model::AIProvider::claude}};
    bool isHoldingAnswers = false;
    std::vector<QPromise<void>> heldAnswers;
};

/// Reports an assistant's figure as its weekly quota.
class ScriptedClient final : public providers::QuotaClient {
public:
    ScriptedClient(World& world, Assistant& assistant) : m_world(world), m_assistant(assistant) {}

    [[nodiscard]] model::AIProvider provider() const override { return m_assistant.provider; }

    [[nodiscard]] QCoro::Task<providers::QuotaResult> fetch(providers::AskedBy askedBy) override {
        m_assistant.requests << askedBy;
        if (m_world.isHoldingAnswers) {
            const QFuture<void> answered = m_world.heldAnswers.emplace_back().future();
            co_await answered;
        }
        if (m_assistant.isFailing) {
            co_return std::unexpected(m_assistant.failure);
        }
        m_assistant.toldUsed << m_assistant.used;
        model::ProviderQuotaSnapshot entry{.provider = provider(),
                                           .syncedAt = m_world.clock.now(),
                                           .syncState = model::QuotaSyncState::current};
        if (m_assistant.used) {
            entry.week = model::QuotaWindowSnapshot{.usedPercent = *m_assistant.used};
        }
        co_return entry;
    }

private:
    World& m_world;
    Assistant& m_assistant;
};

struct RecordingWidgetCentre final : platform::WidgetCentre {
    QStringList calls;
    void reloadTimelines(const QString& kind) override { calls << kind; }
    void reloadAllTimelines() override { calls << QStringLiteral("all"); }
};

/// A process that refreshes, in its own time zone; several share the world's files.
struct Writer {
    explicit Writer(World& world, const QByteArray& zoneName = "UTC",
                    std::optional<model::QuotaSnapshot> shown = std::nullopt)
        : zone(zoneName),
          locations{.dataHome = world.root / "data", .configHome = world.root / "config"},
          codexClient(world, world.assistants[0]),
          claudeClient(world, world.assistants[1]),
          tokenEstimator(world.root),
          model({.store = store,
                 .defaults = defaults,
                 .quotaClients = {codexClient, claudeClient},
                 .tokenEstimator = tokenEstimator,
                 .notifier = notifier,
                 .widgetCentre = widgetCentre,
                 .clock = world.clock,
                 .zone = model::LocalZone(zone)},
                std::move(shown)) {}

    core::RefreshReport::Outcome refresh() {
        const auto task = model.refresh(providers::AskedBy::user);
        return QCoro::waitFor(task).outcome;
    }

    QTimeZone zone;
    model::StoreLocations locations;
    model::SharedStore store{locations};
    model::DefaultsStore defaults =
        model::DefaultsStore::openFirst(locations.defaultsSuite(), locations.standardDefaults());
    ScriptedClient codexClient;
    ScriptedClient claudeClient;
    history::LocalTokenEstimator tokenEstimator;
    FakeNotificationCentre notificationCentre;
    notify::QuotaNotifier notifier{notificationCentre};
    RecordingWidgetCentre widgetCentre;
    core::AppModel model;
};

} // namespace tallyvane::tests
