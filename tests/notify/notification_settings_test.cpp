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
        QTest::addColumn<bool>("isAllowed"); // in Berlin
        const auto row = [](const char* moment, bool isAllowed, const Windows& windows) {
            QTest::addRow("%s, %d windows", moment, static_cast<int>(windows.size()))
                << windows << QString::fromLatin1(moment) << isAllowed;
        };
        const NotificationWindow day;
        row("2026-01-10T07:59:59Z", false, {day});
        row("2026-01-10T08:00:00Z", true, {day});
        row("2026-01-10T16:59:59Z", true, {day});
        row("2026-01-10T17:00:00Z", false, {day});
        row("1966-01-10T07:59:59Z", false, {day});
        const NotificationWindow night{.startMinutes = 22 * 60, .endMinutes = 6 * 60};
        row("2026-01-10T22:30:00Z", true, {night});
        row("2026-01-10T04:59:59Z", true, {night});
        row("2026-01-10T05:00:00Z", false, {night});
        row("2026-01-10T11:00:00Z", false, {night});
        const NotificationWindow empty{.startMinutes = 540, .endMinutes = 540};
        const NotificationWindow disabled{.enabled = false, .allDay = true};
        row("2026-01-10T08:00:00Z", false, {empty, disabled});
        row("2026-01-10T08:00:00Z", true, {empty, disabled, day});
        row("2026-01-10T03:00:00Z", true, {{.allDay = true, .startMinutes = 0, .endMinutes = 0}});
        row("2026-01-10T11:00:00Z", false, {});
        // The hour after two is left out in spring and comes twice in autumn.
        const NotificationWindow afterTwo{.startMinutes = 120, .endMinutes = 180};
        row("2026-03-29T00:59:59Z", false, {afterTwo});
        row("2026-03-29T01:00:00Z", false, {afterTwo});
        row("2026-10-25T00:00:00Z", true, {afterTwo});
        row("2026-10-25T01:59:59Z", true, {afterTwo});
        row("2026-10-25T02:00:00Z", false, {afterTwo});
    }

    void allows() {
        QFETCH(Windows, windows);
        QFETCH(QString, moment);
        QFETCH(bool, isAllowed);
        const auto at = model::parseTimestamp(moment, model::FractionalSeconds::rejected).value();
        const model::LocalZone zone(QTimeZone("Europe/Berlin"));
        QCOMPARE(notify::allows({.enabled = true, .windows = windows}, at, zone), isAllowed);
        QVERIFY(!notify::allows({.enabled = false, .windows = windows}, at, zone));
    }

    void layout() {
        QCOMPARE(notify::encodeNotificationSettings(m_settings), m_json);
        QVERIFY(notify::decodeNotificationSettings(m_json) == m_settings);
        QVERIFY(notify::decodeNotificationSettings(
                    QByteArray(m_json).replace("3f2504e0", "3F2504E0")) == m_settings);
    }

    void decodesStrictly_data() {
        QTest::addColumn<QByteArray>("place");
        QTest::addColumn<QByteArray>("change");
        const auto row = [](const char* place, const char* change) {
            QTest::newRow(change) << QByteArray(place) << QByteArray(change);
        };
        for (const char* key : {"allDay", "id", "startMinutes", "endMinutes", "windows"}) {
            QTest::newRow(key) << QByteArray(key) << QByteArray("x");
        }
        row("{\"enabled", "{\"x");
        row(",\"enabled", ",\"y");
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
