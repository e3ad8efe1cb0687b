#include "notify/low_quota_notifier.h"
#include "notify/quota_notifier.h"
#include "support/fake_notification_centre.h"
#include "support/test_main.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace tallyvane;
using model::AIProvider;
using model::QuotaSyncState;
using notify::NotificationSettings;
using notify::NotificationWindow;

namespace {

using Used = std::optional<double>;

/// Claude's figures in a refresh.
struct Step {
    Used fiveHour;
    Used week;
    QuotaSyncState state = QuotaSyncState::current;
    bool isAllowed = true;
};

/// Keeps what it posts.
struct Notifier {
    tests::FakeNotificationCentre centre;
    notify::QuotaNotifier notifier{centre};

    void process(AIProvider provider, const Step& step) {
        const auto window = [](Used used) {
            return used ? std::optional(model::QuotaWindowSnapshot{.usedPercent = *used})
                        : std::nullopt;
        };
        notifier.process({.providers = {{.provider = provider,
                                         .fiveHour = window(step.fiveHour),
                                         .week = window(step.week),
                                         .syncState = step.state}}},
                         {.enabled = step.isAllowed, .windows = {{.allDay = true}}},
                         model::Timestamp{1750000000s + 123456us},
                         model::LocalZone(QTimeZone::utc()));
    }
};

/// Codex's five-hour figures in a refresh of the low-quota notifier.
struct LowStep {
    double used;
    std::chrono::minutes at;                               ///< since the first step
    std::optional<std::chrono::minutes> resetsAt = 300min; ///< likewise
    bool isWanted = true;
    bool isAllowed = true;
    bool isRestarted = false; ///< before it
    QuotaSyncState state = QuotaSyncState::current;
};

} // namespace

class NotifyTest : public tests::HermeticTest {
    Q_OBJECT

    const QByteArray m_json =
        R"({"enabled":true,"windows":[{"allDay":false,"enabled":true,"endMinutes":360,)"
        R"("id":"3f2504e0-4f89-41d3-9a0c-0305e82c3301","startMinutes":1320}]})";
    const NotificationSettings m_settings{
        .enabled = true,
        .windows = {{.id = QUuid(u"3f2504e0-4f89-41d3-9a0c-0305e82c3301"_s),
                     .startMinutes = 1320,
                     .endMinutes = 360}}};

private Q_SLOTS:
    void allows() {
        const model::LocalZone berlin(QTimeZone("Europe/Berlin"));
        const auto isAllowed = [&](QStringView moment,
                                   const std::vector<NotificationWindow>& windows,
                                   bool enabled = true) {
            const auto at = *model::parseTimestamp(moment, model::FractionalSeconds::rejected);
            return notify::allows({enabled, windows}, at, berlin);
        };
        const NotificationWindow day; // from nine to six
        QVERIFY(!isAllowed(u"2026-01-10T07:59:59Z", {day}));
        QVERIFY(isAllowed(u"2026-01-10T08:00:00Z", {day}));
        QVERIFY(!isAllowed(u"2026-01-10T08:00:00Z", {day}, false));
        QVERIFY(isAllowed(u"2026-01-10T16:59:59Z", {day}));
        QVERIFY(!isAllowed(u"2026-01-10T17:00:00Z", {day}));
        const NotificationWindow night{.startMinutes = 22 * 60, .endMinutes = 6 * 60};
        QVERIFY(isAllowed(u"2026-01-10T22:30:00Z", {night}));
        QVERIFY(isAllowed(u"2026-01-10T04:59:59Z", {night}));
        QVERIFY(!isAllowed(u"2026-01-10T05:00:00Z", {night}));
        const NotificationWindow empty{.startMinutes = 540, .endMinutes = 540};
        const NotificationWindow disabled{.enabled = false, .allDay = true};
        QVERIFY(!isAllowed(u"2026-01-10T08:00:00Z", {empty, disabled}));
        QVERIFY(isAllowed(u"2026-01-10T08:00:00Z", {empty, disabled, day}));
        QVERIFY(isAllowed(u"2026-01-10T03:00:00Z",
                          {{.allDay = true, .startMinutes = 0, .endMinutes = 0}}));
    }

    void layout() {
        QCOMPARE(notify::encodeNotificationSettings(m_settings), m_json);
        QVERIFY(notify::decodeNotificationSettings(m_json) == m_settings);
        QVERIFY(notify::decodeNotificationSettings(
                    QByteArray(m_json).replace("3f2504e0", "3F2504E0")) == m_settings);
        const std::pair<QByteArray, QByteArray> changes[] = {{"windows", "x"},
                                                             {"allDay", "x"},
                                                             {":true,\"w", ":1,\"w"},
                                                             {"1320", "1320.5"},
                                                             {"3f2504e0-", "3f2504e0"}};
        for (const auto& [place, change] : changes) {
            QVERIFY2(!notify::decodeNotificationSettings(QByteArray(m_json).replace(place, change)),
                     change);
        }
    }

    void persists() {
        const QTemporaryDir directory;
        auto store = model::DefaultsStore::open(directory.path().toStdString() + "/defaults.conf");
        for (const char* stored : {"", R"({"enabled":true})"}) {
            QVERIFY(store->setData(u"notificationSettings"_s, stored));
            const NotificationSettings loaded = notify::loadNotificationSettings(*store);
            QVERIFY(!loaded.enabled && loaded.windows.size() == 1 &&
                    !loaded.windows[0].id.isNull());
        }
        QVERIFY(notify::saveNotificationSettings(*store, m_settings));
        QVERIFY(notify::loadNotificationSettings(*store) == m_settings);
    }

    void detectsResets() {
        const auto posts = [](const std::vector<Step>& steps) {
            Notifier notifier;
            for (const Step& step : steps) {
                notifier.process(AIProvider::claude, step);
                notifier.process(AIProvider::codex, {50, 50}); // never reset
            }
            return notifier.centre.posts.size();
        };
        constexpr auto pending = QuotaSyncState::pending;
        QCOMPARE(posts({{10.001}, {5}}), 1);
        QCOMPARE(posts({{85}, {5.001}}), 0);
        QCOMPARE(posts({{10}, {0}}), 0);
        QCOMPARE(posts({{50, 85}, {51, 0}}), 1);
        QCOMPARE(posts({{85, 85}, {0, 0}}), 1);
        QCOMPARE(posts({{85, 85}, {0, 85}, {0, 0}}), 2);
        QCOMPARE(posts({{85}, {7}, {0}}), 0);
        QCOMPARE(posts({{85}, {0}, {11}, {0}}), 2);
        QCOMPARE(posts({{85}, {.fiveHour = 0, .isAllowed = false}, {0}}), 0);
        QCOMPARE(posts({{85}, {.fiveHour = 0, .state = pending}, {0}}), 1);
        QCOMPARE(posts({{5}, {.fiveHour = 85, .state = pending}, {0}}), 0);
        QCOMPARE(posts({{85}, {.week = 85}, {0}}), 1);
    }

    void warnsOfLowQuota() {
        const auto posts = [](const std::vector<LowStep>& steps) {
            const QTemporaryDir directory;
            auto store =
                model::DefaultsStore::open(directory.path().toStdString() + "/defaults.conf");
            tests::FakeNotificationCentre centre;
            std::optional<notify::LowQuotaNotifier> notifier;
            const model::Timestamp start{1750000000s};
            for (const LowStep& step : steps) {
                if (!notifier || step.isRestarted) {
                    notifier.emplace(centre, *store, "C");
                }
                const model::Timestamp now = start + step.at;
                model::QuotaWindowSnapshot window{.usedPercent = step.used};
                if (step.resetsAt) {
                    window.resetsAt = start + *step.resetsAt;
                }
                notifier->process({.providers = {{.provider = AIProvider::codex,
                                                  .fiveHour = window,
                                                  .syncedAt = now,
                                                  .syncState = step.state}}},
                                  step.isWanted,
                                  {.windows = {{.enabled = step.isAllowed, .allDay = true}}}, now,
                                  model::LocalZone(QTimeZone::utc()));
            }
            QStringList bodies;
            for (const platform::Notification& post : centre.posts) {
                bodies += post.body.section(u": "_s, 1)
                              .replace(u"\nCodex: "_s, u" + "_s)
                              .remove(u" of the five-hour quota left"_s);
            }
            return bodies.join(u", "_s);
        };
        constexpr auto pending = QuotaSyncState::pending;
        const std::pair<QString, std::vector<LowStep>> rows[] = {
            {{}, {{70, 280min}, {73.9, 290min}}},
            {u"25 %, 10 %, 25 %"_s,
             {{75, 280min},
              {76, 285min},
              {90, 290min},
              {100, 295min},
              {5, 305min, 600min},
              {75, 580min, 600min}}},
            {u"0 %"_s, {{10, 280min}, {100, 290min}}}, // at once the lower of two
            {u"24 %, 10 %"_s,
             {{75.5, 280min}, {80, 281min, 300min, true, true, true}, {90, 290min}}},
            {{}, {{75, 280min, 300min, true, false}, {76, 281min}}},
            {{},
             {{75, 280min, 300min, false}, {76, 281min}, {76, 282min, 300min, true, true, true}}},
            {u"25 %, 25 %"_s,
             {{75, 240min}, {2, 250min, 310min}, {75, 290min, 310min}}}, // reset early
            {u"25 %"_s, {{75, 280min}, {71, 285min}, {75, 290min}}},     // corrected
            {u"25 %, 25 %"_s, {{75, 10min, {}}, {0, 20min, {}}, {75, 30min, {}}}},
            {{}, {{75, 301min}, {75, 280min, 300min, true, true, false, pending}}},
            {u"the five-hour quota runs out at 19:16, before the reset"_s,
             {{60, 150min}, {61, 151min}}},
            {{}, {{52, 150min}}}, // hardly before
            {u"20 % + the five-hour quota runs out at 18:14, before the reset"_s, {{80, 150min}}}};
        for (const auto& [expected, steps] : rows) {
            QCOMPARE(posts(steps), expected);
        }
    }

    void namesTheProvider() {
        Notifier notifier;
        for (const AIProvider provider : model::allCases<AIProvider>) {
            notifier.process(provider, {85});
            notifier.process(provider, {0});
        }
        QCOMPARE(notifier.centre.posts[0].body, u"您的 Codex token 已经重置了。");
        const platform::Notification last{.identifier = u"reset-claude-1750000000.123456"_s,
                                          .title = u"Tallyvane"_s,
                                          .body = u"您的 Claude token 已经重置了。"_s};
        QVERIFY(notifier.centre.posts[1] == last);
    }
};

TALLYVANE_TEST(NotifyTest)
#include "notify_test.moc"
