#include "platform/linux/status_item/status_item.h"
#include "support/private_bus.h"
#include "support/test_main.h"

#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVariant>
#include <QtDBus/QDBusVirtualObject>
#include <QtTest/QSignalSpy>

#include <sys/prctl.h>

using namespace tallyvane;

namespace {

QString s(const char* text) {
    return QString::fromUtf8(text);
}

const QString watcherName = s("org.kde.StatusNotifierWatcher");
const QString watcherPath = s("/StatusNotifierWatcher");

/// The desktop's watcher, on its own connection. At first no host is registered with it.
class Watcher final : public QDBusVirtualObject {
public:
    explicit Watcher(const tests::PrivateBus& bus)
        : m_connection(QDBusConnection::connectToBus(bus.address(), s("desktop"))) {
        m_connection.registerVirtualObject(watcherPath, this);
        m_connection.registerService(watcherName);
    }
    ~Watcher() override { QDBusConnection::disconnectFromBus(m_connection.name()); }
    Watcher(const Watcher&) = delete;
    Watcher& operator=(const Watcher&) = delete;

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& connection) override {
        calls.append(call.arguments().constLast().toString());
        return connection.send(call.member() == u"Get"
                                   ? call.createReply(QVariant::fromValue(QDBusVariant(m_hasHost)))
                                   : call.createReply());
    }

    void setHasHost(bool hasHost) {
        m_hasHost = hasHost;
        m_connection.send(QDBusMessage::createSignal(
            watcherPath, watcherName,
            hasHost ? s("StatusNotifierHostRegistered") : s("StatusNotifierHostUnregistered")));
    }

    QStringList calls; ///< registered items, and properties that were read

private:
    QDBusConnection m_connection;
    bool m_hasHost = false;
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

    /// The reply to another program's call as GVariant text, or the text of the error.
    QString call(const char* path, const QString& method, const QStringList& arguments) {
        QProcess tool;
        tool.setProcessChannelMode(QProcess::MergedChannels);
        tool.start(s("gdbus"),
                   QStringList{s("call"), s("--session"), s("--dest"), m_program.baseService(),
                               s("--object-path"), s(path), s("--method"), method, s("--")} +
                       arguments);
        return QTest::qWaitFor([&tool] { return tool.state() == QProcess::NotRunning; })
                   ? QString::fromUtf8(tool.readAll()).trimmed()
                   : QString();
    }
    QString callMenu(const char* method, const QStringList& arguments) {
        return call("/MenuBar", s("com.canonical.dbusmenu.") + s(method), arguments);
    }
    QString callItem(const char* method, const QStringList& arguments = {}) {
        return call("/StatusNotifierItem", s("org.kde.StatusNotifierItem.") + s(method), arguments);
    }
    QString property(const char* name) {
        return call("/StatusNotifierItem", s("org.freedesktop.DBus.Properties.Get"),
                    {s("org.kde.StatusNotifierItem"), s(name)});
    }

    /// The signals of the program's objects since the last call, up to one that contains `last`.
    static QStringList heard(QProcess& monitor, const char* last) {
        QStringList lines;
        const bool isComplete = QTest::qWaitFor([&] {
            while (monitor.canReadLine()) {
                lines.append(QString::fromUtf8(monitor.readLine()).trimmed().section(u' ', 1));
            }
            return !lines.isEmpty() && lines.constLast().contains(s(last));
        });
        return isComplete ? lines : lines + QStringList{s("timeout")};
    }

private Q_SLOTS:
    void showsItsProperties() {
        platform::StatusItem item(m_id, m_program);
        fill(item);
        QCOMPARE(
            call("/StatusNotifierItem", s("org.freedesktop.DBus.Properties.GetAll"),
                 {s("org.kde.StatusNotifierItem")}),
            s("({'AttentionIconName': <''>, 'AttentionIconPixmap': <@a(iiay) []>, "
              "'AttentionMovieName': <''>, 'Category': <'ApplicationStatus'>, "
              "'IconAccessibleDesc': <'a < b & c\\nd'>, 'IconName': <''>, "
              "'IconPixmap': <[(1, 1, [byte 0x80, 0xff, 0x00, 0x01])]>, 'IconThemePath': <''>, "
              "'Id': <'org.corvelle.Tallyvane'>, 'ItemIsMenu': <false>, "
              "'Menu': <objectpath '/MenuBar'>, 'OverlayIconName': <''>, "
              "'OverlayIconPixmap': <@a(iiay) []>, 'Status': <'Active'>, "
              "'Title': <'Tallyvane'>, "
              "'ToolTip': <('', @a(iiay) [], 'a &lt; b &amp; c\\nd', '')>, 'WindowId': <0>, "
              "'XAyatanaLabel': <'37%'>, 'XAyatanaLabelGuide': <'100%'>, "
              "'XAyatanaOrderingIndex': <uint32 0>},)"));
        QCOMPARE(property("Title"), s("(<'Tallyvane'>,)"));
        QVERIFY(property("Nothing").contains(u"UnknownProperty"));
        QVERIFY(callItem("Nothing").contains(u"Unknown"));
    }

    void fitsItsHost_data() {
        QTest::addColumn<bool>("showsLabel");
        QTest::addColumn<bool>("hasTrustedCoordinates");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("iconName");
        QTest::addColumn<QString>("iconThemePath");
        const QString label = s("37%");
        const QString path = s("/run/t/a.b-symbolic.svg");
        const QString name = s("a.b-symbolic");
        const QString none;
        // By the name of the host's process.
        QTest::newRow("gnome-shell") << true << true << label << name << s("/run/t");
        QTest::newRow("kded5") << false << true << label << name << s("/run/t");
        QTest::newRow("panel-12-systray") << false << true << label << none << none;
        QTest::newRow("lxqt-panel") << false << true << label << none << none;
        QTest::newRow("waybar") << false << false << label << none << none;
        QTest::newRow("mate-panel") << false << false << s("UnknownProperty") << none << none;
        QTest::newRow("ayatana-indicator") << true << false << label << path << none;
    }
    void fitsItsHost() {
        ::prctl(PR_SET_NAME, QTest::currentDataTag());
        platform::StatusItem item(m_id, m_program);
        const Watcher watcher(m_bus);
        // The profile is known, and values can depend on it, before the host reads the item.
        connect(&item, &platform::StatusItem::hostProfileChanged, this, [&] {
            QVERIFY(watcher.calls.isEmpty());
            fill(item);
        });
        QTRY_VERIFY(!watcher.calls.isEmpty());
        ::prctl(PR_SET_NAME, "status_item_test");
        fill(item);
        QTEST(item.hostProfile().showsLabel, "showsLabel");
        QTEST(item.hostProfile().hasTrustedCoordinates, "hasTrustedCoordinates");
        QFETCH(const QString, label);
        QFETCH(const QString, iconName);
        QFETCH(const QString, iconThemePath);
        QVERIFY(property("XAyatanaLabel").contains(label));
        QCOMPARE(property("IconName"), s("(<'%1'>,)").arg(iconName));
        QCOMPARE(property("IconThemePath"), s("(<'%1'>,)").arg(iconThemePath));
    }

    void sendsOnlyChanges() {
        platform::StatusItem item(m_id, m_program);
        fill(item);
        QProcess monitor;
        monitor.start(s("gdbus"),
                      {s("monitor"), s("--session"), s("--dest"), m_program.baseService()});
        heard(monitor, "is owned by"); // it is listening
        fill(item);
        item.setLabel(s("36%"), s("100%"));
        QCOMPARE(heard(monitor, "Label"),
                 QStringList{s("org.kde.StatusNotifierItem.XAyatanaNewLabel ('36%', '100%')")});
        item.setTitle(s("T"));
        item.setIcon({});
        item.setToolTip({});
        item.setMenu({menu.at(0), menu.at(1), {3, s("Refresh")}, menu.at(3)});
        item.setMenu(menu.sliced(1));
        QCOMPARE(heard(monitor, "LayoutUpdated"),
                 (QStringList{
                     s("org.kde.StatusNotifierItem.NewTitle ()"),
                     s("org.kde.StatusNotifierItem.NewIcon ()"),
                     s("org.kde.StatusNotifierItem.NewToolTip ()"),
                     s("com.canonical.dbusmenu.ItemsPropertiesUpdated ([(3, {'enabled': <true>, "
                       "'label': <'Refresh'>})], @a(ias) [])"),
                     s("com.canonical.dbusmenu.LayoutUpdated (uint32 3, 0)")}));
        monitor.kill();
        monitor.waitForFinished();
    }

    void answersForItsMenu() {
        platform::StatusItem item(m_id, m_program);
        item.setMenu(menu);
        struct Row {
            const char* method;
            const char* arguments; // separated by "|"
            const char* answer;
        };
        const Row rows[] = {
            {"GetLayout", "0|-1|[]",
             "(uint32 2, (0, {'children-display': <'submenu'>}, "
             "[<(1, {'enabled': <true>, 'label': <'Codex 5__H'>}, @av [])>, "
             "<(2, {'type': <'separator'>}, @av [])>, "
             "<(3, {'enabled': <false>, 'label': <'Refresh'>}, @av [])>, "
             "<(4, {'enabled': <true>, 'label': <'Quit'>}, @av [])>]))"},
            {"GetLayout", "0|0|['label']", "(uint32 2, (0, @a{sv} {}, @av []))"},
            {"GetLayout", "4|1|['label']", "(uint32 2, (4, {'label': <'Quit'>}, @av []))"},
            {"GetLayout", "9|1|[]", "InvalidArgs"},
            {"GetGroupProperties", "[4, 9, 0]|['enabled', 'children-display']",
             "([(4, {'enabled': <true>}), (0, {'children-display': <'submenu'>})],)"},
            {"GetGroupProperties", "[]|['type']",
             "([(0, @a{sv} {}), (1, {}), (2, {'type': <'separator'>}), (3, {}), (4, {})],)"},
            {"GetProperty", "4|label", "(<'Quit'>,)"},
            {"GetProperty", "4|type", "InvalidArgs"},
            {"GetProperty", "9|type", "InvalidArgs"},
            {"AboutToShow", "0", "(false,)"},
            {"AboutToShow", "9", "InvalidArgs"},
            {"AboutToShowGroup", "[0, 9]", "(@ai [], [9])"},
            {"Event", "9|clicked|<0>|0", "InvalidArgs"},
        };
        for (const Row& row : rows) {
            const QString answer = callMenu(row.method, s(row.arguments).split(u'|'));
            QVERIFY2(answer.contains(s(row.answer)), qPrintable(s(row.arguments) + answer));
        }
    }

    void takesEvents() {
        platform::StatusItem item(m_id, m_program);
        item.setMenu(menu);
        const QSignalSpy triggered(&item, &platform::StatusItem::menuItemTriggered);
        const QSignalSpy activated(&item, &platform::StatusItem::activated);
        // Only a click on an enabled entry counts.
        QCOMPARE(callMenu("EventGroup", {s("[(1, 'opened', <0>, 0), (3, 'clicked', <0>, 0), "
                                           "(2, 'clicked', <0>, 0), (4, 'clicked', <0>, 0), "
                                           "(9, 'clicked', <0>, 0)]")}),
                 s("([9],)"));
        callMenu("Event", {s("1"), s("clicked"), s("<0>"), s("0")});
        QTRY_COMPARE(triggered, (QList<QVariantList>{{4}, {1}}));

        callItem("ProvideXdgActivationToken", {s("token")});
        callItem("Scroll", {s("1"), s("vertical")});
        QCOMPARE(activated.count(), 0);
        callItem("Activate", {s("-5"), s("7")});
        callItem("ContextMenu", {s("1"), s("2")});
        QCOMPARE(activated,
                 (QList<QVariantList>{{QPoint(-5, 7), s("token")}, {QPoint(1, 2), QString()}}));
    }

    void followsTheDesktop() {
        platform::StatusItem item(m_id, m_program);
        const QSignalSpy changes(&item, &platform::StatusItem::hostAvailableChanged);
        const QStringList registration{m_program.baseService(),
                                       s("IsStatusNotifierHostRegistered")};
        for (int restart = 0; restart < 2; ++restart) {
            Watcher watcher(m_bus);
            QTRY_COMPARE(watcher.calls, registration);
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
        item.setMenu({});
        QCoreApplication::processEvents();
        QVERIFY(!item.isHostAvailable());
    }
};

TALLYVANE_TEST_MAIN(StatusItemTest)
#include "status_item_test.moc"
