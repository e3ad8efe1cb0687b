#include "notify/quota_notifier.h"
#include "support/fake_notification_centre.h"
#include "support/test_main.h"

using namespace std::chrono_literals;
using namespace tallyvane;
using model::AIProvider;
using model::QuotaSyncState;
using notify::NotificationSettings;
using notify::NotificationWindow;

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

class NotifyTest : public tests::HermeticTest {
    Q_OBJECT

    const QByteArray m_json =
        R"({"enabled":true,"windows":[{"allDay":false,"enabled":true,"endMinutes":360,)"
        R"("id":"3f2504e0-4f89-41d3-9a0c-0305e82c3301","startMinutes":1320}]})";
    const NotificationSettings m_settings{
        .enabled = true,
        .windows = {{.id = QUuid(QStringLiteral("3f2504e0-4f89-41d3-9a0c-0305e82c3301")),
                     .startMinutes = 1320,
                     .endMinutes = 360}}};

private Q_SLOTS:
    void allows() {
        const NotificationWindow day;
        const NotificationWindow night{.startMinutes = 22 * 60, .endMinutes = 6 * 60};
        const NotificationWindow always{.allDay = true, .startMinutes = 0, .endMinutes = 0};
        const NotificationWindow empty{.startMinutes = 540, .endMinutes = 540};
        const NotificationWindow disabled{.enabled = false, .allDay = true};
        const NotificationWindow afterTwo{.startMinutes = 120, .endMinutes = 180};
        // In UTC, and whether allowed in Berlin
        const std::tuple<const char*, bool, std::vector<NotificationWindow>> rows[] = {
            {"2026-01-10T07:59:59Z", false, {day}},
            {"2026-01-10T08:00:00Z", true, {day}},
            {"2026-01-10T16:59:59Z", true, {day}},
            {"2026-01-10T17:00:00Z", false, {day}},
            {"1966-01-10T07:59:59Z", false, {day}},
            {"2026-01-10T22:30:00Z", true, {night}},
            {"2026-01-10T04:59:59Z", true, {night}},
            {"2026-01-10T05:00:00Z", false, {night}},
            {"2026-01-10T11:00:00Z", false, {night}},
            {"2026-01-10T08:00:00Z", false, {empty, disabled}},
            {"2026-01-10T08:00:00Z", true, {empty, disabled, day}},
            {"2026-01-10T03:00:00Z", true, {always}},
            {"2026-01-10T11:00:00Z", false, {}},
            // The hour after two is skipped in spring and repeated in autumn.
            {"2026-03-29T01:00:00Z", false, {afterTwo}},
            {"2026-10-25T00:00:00Z", true, {afterTwo}},
            {"2026-10-25T01:59:59Z", true, {afterTwo}}};
        const model::LocalZone zone(QTimeZone("Europe/Berlin"));
        for (const auto& [moment, isAllowed, windows] : rows) {
            const auto at = *model::parseTimestamp(QString::fromLatin1(moment),
                                                   model::FractionalSeconds::rejected);
            QVERIFY2(notify::allows({.enabled = true, .windows = windows}, at, zone) == isAllowed,
                     moment);
            QVERIFY(!notify::allows({.enabled = false, .windows = windows}, at, zone));
        }
    }

    void layout() {
        QCOMPARE(notify::encodeNotificationSettings(m_settings), m_json);
        QVERIFY(notify::decodeNotificationSettings(m_json) == m_settings);
        QVERIFY(notify::decodeNotificationSettings(
                    QByteArray(m_json).replace("3f2504e0", "3F2504E0")) == m_settings);
    }

    void decodesStrictly() {
        const QByteArray id = "3f2504e0-4f89-41d3-9a0c-0305e82c3301";
        const std::vector<std::pair<QByteArray, QByteArray>> changes{
            {"allDay", "x"},        {"id", "x"},
            {"startMinutes", "x"},  {"endMinutes", "x"},
            {"windows", "x"},       {"{\"enabled", "{\"x"},
            {",\"enabled", ",\"y"}, {":true,\"w", ":1,\"w"},
            {"false", "null"},      {"360", "\"360\""},
            {"1320", "1320.5"},     {"3f2504e0-", "3f2504e0"},
            {id, '{' + id + '}'},   {id, "evening"}};
        for (const auto& [place, change] : changes) {
            QVERIFY2(m_json.contains(place), place);
            QVERIFY2(!notify::decodeNotificationSettings(QByteArray(m_json).replace(place, change)),
                     change);
        }
    }

    void persists() {
        const QTemporaryDir directory;
        auto store = model::DefaultsStore::open(directory.path().toStdString() + "/defaults.conf");
        for (const char* stored : {"", R"({"enabled":true})"}) {
            store->setData(QStringLiteral("notificationSettings"), stored);
            const NotificationSettings loaded = notify::loadNotificationSettings(*store);
            QVERIFY(!loaded.enabled && loaded.windows.size() == 1);
            QVERIFY(!loaded.windows[0].id.isNull());
        }
        notify::saveNotificationSettings(*store, m_settings);
        QVERIFY(notify::loadNotificationSettings(*store) == m_settings);
    }

    void detectsResets() {
        constexpr auto pending = QuotaSyncState::pending;
        const std::pair<std::vector<Step>, int> rows[] = {
            {{{85}, {2}}, 1},
            {{{10.001}, {5}}, 1},
            {{{85}, {5.001}}, 0},
            {{{10}, {0}}, 0},
            {{{0, 0}}, 0},
            {{{50, 85}, {51, 0}}, 1},
            {{{85, 85}, {0, 0}}, 1},
            {{{85, 85}, {0, 85}, {0, 0}}, 2},
            {{{85}, {7}, {0}}, 0},
            {{{85}, {0}, {11}, {0}}, 2},
            {{{85}, {.fiveHour = 0, .isAllowed = false}, {0}}, 0},
            {{{85}, {.fiveHour = 0, .state = pending}, {0}}, 1},
            {{{5}, {.fiveHour = 85, .state = pending}, {0}}, 0},
            {{{85}, {.week = 85}, {0}}, 1}};
        for (const auto& [steps, posts] : rows) {
            tests::FakeNotificationCentre centre;
            notify::QuotaNotifier notifier(centre);
            for (const Step& step : steps) {
                // The other provider is never reset.
                notifier.process({.providers = {entry(AIProvider::codex, {50, 50}),
                                                entry(AIProvider::claude, step)}},
                                 step.isAllowed ? anyTime : NotificationSettings{}, {},
                                 model::LocalZone(QTimeZone::utc()));
            }
            QCOMPARE(centre.posts.size(), posts);
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

TALLYVANE_TEST(NotifyTest)
#include "notify_test.moc"
