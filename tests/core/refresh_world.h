#pragma once

#include "core/app_model.h"
#include "support/fake_notification_centre.h"
#include "support/home_files.h"
#include "support/manual_clock.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QPromise>
#include <QtCore/QTemporaryDir>

/// What a refresh meets, as random courses move it: assistants, logs, a clock, programs.
namespace tallyvane::tests {

using Figure = std::optional<double>;

/// One assistant: what its service says now, and all that was told of it so far.
struct Assistant {
    model::AIProvider provider;
    Figure used;
    std::int64_t tokens = 0;
    bool isFailing = false;
    QList<Figure> toldUsed;
    QList<Figure> toldTokens; ///< none where there are no logs
    Figure stored;
};

struct World {
    /// Writes a log that holds the assistant's tokens.
    void setTokens(Assistant& assistant, std::int64_t tokens) const {
        const bool isCodex = assistant.provider == model::AIProvider::codex;
        const QString path = home.filePath(isCodex ? QStringLiteral(".codex/sessions/log.jsonl")
                                                   : QStringLiteral(".claude/projects/log.jsonl"));
        const std::int64_t more = tokens - assistant.tokens;
        const QByteArray line =
            isCodex ? R"({"payload":{"type":"token_count","info":{"total_token_usage":)"
                      R"({"total_tokens":)" +
                          QByteArray::number(qint64{tokens}) + "}}}}\n"
                    : R"({"type":"assistant","message":{"usage":{"input_tokens":)" +
                          QByteArray::number(qint64{more < 0 ? tokens : more}) + "}}}\n";
        if (tokens == 0) {
            QFile::remove(path);
        } else {
            writeFile(path, (more < 0 ? QByteArray() : readFile(path)) + line);
        }
        assistant.tokens = tokens;
    }

    void letAnswer() {
        isHoldingAnswers = false;
        for (const auto& answer : std::exchange(heldAnswers, {})) {
            answer->finish();
        }
    }

    /// In memory, where there is such a folder: a course has hundreds of files.
    QTemporaryDir home{QFileInfo(QStringLiteral("/dev/shm")).isWritable()
                           ? QStringLiteral("/dev/shm/tallyvane-XXXXXX")
                           : QDir::tempPath() + QStringLiteral("/tallyvane-XXXXXX")};
    std::filesystem::path root{home.path().toStdString()};
    ManualClock clock{std::chrono::sys_days{std::chrono::year{2026} / 3 / 1}};
    std::array<Assistant, 2> assistants{Assistant{model::AIProvider::codex},
                                        Assistant{model::AIProvider::claude}};
    bool isHoldingAnswers = false;
    std::vector<std::shared_ptr<QPromise<void>>> heldAnswers;
};

/// Tells what the world says of one assistant.
class ScriptedClient final : public providers::QuotaClient {
public:
    ScriptedClient(World& world, Assistant& assistant) : m_world(world), m_assistant(assistant) {}

    [[nodiscard]] model::AIProvider provider() const override { return m_assistant.provider; }

    [[nodiscard]] QCoro::Task<providers::QuotaResult>
    fetch(providers::AskedBy /*askedBy*/) override {
        if (m_world.isHoldingAnswers) {
            const auto answer = std::make_shared<QPromise<void>>();
            answer->start();
            m_world.heldAnswers.push_back(answer);
            const QFuture<void> answered = answer->future();
            co_await answered;
        }
        if (m_assistant.isFailing) {
            co_return std::unexpected(providers::QuotaFailure{QStringLiteral("failed")});
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

struct SilentWidgetCentre final : platform::WidgetCentre {
    void reloadTimelines(const QString& /*kind*/) override {}
    void reloadAllTimelines() override {}
};

/// A program that refreshes, with a zone of its own; several share the world's files.
struct Writer {
    Writer(World& world, const QByteArray& zoneName)
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
                 .zone = model::LocalZone(zone)}) {}

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
    SilentWidgetCentre widgetCentre;
    core::AppModel model;
};

} // namespace tallyvane::tests
