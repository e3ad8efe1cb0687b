#include "notify/notification_settings.h"
#include "support/test_main.h"

using namespace tallyvane;
using notify::NotificationSettings;
using notify::NotificationWindow;

using Windows = std::vector<NotificationWindow>;

class NotificationSettingsTest : public tests::HermeticTest {
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
    void allows_data() {
        QTest::addColumn<Windows>("windows");
        QTest::addColumn<QString>("moment"); // UTC
        QTest::addColumn<bool>("inLondon");
        QTest::addColumn<bool>("inBerlin");
        const auto row = [](const char* name, const Windows& windows, const char* moment,
                            bool inLondon, bool inBerlin) {
            QTest::addRow("%s %s", name, moment)
                << windows << QString::fromLatin1(moment) << inLondon << inBerlin;
        };
        const NotificationWindow day;
        const NotificationWindow disabled{.enabled = false, .allDay = true};
        row("default", {day}, "2026-01-10T07:59:59Z", false, false);
        row("default", {day}, "2026-01-10T08:00:00Z", false, true);
        row("default", {day}, "2026-01-10T16:59:59Z", true, true);
        row("default", {day}, "2026-01-10T17:59:59Z", true, false);
        row("default", {day}, "2026-01-10T18:00:00Z", false, false);
        const NotificationWindow night{.startMinutes = 22 * 60, .endMinutes = 6 * 60};
        row("night", {night}, "2026-01-10T21:30:00Z", false, true);
        row("night", {night}, "2026-01-10T05:59:59Z", true, false);
        row("night", {night}, "2026-01-10T12:00:00Z", false, false);
        const NotificationWindow empty{.startMinutes = 540, .endMinutes = 540};
        row("empty", {empty}, "2026-01-10T09:00:00Z", false, false);
        const NotificationWindow allDay{.allDay = true, .startMinutes = 540, .endMinutes = 540};
        row("all day", {allDay}, "2026-01-10T03:00:00Z", true, true);
        row("none", {}, "2026-01-10T12:00:00Z", false, false);
        row("disabled", {disabled}, "2026-01-10T12:00:00Z", false, false);
        row("second", {disabled, day}, "2026-01-10T08:59:00Z", false, true);
        row("second", {empty, night, day}, "2026-01-10T09:00:00Z", true, true);
        row("before 1970", {day}, "1966-01-10T08:59:59Z", false, true);
        // 01:00 to 02:00 is left out in London, 02:00 to 03:00 in Berlin.
        const NotificationWindow one{.startMinutes = 60, .endMinutes = 120};
        const NotificationWindow two{.startMinutes = 120, .endMinutes = 180};
        row("spring, left out", {one}, "2026-03-29T01:00:00Z", false, false);
        row("spring, left out", {two}, "2026-03-29T01:00:00Z", true, false);
        row("spring, left out", {two}, "2026-03-29T00:59:59Z", false, false);
        // They come twice.
        row("autumn, first", {one}, "2026-10-25T00:30:00Z", true, false);
        row("autumn, first", {two}, "2026-10-25T00:30:00Z", false, true);
        row("autumn, again", {one}, "2026-10-25T01:30:00Z", true, false);
        row("autumn, again", {two}, "2026-10-25T01:30:00Z", false, true);
    }

    void allows() {
        QFETCH(Windows, windows);
        QFETCH(QString, moment);
        QFETCH(bool, inLondon);
        QFETCH(bool, inBerlin);
        const auto at = model::parseTimestamp(moment, model::FractionalSeconds::rejected);
        const NotificationSettings on{.enabled = true, .windows = windows};
        const NotificationSettings off{.enabled = false, .windows = windows};
        for (const auto& [name, isAllowed] :
             {std::pair("Europe/London", inLondon), std::pair("Europe/Berlin", inBerlin)}) {
            const QTimeZone zone(name);
            QVERIFY(zone.isValid() && at);
            QCOMPARE(notify::allows(on, *at, zone), isAllowed);
            QVERIFY(!notify::allows(off, *at, zone));
        }
    }

    void layout() {
        QCOMPARE(notify::encodeNotificationSettings(m_settings), m_json);
        QVERIFY(notify::decodeNotificationSettings(m_json) == m_settings);
        QByteArray upper = m_json;
        upper.replace("3f2504e0", "3F2504E0");
        QVERIFY(notify::decodeNotificationSettings(upper) == m_settings);
    }

    void decodesStrictly_data() {
        QTest::addColumn<QByteArray>("place");
        QTest::addColumn<QByteArray>("change");
        const auto row = [](const char* place, const char* change) {
            QTest::newRow(change) << QByteArray(place) << QByteArray(change);
        };
        row("{\"enabled", "{\"x-enabled");
        row("{\"allDay", "{\"x-allDay");
        row("windows", "x-windows");
        row(",\"enabled", ",\"x-in-window");
        row("\"id", "\"x-id");
        row("startMinutes", "x-start");
        row("endMinutes", "x-end");
        row("{\"enabled\":true", "{\"enabled\":1");
        row("false", "null");
        row("360", "\"360\"");
        row("1320", "1320.5");
        row("3f2504e0-", "3f2504e0");
        row("3f2504e0-4f89-41d3-9a0c-0305e82c3301", "{3f2504e0-4f89-41d3-9a0c-0305e82c3301}");
        row("3f2504e0-4f89-41d3-9a0c-0305e82c3301", "evening");
    }

    void decodesStrictly() {
        QFETCH(QByteArray, place);
        QFETCH(QByteArray, change);
        QVERIFY(m_json.contains(place));
        QVERIFY(!notify::decodeNotificationSettings(QByteArray(m_json).replace(place, change)));
    }

    void staysInTheStore() {
        const QTemporaryDir directory;
        auto store = model::DefaultsStore::open(directory.path().toStdString() + "/defaults.conf");
        QVERIFY(store.has_value());
        for (const char* stored : {"", R"({"enabled":true})"}) {
            store->setData(QStringLiteral("notificationSettings"), stored);
            const NotificationSettings loaded = notify::loadNotificationSettings(*store);
            QVERIFY(!loaded.enabled && !loaded.windows.at(0).id.isNull());
            QCOMPARE(loaded.windows.size(), 1U);
        }
        notify::saveNotificationSettings(*store, m_settings);
        QVERIFY(notify::loadNotificationSettings(*store) == m_settings);
    }
};

TALLYVANE_TEST_MAIN(NotificationSettingsTest)
#include "notification_settings_test.moc"
