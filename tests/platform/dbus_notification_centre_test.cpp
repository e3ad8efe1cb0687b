#include "platform/linux/dbus_notification_centre.h"
#include "support/private_bus.h"
#include "support/running_program.h"
#include "support/test_main.h"
#include "support/virtual_display.h"

#include <QtCore/QTimer>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVariant>
#include <QtDBus/QDBusVirtualObject>
#include <QtTest/QSignalSpy>

using namespace tallyvane;
using namespace std::chrono_literals;
using platform::DBusNotificationCentre;

namespace {

const QString serviceName = QStringLiteral("org.freedesktop.Notifications");
const QString servicePath = QStringLiteral("/org/freedesktop/Notifications");
const platform::Notification reset{.identifier = QStringLiteral("reset-claude-1750000000.5"),
                                   .title = QStringLiteral("Tallyvane"),
                                   .body = QStringLiteral("您的 Claude token 已经重置了。")};

/// A daemon of any name, on a connection of its own. It takes notifications with the id 7, and
/// answers no call when it has no name.
class ScriptedDaemon final : public QDBusVirtualObject {
public:
    explicit ScriptedDaemon(const char* name) : m_name(QString::fromLatin1(name)) {
        bus.registerVirtualObject(servicePath, this);
        bus.registerService(serviceName);
    }
    ~ScriptedDaemon() override { QDBusConnection::disconnectFromBus(bus.name()); }
    ScriptedDaemon(const ScriptedDaemon&) = delete;
    ScriptedDaemon& operator=(const ScriptedDaemon&) = delete;

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& /*bus*/) override {
        ++calls;
        QVariant answer = m_name; // of GetServerInformation
        if (call.member() == u"Notify") {
            answer = uint{7};
        } else if (call.member() == u"Get") {
            answer = QVariant::fromValue(QDBusVariant(isInhibited));
        }
        return m_name.isEmpty() || bus.send(call.createReply(answer));
    }

    void emitSignal(const char* name, uint id, const char* text) {
        bus.send(QDBusMessage::createSignal(servicePath, serviceName, QString::fromLatin1(name))
                 << id << QString::fromLatin1(text));
    }

    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus,
                                                        QStringLiteral("scripted daemon"));
    bool isInhibited = false;
    int calls = 0;

private:
    QString m_name;
};

} // namespace

class DBusNotificationCentreTest : public tests::HermeticTest {
    Q_OBJECT

    std::optional<tests::PrivateBus> m_bus{std::in_place};
    tests::VirtualDisplay m_display;
    DBusNotificationCentre m_centre;

    [[nodiscard]] bool isOn() { return QCoro::waitFor(m_centre.isAuthorized()); }

    static bool isOwned(const QString& name) {
        return QDBusConnection::sessionBus().interface()->isServiceRegistered(name);
    }

private Q_SLOTS:
    void init() {
        HermeticTest::init();
        QTRY_VERIFY(!isOwned(serviceName));
    }

    void nobodyToCall() {
        m_centre.post(reset);
        QVERIFY(!isOn());
    }

    void dunstShowsIt() {
        tests::RunningProgram monitor("dbus-monitor --session member=Notify");
        QByteArray seen;
        const auto sees = [&](const char* text) {
            return (seen += monitor.readAllStandardOutput()).contains(text);
        };
        QTRY_VERIFY(sees("NameLost")); // it is listening
        const tests::RunningProgram dunst("dunst");
        QTRY_VERIFY(isOwned(serviceName));
        const QSignalSpy activated(&m_centre, &DBusNotificationCentre::activated);
        m_centre.post(reset);
        QTRY_VERIFY(sees("int32 -1"));
        seen.remove(0, seen.indexOf("member=Notify"));
        QCOMPARE(QString::fromUtf8(seen.simplified()),
                 QStringLiteral(
                     "member=Notify string \"Tallyvane\" uint32 0 string \"org.corvelle.Tallyvane\""
                     " string \"Tallyvane\" string \"您的 Claude token 已经重置了。\""
                     " array [ string \"default\" string \"Open Tallyvane\" ] array ["
                     " dict entry( string \"desktop-entry\""
                     " variant string \"org.corvelle.Tallyvane\" )"
                     " dict entry( string \"sound-name\" variant string \"message-new-instant\" )"
                     " dict entry( string \"urgency\" variant byte 1 )"
                     " dict entry( string \"x-tallyvane-identifier\""
                     " variant string \"reset-claude-1750000000.5\" ) ] int32 -1"));
        // Only what dunst has on its display can be acted on.
        QTRY_VERIFY(std::system("test $(dunstctl count displayed) = 1") == 0);
        QCOMPARE(std::system("dunstctl action"), 0);
        QTRY_COMPARE(activated.size(), 1);
    }

    void canBeTurnedOff_data() {
        QTest::addColumn<QByteArray>("daemon"); // a program; empty: a stand-in for GNOME Shell
        QTest::addColumn<QByteArray>("command");
        const auto row = [](const char* name, const char* daemon, const QByteArray& command) {
            QTest::newRow(name) << QByteArray(daemon) << command;
        };
        row("dunst", "dunst", "dunstctl set-paused true");
        row("Xfce", "/usr/lib/*/xfce4/notifyd/xfce4-notifyd",
            "xfconf-query -c xfce4-notifyd -p /do-not-disturb -n -t bool -s true");
        const QByteArray set = "gsettings set org.gnome.desktop.notifications";
        row("GNOME, for all", "", set + " show-banners false");
        row("GNOME, for us", "",
            set + ".application:/org/gnome/desktop/notifications/"
                  "application/org-corvelle-tallyvane/ enable false");
    }

    void canBeTurnedOff() {
        QFETCH(QByteArray, daemon);
        QFETCH(QByteArray, command);
        const QTemporaryDir configuration;
        qputenv("XDG_CONFIG_HOME", configuration.path().toUtf8());
        qputenv("GSETTINGS_BACKEND", "keyfile");
        const tests::RunningProgram xfconf("/usr/lib/*/xfce4/xfconf/xfconfd");
        QTRY_VERIFY(isOwned(QStringLiteral("org.xfce.Xfconf")));
        std::optional<tests::RunningProgram> program;
        std::optional<ScriptedDaemon> gnome;
        daemon.isEmpty() ? void(gnome.emplace("gnome-shell")) : void(program.emplace(daemon));
        QTRY_VERIFY(isOwned(serviceName));
        QVERIFY(isOn());
        QCOMPARE(std::system(command.constData()), 0);
        QVERIFY(!isOn());
    }

    void plasmaCanBeInhibited() {
        ScriptedDaemon daemon("Plasma");
        QVERIFY(isOn());
        daemon.isInhibited = true;
        QVERIFY(!isOn());
    }

    void passesTheTokenOn() {
        ScriptedDaemon daemon("another");
        QVERIFY(isOn());
        QSignalSpy activated(&m_centre, &DBusNotificationCentre::activated);
        m_centre.post(reset);
        QTRY_COMPARE(daemon.calls, 2);
        daemon.emitSignal("ActionInvoked", 8, "default"); // not ours
        daemon.emitSignal("ActionInvoked", 7, "other");
        daemon.emitSignal("ActivationToken", 7, "token");
        daemon.emitSignal("ActionInvoked", 7, "default");
        QTRY_COMPARE(activated.size(), 1);
        QCOMPARE(activated[0][0], QStringLiteral("token"));
    }

    void aSilentDaemonBlocksNobody() {
        const ScriptedDaemon daemon("");
        DBusNotificationCentre centre(100ms);
        centre.post(reset);
        auto answer = centre.isAuthorized();
        QVERIFY(!answer.isReady());
        QTRY_COMPARE(daemon.calls, 2); // the loop runs
        QTRY_VERIFY(answer.isReady());
        QVERIFY(QCoro::waitFor(std::move(answer)));
    }

    void noBus() {
        m_bus.reset();
        QTRY_VERIFY(!QDBusConnection::sessionBus().isConnected());
        m_centre.post(reset);
        QVERIFY(!isOn());
    }
};

TALLYVANE_TEST_MAIN(DBusNotificationCentreTest)
#include "dbus_notification_centre_test.moc"
