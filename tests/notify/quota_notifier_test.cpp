#include "notify/quota_notifier.h"
#include "support/fake_notification_centre.h"
#include "support/test_main.h"

using namespace std::chrono_literals;
using namespace tallyvane;
using model::AIProvider;
using model::QuotaSyncState;

namespace {

constexpr double absent = -1;

/// The figures that one refresh brings for a provider.
struct Step {
    double fiveHour = absent;
    double week = absent;
    QuotaSyncState state = QuotaSyncState::current;
    bool isAllowed = true;
};
using Steps = QList<Step>;

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
    void seesResets_data() {
        QTest::addColumn<Steps>("steps");
        QTest::addColumn<int>("posts");
        constexpr auto pending = QuotaSyncState::pending;
        const auto row = [](const char* name, const Steps& steps, int posts) {
            QTest::newRow(name) << steps << posts;
        };
        row("reset", {{85}, {2}}, 1);
        row("just above and at the limits", {{10.001}, {5}}, 1);
        row("not low enough", {{85}, {5.001}}, 0);
        row("was not high", {{10}, {0}}, 0);
        row("first", {{0, 0}}, 0);
        row("weekly", {{50, 85}, {51, 0}}, 1);
        row("both at once", {{85, 85}, {0, 0}}, 1);
        row("one after the other", {{85, 85}, {0, 85}, {0, 0}}, 2);
        row("in two steps", {{85}, {7}, {0}}, 0);
        row("again", {{85}, {0}, {11}, {0}}, 2);
        row("not allowed, not told later", {{85}, {.fiveHour = 0, .isAllowed = false}, {0}}, 0);
        row("pending between", {{85}, {.fiveHour = 0, .state = pending}, {0}}, 1);
        row("pending is not remembered", {{5}, {.fiveHour = 85, .state = pending}, {0}}, 0);
        row("absent between", {{85}, {.week = 85}, {0}}, 1);
    }

    void seesResets() {
        QFETCH(Steps, steps);
        QFETCH(int, posts);
        tests::FakeNotificationCentre centre;
        notify::QuotaNotifier notifier(centre);
        for (const Step& step : steps) {
            // The other provider's figures are never a reset.
            notifier.process({.providers = {entry(AIProvider::codex, {50, 50}),
                                            entry(AIProvider::claude, step)}},
                             step.isAllowed ? anyTime : notify::NotificationSettings{}, {},
                             model::LocalZone(QTimeZone::utc()));
        }
        QCOMPARE(centre.posts.size(), posts);
    }

    void saysWhose() {
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
