#include "platform/linux/status_item/status_item.h"
#include "support/private_bus.h"
#include "support/scripted_service.h"

#include <sys/prctl.h>

using namespace tallyvane;
using namespace Qt::StringLiterals;

namespace {

/// The desktop's watcher. At first no host is registered with it.
struct Watcher final : tests::ScriptedService {
    Watcher()
        : ScriptedService({u"org.kde.StatusNotifierWatcher"_s}, u"/StatusNotifierWatcher"_s) {}

    void setHasHost(bool isRegistered) {
        hasHost = isRegistered;
        emitSignal({}, u"org.kde.StatusNotifierWatcher"_s,
                   hasHost ? u"StatusNotifierHostRegistered"_s
                           : u"StatusNotifierHostUnregistered"_s);
    }
    [[nodiscard]] QDBusMessage reply(const QDBusMessage& call) const override {
        return call.member() == "Get"_L1 ? call.createReply(tests::variant(hasHost))
                                         : call.createReply();
    }

    bool hasHost = false;
};

const QList<platform::ItemMenuEntry> menu{
    {1, u"Codex 5_H"_s}, {.id = 2, .isSeparator = true}, {3, u"Refresh"_s, false}, {4, u"Quit"_s}};

void fill(platform::StatusItem& item) {
    item.setTitle(u"Tallyvane"_s);
    item.setIcon({{{1, QByteArray::fromHex("80ff0001")}}, u"/run/t/a.b-symbolic.svg"_s});
    item.setLabel(u"37%"_s, u"100%"_s);
    item.setToolTip({u"a < b & c"_s, u"d"_s});
    item.setMenu(menu);
}

} // namespace

class StatusItemTest : public tests::HermeticTest {
    Q_OBJECT

    tests::PrivateBus m_bus;
    QDBusConnection m_program = QDBusConnection::connectToBus(m_bus.address(), u"program"_s);
    QString m_id = u"org.corvelle.Tallyvane"_s;

    QByteArray callItem(const QByteArray& call) {
        return tests::callOnBus(m_program.baseService(), "/StatusNotifierItem", call);
    }
    QByteArray callMenu(const QByteArray& call) {
        return tests::callOnBus(m_program.baseService(), "/MenuBar",
                                "com.canonical.dbusmenu." + call);
    }
    QByteArray property(const QByteArray& name) {
        return callItem("org.freedesktop.DBus.Properties.Get org.kde.StatusNotifierItem " + name);
    }

private Q_SLOTS:
    void showsItsProperties() {
        platform::StatusItem item(m_id, m_program);
        fill(item);
        QCOMPARE(callItem("org.freedesktop.DBus.Properties.GetAll org.kde.StatusNotifierItem"),
                 "({'AttentionIconName': <''>, 'AttentionIconPixmap': <@a(iiay) []>, "
                 "'AttentionMovieName': <''>, 'Category': <'ApplicationStatus'>, "
                 "'IconAccessibleDesc': <'a < b & c\\nd'>, 'IconName': <''>, "
                 "'IconPixmap': <[(1, 1, [byte 0x80, 0xff, 0x00, 0x01])]>, 'IconThemePath': <''>, "
                 "'Id': <'org.corvelle.Tallyvane'>, 'ItemIsMenu': <false>, "
                 "'Menu': <objectpath '/MenuBar'>, 'OverlayIconName': <''>, "
                 "'OverlayIconPixmap': <@a(iiay) []>, 'Status': <'Active'>, "
                 "'Title': <'Tallyvane'>, "
                 "'ToolTip': <('', @a(iiay) [], 'a &lt; b &amp; c\\nd', '')>, 'WindowId': <0>, "
                 "'XAyatanaLabel': <'37%'>, 'XAyatanaLabelGuide': <'100%'>, "
                 "'XAyatanaOrderingIndex': <uint32 0>},)");
    }

    void fitsItsHost() {
        // The profile, and the item's label, the name of its icon and that one's folder.
        const std::tuple<const char*, bool, bool, const char*> rows[] = {
            {"gnome-shell", true, true, "(<'37%'>,)(<'a.b-symbolic'>,)(<'/run/t'>,)"},
            {"kded5", false, true, "(<'37%'>,)(<'a.b-symbolic'>,)(<'/run/t'>,)"},
            {"panel-12-systray", false, true, "(<'37%'>,)(<''>,)(<''>,)"},
            {"waybar", false, false, "(<'37%'>,)(<''>,)(<''>,)"},
            {"mate-panel", false, false, "UnknownProperty: XAyatanaLabel(<''>,)(<''>,)"},
            {"ayatana-indicator", true, false, "(<'37%'>,)(<'/run/t/a.b-symbolic.svg'>,)(<''>,)"},
        };
        for (const auto& [process, showsLabel, hasTrustedCoordinates, expected] : rows) {
            ::prctl(PR_SET_NAME, process);
            platform::StatusItem item(m_id, m_program);
            const Watcher watcher;
            // The profile is known, and values can depend on it, before the host reads the item.
            connect(&item, &platform::StatusItem::hostProfileChanged, this, [&] {
                QVERIFY(watcher.calls.isEmpty());
                fill(item);
            });
            TALLYVANE_TRY_VERIFY(!watcher.calls.isEmpty());
            ::prctl(PR_SET_NAME, "status_item_test");
            fill(item);
            QCOMPARE(item.hostProfile().showsLabel, showsLabel);
            QCOMPARE(item.hostProfile().hasTrustedCoordinates, hasTrustedCoordinates);
            const QByteArray properties =
                property("XAyatanaLabel") + property("IconName") + property("IconThemePath");
            QVERIFY2(properties.endsWith(expected), process + properties);
        }
    }

    void sendsOnlyChanges() {
        platform::StatusItem item(m_id, m_program);
        fill(item);
        tests::RunningProgram monitor("gdbus monitor --session --dest " +
                                      m_program.baseService().toUtf8());
        // What the monitor has printed since the last call, up to a line that contains `last`.
        const auto heard = [&monitor](const char* last) {
            QByteArray text;
            void(QTest::qWaitFor([&] {
                text += monitor.readAll();
                return text.contains(last) && text.endsWith('\n');
            }));
            return text;
        };
        heard("is owned by");
        // It listens some time after it says so.
        QVERIFY(QTest::qWaitFor([&] {
            item.setTitle(u"a"_s);
            item.setTitle(u"b"_s);
            return !monitor.readAll().isEmpty();
        }));
        item.setLabel(u"1%"_s, u"100%"_s);
        fill(item);
        heard("'37%'");
        fill(item);
        item.setLabel(u"36%"_s, u"100%"_s);
        item.setTitle(u"T"_s);
        item.setIcon({});
        item.setToolTip({});
        item.setMenu({menu.at(0), menu.at(1), {3, u"Refresh"_s}, menu.at(3)});
        item.setMenu(menu.sliced(1));
        QCOMPARE(
            heard("LayoutUpdated"),
            "/StatusNotifierItem: org.kde.StatusNotifierItem.XAyatanaNewLabel ('36%', '100%')\n"
            "/StatusNotifierItem: org.kde.StatusNotifierItem.NewTitle ()\n"
            "/StatusNotifierItem: org.kde.StatusNotifierItem.NewIcon ()\n"
            "/StatusNotifierItem: org.kde.StatusNotifierItem.NewToolTip ()\n"
            "/MenuBar: com.canonical.dbusmenu.ItemsPropertiesUpdated "
            "([(3, {'enabled': <true>, 'label': <'Refresh'>})], @a(ias) [])\n"
            "/MenuBar: com.canonical.dbusmenu.LayoutUpdated (uint32 3, 0)\n");
    }

    void answersForItsMenu() {
        platform::StatusItem item(m_id, m_program);
        item.setMenu(menu);
        const std::pair<const char*, const char*> rows[] = {
            {"GetLayout -- 0 -1 []",
             "(uint32 2, (0, {'children-display': <'submenu'>}, "
             "[<(1, {'enabled': <true>, 'label': <'Codex 5__H'>}, @av [])>, "
             "<(2, {'type': <'separator'>}, @av [])>, "
             "<(3, {'enabled': <false>, 'label': <'Refresh'>}, @av [])>, "
             "<(4, {'enabled': <true>, 'label': <'Quit'>}, @av [])>]))"},
            {"GetLayout 0 0 '[\"label\"]'", "(uint32 2, (0, @a{sv} {}, @av []))"},
            {"GetLayout 4 1 '[\"label\"]'", "(uint32 2, (4, {'label': <'Quit'>}, @av []))"},
            {"GetLayout 9 1 []", "InvalidArgs"},
            {"GetGroupProperties '[4, 9, 0]' '[\"enabled\", \"children-display\"]'",
             "([(4, {'enabled': <true>}), (0, {'children-display': <'submenu'>})],)"},
            {"GetGroupProperties [] '[\"type\"]'",
             "([(0, @a{sv} {}), (1, {}), (2, {'type': <'separator'>}), (3, {}), (4, {})],)"},
            {"GetProperty 4 label", "(<'Quit'>,)"},
            {"GetProperty 4 type", "InvalidArgs"},
            {"AboutToShow 0", "(false,)"},
            {"AboutToShowGroup '[0, 9]'", "(@ai [], [9])"},
            {"Event 9 clicked '<0>' 0", "InvalidArgs"},
        };
        for (const auto& [call, expected] : rows) {
            const QByteArray answer = callMenu(call);
            QVERIFY2(answer.contains(expected), call + answer);
        }
    }

    void takesEvents() {
        platform::StatusItem item(m_id, m_program);
        item.setMenu(menu);
        const QSignalSpy triggered(&item, &platform::StatusItem::menuItemTriggered);
        const QSignalSpy activated(&item, &platform::StatusItem::activated);
        // Only a click on an enabled entry counts.
        QCOMPARE(callMenu("EventGroup '[(1, \"opened\", <0>, 0), (3, \"clicked\", <0>, 0), "
                          "(2, \"clicked\", <0>, 0), (4, \"clicked\", <0>, 0), "
                          "(9, \"clicked\", <0>, 0)]'"),
                 "([9],)");
        callMenu("Event 1 clicked '<0>' 0");
        TALLYVANE_TRY_COMPARE(triggered, (QList<QVariantList>{{4}, {1}}));

        for (const char* call : {"ProvideXdgActivationToken token", "Scroll 1 vertical",
                                 "Activate -- -5 7", "ContextMenu 1 2"}) {
            QCOMPARE(callItem("org.kde.StatusNotifierItem." + QByteArray(call)), "()");
        }
        // GNOME's host calls SecondaryActivate after this answer alone.
        QVERIFY(callItem("org.kde.StatusNotifierItem.XAyatanaSecondaryActivate 1")
                    .contains("UnknownMethod"));
        QCOMPARE(activated,
                 (QList<QVariantList>{{QPoint(-5, 7), u"token"_s}, {QPoint(1, 2), QString()}}));
    }

    void followsTheDesktop() {
        platform::StatusItem item(m_id, m_program);
        const QSignalSpy changes(&item, &platform::StatusItem::hostAvailableChanged);
        for (int restart = 0; restart < 2; ++restart) {
            Watcher watcher;
            TALLYVANE_TRY_COMPARE(watcher.calls.size(), 2); // and the question for the host
            QCOMPARE(watcher.calls[0].arguments(), QVariantList{m_program.baseService()});
            QVERIFY(!item.isHostAvailable());
            for (const bool hasHost : {true, false, true}) {
                watcher.setHasHost(hasHost);
                TALLYVANE_TRY_COMPARE(item.isHostAvailable(), hasHost);
            }
        }
        TALLYVANE_TRY_VERIFY(!item.isHostAvailable());
        QCOMPARE(changes.count(), 8);
    }
};

TALLYVANE_TEST(StatusItemTest)
#include "status_item_test.moc"
