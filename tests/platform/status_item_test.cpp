#include "platform/linux/status_item/status_item.h"
#include "support/private_bus.h"
#include "support/running_program.h"
#include "support/scripted_service.h"
#include "support/test_main.h"

#include <QtTest/QSignalSpy>

#include <sys/prctl.h>

using namespace tallyvane;

namespace {

QString s(const char* text) {
    return QString::fromUtf8(text);
}

/// The desktop's watcher. At first no host is registered with it.
struct Watcher {
    void setHasHost(bool isRegistered) {
        hasHost = isRegistered;
        service.emitSignal("", "org.kde.StatusNotifierWatcher",
                           hasHost ? "StatusNotifierHostRegistered"
                                   : "StatusNotifierHostUnregistered");
    }

    /// Registered items, and properties that were read.
    [[nodiscard]] QStringList calls() const {
        QStringList texts;
        for (const QDBusMessage& call : service.calls) {
            texts.append(call.arguments().constLast().toString());
        }
        return texts;
    }

    bool hasHost = false;
    tests::ScriptedService service{{s("org.kde.StatusNotifierWatcher")},
                                   s("/StatusNotifierWatcher"),
                                   [this](const QDBusMessage& call) {
                                       return call.member() == u"Get"
                                                  ? call.createReply(tests::variant(hasHost))
                                                  : call.createReply();
                                   }};
};

const QList<platform::ItemMenuEntry> menu{
    {1, s("Codex 5_H")}, {.id = 2, .isSeparator = true}, {3, s("Refresh"), false}, {4, s("Quit")}};

void fill(platform::StatusItem& item) {
    item.setTitle(s("Tallyvane"));
    item.setIcon({{{1, QByteArray::fromHex("80ff0001")}}, s("/run/t/a.b-symbolic.svg")});
    item.setLabel(s("37%"), s("100%"));
    item.setToolTip({s("a < b & c"), s("d")});
    item.setMenu(menu);
}

} // namespace

class StatusItemTest : public tests::HermeticTest {
    Q_OBJECT

    tests::PrivateBus m_bus;
    QDBusConnection m_program = QDBusConnection::connectToBus(m_bus.address(), s("program"));
    QString m_id = s("org.corvelle.Tallyvane");

    /// What gdbus prints: the reply as GVariant text, or the error. `arguments` are the shell's.
    QByteArray call(const QByteArray& path, const QByteArray& method, const QByteArray& arguments) {
        return tests::output("gdbus call --session --dest " + m_program.baseService().toUtf8() +
                             " --object-path " + path + " --method " + method + " -- " + arguments +
                             " 2>&1")
            .trimmed();
    }
    QByteArray callMenu(const char* method, const char* arguments) {
        return call("/MenuBar", QByteArray("com.canonical.dbusmenu.") + method, arguments);
    }
    QByteArray callItem(const char* method, const char* arguments = "") {
        return call("/StatusNotifierItem", QByteArray("org.kde.StatusNotifierItem.") + method,
                    arguments);
    }
    QByteArray property(const QByteArray& name) {
        return call("/StatusNotifierItem", "org.freedesktop.DBus.Properties.Get",
                    "org.kde.StatusNotifierItem " + name);
    }

    /// The signals of the program's objects since the last call, up to one that contains `last`.
    static QByteArrayList heard(QProcess& monitor, const char* last) {
        QByteArrayList lines;
        const bool isComplete = QTest::qWaitFor([&] {
            while (monitor.canReadLine()) {
                const QByteArray line = monitor.readLine().trimmed();
                lines.append(line.sliced(line.indexOf(' ') + 1));
            }
            return !lines.isEmpty() && lines.constLast().contains(last);
        });
        return isComplete ? lines : QByteArrayList{"timeout"};
    }

private Q_SLOTS:
    void showsItsProperties() {
        platform::StatusItem item(m_id, m_program);
        fill(item);
        QCOMPARE(call("/StatusNotifierItem", "org.freedesktop.DBus.Properties.GetAll",
                      "org.kde.StatusNotifierItem"),
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
        QCOMPARE(property("Title"), "(<'Tallyvane'>,)");
        QVERIFY(property("Nothing").contains("UnknownProperty"));
        QVERIFY(callItem("Nothing").contains("Unknown"));
    }

    void fitsItsHost() {
        struct Row {
            const char* process;
            bool showsLabel;
            bool hasTrustedCoordinates;
            const char* label;
            const char* iconName;
            const char* iconThemePath;
        };
        const Row rows[] = {
            {"gnome-shell", true, true, "37%", "a.b-symbolic", "/run/t"},
            {"kded5", false, true, "37%", "a.b-symbolic", "/run/t"},
            {"panel-12-systray", false, true, "37%", "", ""},
            {"lxqt-panel", false, true, "37%", "", ""},
            {"waybar", false, false, "37%", "", ""},
            {"mate-panel", false, false, "UnknownProperty", "", ""},
            {"ayatana-indicator", true, false, "37%", "/run/t/a.b-symbolic.svg", ""},
        };
        for (const Row& row : rows) {
            ::prctl(PR_SET_NAME, row.process);
            platform::StatusItem item(m_id, m_program);
            const Watcher watcher;
            // The profile is known, and values can depend on it, before the host reads the item.
            connect(&item, &platform::StatusItem::hostProfileChanged, this, [&] {
                QVERIFY(watcher.calls().isEmpty());
                fill(item);
            });
            QTRY_VERIFY(!watcher.calls().isEmpty());
            ::prctl(PR_SET_NAME, "status_item_test");
            fill(item);
            QCOMPARE(item.hostProfile().showsLabel, row.showsLabel);
            QCOMPARE(item.hostProfile().hasTrustedCoordinates, row.hasTrustedCoordinates);
            QVERIFY2(property("XAyatanaLabel").contains(row.label), row.process);
            QCOMPARE(property("IconName"), QByteArray("(<'") + row.iconName + "'>,)");
            QCOMPARE(property("IconThemePath"), QByteArray("(<'") + row.iconThemePath + "'>,)");
        }
    }

    void sendsOnlyChanges() {
        platform::StatusItem item(m_id, m_program);
        fill(item);
        tests::RunningProgram monitor("gdbus monitor --session --dest " +
                                      m_program.baseService().toUtf8());
        heard(monitor, "is owned by"); // it is listening
        fill(item);
        item.setLabel(s("36%"), s("100%"));
        QCOMPARE(heard(monitor, "Label"),
                 QByteArrayList{"org.kde.StatusNotifierItem.XAyatanaNewLabel ('36%', '100%')"});
        item.setTitle(s("T"));
        item.setIcon({});
        item.setToolTip({});
        item.setMenu({menu.at(0), menu.at(1), {3, s("Refresh")}, menu.at(3)});
        item.setMenu(menu.sliced(1));
        const QByteArrayList expected{
            "org.kde.StatusNotifierItem.NewTitle ()", "org.kde.StatusNotifierItem.NewIcon ()",
            "org.kde.StatusNotifierItem.NewToolTip ()",
            "com.canonical.dbusmenu.ItemsPropertiesUpdated ([(3, {'enabled': <true>, "
            "'label': <'Refresh'>})], @a(ias) [])",
            "com.canonical.dbusmenu.LayoutUpdated (uint32 3, 0)"};
        QCOMPARE(heard(monitor, "LayoutUpdated"), expected);
    }

    void answersForItsMenu() {
        platform::StatusItem item(m_id, m_program);
        item.setMenu(menu);
        struct Row {
            const char* method;
            const char* arguments;
            const char* answer;
        };
        const Row rows[] = {
            {"GetLayout", "0 -1 []",
             "(uint32 2, (0, {'children-display': <'submenu'>}, "
             "[<(1, {'enabled': <true>, 'label': <'Codex 5__H'>}, @av [])>, "
             "<(2, {'type': <'separator'>}, @av [])>, "
             "<(3, {'enabled': <false>, 'label': <'Refresh'>}, @av [])>, "
             "<(4, {'enabled': <true>, 'label': <'Quit'>}, @av [])>]))"},
            {"GetLayout", "0 0 '[\"label\"]'", "(uint32 2, (0, @a{sv} {}, @av []))"},
            {"GetLayout", "4 1 '[\"label\"]'", "(uint32 2, (4, {'label': <'Quit'>}, @av []))"},
            {"GetLayout", "9 1 []", "InvalidArgs"},
            {"GetGroupProperties", "'[4, 9, 0]' '[\"enabled\", \"children-display\"]'",
             "([(4, {'enabled': <true>}), (0, {'children-display': <'submenu'>})],)"},
            {"GetGroupProperties", "[] '[\"type\"]'",
             "([(0, @a{sv} {}), (1, {}), (2, {'type': <'separator'>}), (3, {}), (4, {})],)"},
            {"GetProperty", "4 label", "(<'Quit'>,)"},
            {"GetProperty", "4 type", "InvalidArgs"},
            {"GetProperty", "9 type", "InvalidArgs"},
            {"AboutToShow", "0", "(false,)"},
            {"AboutToShow", "9", "InvalidArgs"},
            {"AboutToShowGroup", "'[0, 9]'", "(@ai [], [9])"},
            {"Event", "9 clicked '<0>' 0", "InvalidArgs"},
        };
        for (const Row& row : rows) {
            const QByteArray answer = callMenu(row.method, row.arguments);
            QVERIFY2(answer.contains(row.answer), row.arguments + answer);
        }
    }

    void takesEvents() {
        platform::StatusItem item(m_id, m_program);
        item.setMenu(menu);
        const QSignalSpy triggered(&item, &platform::StatusItem::menuItemTriggered);
        const QSignalSpy activated(&item, &platform::StatusItem::activated);
        // Only a click on an enabled entry counts.
        QCOMPARE(callMenu("EventGroup", "'[(1, \"opened\", <0>, 0), (3, \"clicked\", <0>, 0), "
                                        "(2, \"clicked\", <0>, 0), (4, \"clicked\", <0>, 0), "
                                        "(9, \"clicked\", <0>, 0)]'"),
                 "([9],)");
        callMenu("Event", "1 clicked '<0>' 0");
        QTRY_COMPARE(triggered, (QList<QVariantList>{{4}, {1}}));

        callItem("ProvideXdgActivationToken", "token");
        callItem("Scroll", "1 vertical");
        QCOMPARE(activated.count(), 0);
        callItem("Activate", "-5 7");
        callItem("ContextMenu", "1 2");
        QCOMPARE(activated,
                 (QList<QVariantList>{{QPoint(-5, 7), s("token")}, {QPoint(1, 2), QString()}}));
    }

    void followsTheDesktop() {
        platform::StatusItem item(m_id, m_program);
        const QSignalSpy changes(&item, &platform::StatusItem::hostAvailableChanged);
        const QStringList registration{m_program.baseService(),
                                       s("IsStatusNotifierHostRegistered")};
        for (int restart = 0; restart < 2; ++restart) {
            Watcher watcher;
            QTRY_COMPARE(watcher.calls(), registration);
            QVERIFY(!item.isHostAvailable());
            for (const bool hasHost : {true, false, true}) {
                watcher.setHasHost(hasHost);
                QTRY_COMPARE(item.isHostAvailable(), hasHost);
            }
        }
        QTRY_VERIFY(!item.isHostAvailable());
        QCOMPARE(changes.count(), 8);
    }

    void isQuietWithoutABus() {
        platform::StatusItem item(m_id, QDBusConnection(s("none")));
        fill(item);
        QVERIFY(!item.isHostAvailable());
    }
};

TALLYVANE_TEST(StatusItemTest)
#include "status_item_test.moc"
