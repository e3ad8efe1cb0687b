#include "platform/linux/status_item/status_item.h"
#include "support/private_bus.h"
#include "support/test_main.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVariant>
#include <QtDBus/QDBusVirtualObject>
#include <QtTest/QSignalSpy>

#include <sys/prctl.h>

using namespace tallyvane;

namespace {

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

/// The desktop's side, on a connection of its own. It knows at first no host that shows items.
class Watcher final : public QDBusVirtualObject {
    Q_OBJECT

public:
    explicit Watcher(const tests::PrivateBus& bus)
        : m_connection(QDBusConnection::connectToBus(bus.address(), QStringLiteral("desktop"))) {
        m_connection.registerVirtualObject(watcherPath, this);
        m_connection.registerService(watcherName);
    }
    ~Watcher() override { QDBusConnection::disconnectFromBus(QStringLiteral("desktop")); }
    Watcher(const Watcher&) = delete;
    Watcher& operator=(const Watcher&) = delete;

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& connection) override {
        calls.append(call.arguments().constLast().toString());
        return connection.send(call.member() == QLatin1StringView("Get")
                                   ? call.createReply(QVariant::fromValue(QDBusVariant(m_hasHost)))
                                   : call.createReply());
    }

    void setHasHost(bool hasHost) {
        m_hasHost = hasHost;
        m_connection.send(
            QDBusMessage::createSignal(watcherPath, watcherName,
                                       hasHost ? QStringLiteral("StatusNotifierHostRegistered")
                                               : QStringLiteral("StatusNotifierHostUnregistered")));
    }

    QStringList calls; ///< registered items, and properties that were asked for

private:
    QDBusConnection m_connection;
    bool m_hasHost = false;
};

const QList<platform::ItemMenuEntry> menu{{1, QStringLiteral("Codex 5_H")},
                                          {.id = 2, .isSeparator = true},
                                          {3, QStringLiteral("Refresh"), false},
                                          {4, QStringLiteral("Quit")}};

void fill(platform::StatusItem& item) {
    item.setTitle(QStringLiteral("Tallyvane"));
    item.setIcon(
        {{{1, QByteArray::fromHex("80ff0001")}}, QStringLiteral("/run/t/a.b-symbolic.svg")});
    item.setLabel(QStringLiteral("37%"), QStringLiteral("100%"));
    item.setToolTip({QStringLiteral("a < b & c"), QStringLiteral("d")});
    item.setMenu(menu);
}

} // namespace

class StatusItemTest : public tests::HermeticTest {
    Q_OBJECT

    tests::PrivateBus m_bus;
    QDBusConnection m_program =
        QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("program"));
    QString m_id = QStringLiteral("org.corvelle.Tallyvane");

    /// What an outside program is answered at the path, as GVariant text; an error's whole text.
    QString call(const QString& path, const QString& method, const QStringList& arguments = {}) {
        QProcess tool;
        tool.setProcessChannelMode(QProcess::MergedChannels);
        tool.start(QStringLiteral("gdbus"),
                   QStringList{QStringLiteral("call"), QStringLiteral("--session"),
                               QStringLiteral("--dest"), m_program.baseService(),
                               QStringLiteral("--object-path"), path, QStringLiteral("--method"),
                               method, QStringLiteral("--")} +
                       arguments);
        return QTest::qWaitFor([&tool] { return tool.state() == QProcess::NotRunning; })
                   ? QString::fromUtf8(tool.readAll()).trimmed()
                   : QString();
    }
    QString callMenu(const QString& method, const QStringList& arguments) {
        return call(QStringLiteral("/MenuBar"), QStringLiteral("com.canonical.dbusmenu.") + method,
                    arguments);
    }
    QString callItem(const QString& method, const QStringList& arguments) {
        return call(QStringLiteral("/StatusNotifierItem"),
                    QStringLiteral("org.kde.StatusNotifierItem.") + method, arguments);
    }
    QString property(const QString& name) {
        return call(QStringLiteral("/StatusNotifierItem"),
                    QStringLiteral("org.freedesktop.DBus.Properties.Get"),
                    {QStringLiteral("org.kde.StatusNotifierItem"), name});
    }

    /// The signals of the program's objects since the last call, once one with `last` came.
    static QStringList heard(QProcess& monitor, const QString& last) {
        QStringList lines;
        const bool isComplete = QTest::qWaitFor([&] {
            while (monitor.canReadLine()) {
                lines.append(QString::fromUtf8(monitor.readLine()).trimmed().section(u' ', 1));
            }
            return !lines.isEmpty() && lines.constLast().contains(last);
        });
        return isComplete ? lines : lines + QStringList{QStringLiteral("timeout")};
    }

private Q_SLOTS:
    void showsItsProperties() {
        platform::StatusItem item(m_id, m_program);
        fill(item);
        QCOMPARE(
            call(QStringLiteral("/StatusNotifierItem"),
                 QStringLiteral("org.freedesktop.DBus.Properties.GetAll"),
                 {QStringLiteral("org.kde.StatusNotifierItem")}),
            QStringLiteral(
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
                "'XAyatanaOrderingIndex': <uint32 0>},)"));
        QCOMPARE(property(QStringLiteral("Title")), QStringLiteral("(<'Tallyvane'>,)"));
        QVERIFY(property(QStringLiteral("Nothing")).contains(u"UnknownProperty"));
        QVERIFY(callItem(QStringLiteral("Nothing"), {}).contains(u"Unknown"));
    }

    void fitsItsHost_data() {
        QTest::addColumn<QByteArray>("processName");
        QTest::addColumn<bool>("showsLabel");
        QTest::addColumn<bool>("hasTrustedCoordinates");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("iconName");
        QTest::addColumn<QString>("iconThemePath");
        const QString label = QStringLiteral("37%");
        const QString path = QStringLiteral("/run/t/a.b-symbolic.svg");
        const QString name = QStringLiteral("a.b-symbolic");
        const QString folder = QStringLiteral("/run/t");
        QTest::newRow("GNOME") << QByteArray("gnome-shell") << true << true << label << name
                               << folder;
        QTest::newRow("Plasma") << QByteArray("kded5") << false << true << label << name << folder;
        QTest::newRow("Xfce") << QByteArray("panel-12-systray") << false << true << label
                              << QString() << QString();
        QTest::newRow("LXQt") << QByteArray("lxqt-panel") << false << true << label << QString()
                              << QString();
        QTest::newRow("waybar") << QByteArray("waybar") << false << false << label << QString()
                                << QString();
        QTest::newRow("MATE") << QByteArray("mate-panel") << false << false
                              << QStringLiteral("UnknownProperty") << QString() << QString();
        QTest::newRow("Ayatana") << QByteArray("ayatana-indicator-application-service") << true
                                 << false << label << path << QString();
    }
    void fitsItsHost() {
        QFETCH(const QByteArray, processName);
        ::prctl(PR_SET_NAME, processName.constData());
        platform::StatusItem item(m_id, m_program);
        const Watcher watcher(m_bus);
        // The profile is known, and what follows from it is set, before the host reads the item.
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
        QVERIFY(property(QStringLiteral("XAyatanaLabel")).contains(label));
        QFETCH(const QString, iconName);
        QCOMPARE(property(QStringLiteral("IconName")), QStringLiteral("(<'%1'>,)").arg(iconName));
        QFETCH(const QString, iconThemePath);
        QCOMPARE(property(QStringLiteral("IconThemePath")),
                 QStringLiteral("(<'%1'>,)").arg(iconThemePath));
    }

    void tellsOnlyWhatChanged() {
        platform::StatusItem item(m_id, m_program);
        fill(item);
        QProcess monitor;
        monitor.start(QStringLiteral("gdbus"),
                      {QStringLiteral("monitor"), QStringLiteral("--session"),
                       QStringLiteral("--dest"), m_program.baseService()});
        heard(monitor, QStringLiteral("is owned by")); // it listens
        fill(item);
        item.setLabel(QStringLiteral("36%"), QStringLiteral("100%"));
        QCOMPARE(heard(monitor, QStringLiteral("Label")),
                 QStringList{QStringLiteral(
                     "org.kde.StatusNotifierItem.XAyatanaNewLabel ('36%', '100%')")});
        item.setTitle(QStringLiteral("T"));
        item.setIcon({});
        item.setToolTip({});
        item.setMenu({menu.at(0), menu.at(1), {3, QStringLiteral("Refresh")}, menu.at(3)});
        item.setMenu(menu.sliced(1));
        QCOMPARE(heard(monitor, QStringLiteral("LayoutUpdated")),
                 (QStringList{
                     QStringLiteral("org.kde.StatusNotifierItem.NewTitle ()"),
                     QStringLiteral("org.kde.StatusNotifierItem.NewIcon ()"),
                     QStringLiteral("org.kde.StatusNotifierItem.NewToolTip ()"),
                     QStringLiteral(
                         "com.canonical.dbusmenu.ItemsPropertiesUpdated ([(3, {'enabled': <true>, "
                         "'label': <'Refresh'>})], @a(ias) [])"),
                     QStringLiteral("com.canonical.dbusmenu.LayoutUpdated (uint32 3, 0)")}));
        monitor.kill();
        monitor.waitForFinished();
    }

    void answersForItsMenu_data() {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("answer");
        const QString none = QStringLiteral("[]");
        const auto row = [](const char* method, const QStringList& arguments, const char* answer) {
            QTest::addRow("%s %s", method, qPrintable(arguments.join(u' ')))
                << QString::fromUtf8(method) << arguments << QString::fromUtf8(answer);
        };
        const auto s = [](const char* text) { return QString::fromUtf8(text); };
        row("GetLayout", {s("0"), s("-1"), none},
            "(uint32 2, (0, {'children-display': <'submenu'>}, "
            "[<(1, {'enabled': <true>, 'label': <'Codex 5__H'>}, @av [])>, "
            "<(2, {'type': <'separator'>}, @av [])>, "
            "<(3, {'enabled': <false>, 'label': <'Refresh'>}, @av [])>, "
            "<(4, {'enabled': <true>, 'label': <'Quit'>}, @av [])>]))");
        row("GetLayout", {s("0"), s("0"), s("['label']")}, "(uint32 2, (0, @a{sv} {}, @av []))");
        row("GetLayout", {s("4"), s("1"), s("['label']")},
            "(uint32 2, (4, {'label': <'Quit'>}, @av []))");
        row("GetLayout", {s("9"), s("1"), none}, "InvalidArgs");
        row("GetGroupProperties", {s("[4, 9, 0]"), s("['enabled', 'children-display']")},
            "([(4, {'enabled': <true>}), (0, {'children-display': <'submenu'>})],)");
        row("GetGroupProperties", {none, s("['type']")},
            "([(0, @a{sv} {}), (1, {}), (2, {'type': <'separator'>}), (3, {}), (4, {})],)");
        row("GetProperty", {s("4"), s("label")}, "(<'Quit'>,)");
        row("GetProperty", {s("4"), s("type")}, "InvalidArgs");
        row("GetProperty", {s("9"), s("type")}, "InvalidArgs");
        row("AboutToShow", {s("0")}, "(false,)");
        row("AboutToShow", {s("9")}, "InvalidArgs");
        row("AboutToShowGroup", {s("[0, 9]")}, "(@ai [], [9])");
        row("Event", {s("9"), s("clicked"), s("<0>"), s("0")}, "InvalidArgs");
    }
    void answersForItsMenu() {
        platform::StatusItem item(m_id, m_program);
        item.setMenu(menu);
        QFETCH(const QString, method);
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, answer);
        const QString actual = callMenu(method, arguments);
        if (answer.startsWith(u'(')) {
            QCOMPARE(actual, answer);
        } else {
            QVERIFY2(actual.contains(answer), qPrintable(actual));
        }
    }

    void takesEvents() {
        platform::StatusItem item(m_id, m_program);
        item.setMenu(menu);
        const QSignalSpy triggered(&item, &platform::StatusItem::menuItemTriggered);
        const QSignalSpy activated(&item, &platform::StatusItem::activated);
        const auto s = [](const char* text) { return QString::fromUtf8(text); };
        // Opened, a disabled entry, a separator and one that is not there choose nothing.
        QCOMPARE(callMenu(s("EventGroup"), {s("[(1, 'opened', <0>, 0), (3, 'clicked', <0>, 0), "
                                              "(2, 'clicked', <0>, 0), (4, 'clicked', <0>, 0), "
                                              "(9, 'clicked', <0>, 0)]")}),
                 s("([9],)"));
        callMenu(s("Event"), {s("1"), s("clicked"), s("<0>"), s("0")});
        QTRY_COMPARE(triggered, (QList<QVariantList>{{4}, {1}}));

        callItem(s("ProvideXdgActivationToken"), {s("token")});
        callItem(s("Scroll"), {s("1"), s("vertical")});
        QCOMPARE(activated.count(), 0);
        callItem(s("Activate"), {s("-5"), s("7")});
        callItem(s("ContextMenu"), {s("1"), s("2")});
        QCOMPARE(activated,
                 (QList<QVariantList>{{QPoint(-5, 7), s("token")}, {QPoint(1, 2), QString()}}));
    }

    void followsTheDesktop() {
        platform::StatusItem item(m_id, m_program);
        const QSignalSpy changes(&item, &platform::StatusItem::hostAvailableChanged);
        const QStringList greeting{m_program.baseService(),
                                   QStringLiteral("IsStatusNotifierHostRegistered")};
        for (int restart = 0; restart < 2; ++restart) {
            Watcher watcher(m_bus);
            QTRY_COMPARE(watcher.calls, greeting);
            QVERIFY(!item.isHostAvailable());
            watcher.setHasHost(true);
            QTRY_VERIFY(item.isHostAvailable());
            watcher.setHasHost(false);
            QTRY_VERIFY(!item.isHostAvailable());
            watcher.setHasHost(true);
            QTRY_VERIFY(item.isHostAvailable());
        }
        QTRY_VERIFY(!item.isHostAvailable());
        QCOMPARE(changes.count(), 8);
    }

    void isQuietWithoutABus() {
        platform::StatusItem item(m_id, QDBusConnection(QStringLiteral("none")));
        fill(item);
        item.setMenu({});
        QCoreApplication::processEvents();
        QVERIFY(!item.isHostAvailable());
    }
};

TALLYVANE_TEST_MAIN(StatusItemTest)
#include "status_item_test.moc"
