#include "notify/quota_notifier.h"
#include "support/fake_notification_centre.h"
#include "support/test_main.h"

using namespace std::chrono_literals;
using namespace tallyvane;
using model::AIProvider;
using model::QuotaSyncState;

namespace {

constexpr double absent = -1;

/// One provider's figures in a refresh.
struct Step {
    double fiveHour = absent;
    double week = absent;
    QuotaSyncState state = QuotaSyncState::current;
    bool isAllowed = true;
};

model::ProviderQuotaSnapshot entry(AIProvider provider, const Step& step) {
    const auto window = [](double used) {
        return used == absent ? std::nullopt
                              : std::optional(model::QuotaWindowSnapshot{.usedPercent = used});
    };
    return {.provider = provider,
            .fiveHour = window(step.fiveHour),
            .week = window(step.week),
            .syncState = step.state};
}

const notify::NotificationSettings anyTime{.enabled = true, .windows = {{.allDay = true}}};

} // namespace

class QuotaNotifierTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void detectsResets() {
        constexpr auto pending = QuotaSyncState::pending;
        struct Row {
            const char* name;
            std::vector<Step> steps;
            int posts;
        };
        const Row rows[] = {{"reset", {{85}, {2}}, 1},
                            {"thresholds", {{10.001}, {5}}, 1},
                            {"not low enough", {{85}, {5.001}}, 0},
                            {"not high before", {{10}, {0}}, 0},
                            {"first refresh", {{0, 0}}, 0},
                            {"weekly", {{50, 85}, {51, 0}}, 1},
                            {"both at once", {{85, 85}, {0, 0}}, 1},
                            {"one after the other", {{85, 85}, {0, 85}, {0, 0}}, 2},
                            {"in two steps", {{85}, {7}, {0}}, 0},
                            {"again", {{85}, {0}, {11}, {0}}, 2},
                            {"not allowed", {{85}, {.fiveHour = 0, .isAllowed = false}, {0}}, 0},
                            {"pending between", {{85}, {.fiveHour = 0, .state = pending}, {0}}, 1},
                            {"pending ignored", {{5}, {.fiveHour = 85, .state = pending}, {0}}, 0},
                            {"absent between", {{85}, {.week = 85}, {0}}, 1}};
        for (const Row& row : rows) {
            tests::FakeNotificationCentre centre;
            notify::QuotaNotifier notifier(centre);
            for (const Step& step : row.steps) {
                // The other provider is never reset.
                notifier.process({.providers = {entry(AIProvider::codex, {50, 50}),
                                                entry(AIProvider::claude, step)}},
                                 step.isAllowed ? anyTime : notify::NotificationSettings{}, {},
                                 model::LocalZone(QTimeZone::utc()));
            }
            QVERIFY2(centre.posts.size() == row.posts, row.name);
        }
    }

    void namesTheProvider() {
        tests::FakeNotificationCentre centre;
        notify::QuotaNotifier notifier(centre);
        for (const double used : {85, 0}) {
            notifier.process({.providers = {entry(AIProvider::claude, {used}),
                                            entry(AIProvider::codex, {used})}},
                             anyTime, model::Timestamp{1750000000s + 123456us},
                             model::LocalZone(QTimeZone::utc()));
        }
        QCOMPARE(centre.posts.size(), 2);
        QCOMPARE(centre.posts[0].body, QStringLiteral("您的 Codex token 已经重置了。"));
        const platform::Notification last{.identifier =
                                              QStringLiteral("reset-claude-1750000000.123456"),
                                          .title = QStringLiteral("Tallyvane"),
                                          .body = QStringLiteral("您的 Claude token 已经重置了。")};
        QVERIFY(centre.posts[1] == last);
    }
};

TALLYVANE_TEST_MAIN(QuotaNotifierTest)
#include "quota_notifier_test.moc"
