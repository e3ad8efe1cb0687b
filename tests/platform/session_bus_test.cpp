#include "platform/linux/dbus_application.h"
#include "platform/linux/dbus_notification_centre.h"
#include "platform/linux/notification_settings_page.h"
#include "support/scripted_service.h"
#include "support/xfce_desktop.h"

#include <QtDBus/QDBusConnectionInterface>

using namespace tallyvane;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using platform::DBusApplication;
using platform::DBusNotificationCentre;

namespace {

/// A daemon that names itself `name`, or never answers if that is empty. It gives notifications the
/// id 7.
struct ScriptedDaemon final : tests::ScriptedService {
    explicit ScriptedDaemon(const QString& ownName)
        : ScriptedService({u"org.freedesktop.Notifications"_s},
                          u"/org/freedesktop/Notifications"_s),
          name(ownName) {}

    [[nodiscard]] QDBusMessage reply(const QDBusMessage& call) const override {
        return name.isEmpty()                 ? QDBusMessage()
               : call.member() == "Notify"_L1 ? call.createReply(7U)
               : call.member() == "Get"_L1    ? call.createReply(tests::variant(isInhibited))
                                              : call.createReply(name);
    }
    void tell(const QString& signal, uint id, const QString& text) {
        emitSignal({}, u"org.freedesktop.Notifications"_s, signal, {id, text});
    }

    QString name;
    bool isInhibited = false;
};

bool hasDaemon() {
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(
        u"org.freedesktop.Notifications"_s);
}

/// What the application answers to a call of this method.
QByteArray call(const QByteArray& call) {
    return tests::callOnBus(u"org.corvelle.Tallyvane"_s, "/org/corvelle/Tallyvane",
                            "org.freedesktop.Application." + call);
}

} // namespace

/// What the program offers on the session bus, and the notifications that it posts there.
class SessionBusTest : public tests::HermeticTest {
    Q_OBJECT

    const tests::XfceDesktop m_desktop;
    DBusApplication m_application{nullptr};
    DBusNotificationCentre m_centre{{u"/usr/bin"_s}, tests::inHome("config").toStdString()};

    static void reloadServices() {
        tests::callOnBus(u"org.freedesktop.DBus"_s, "/", "org.freedesktop.DBus.ReloadConfig");
    }
    [[nodiscard]] bool isOn() { return QCoro::waitFor(m_centre.isAuthorized()); }

private Q_SLOTS:
    void initTestCase() {
        QCOMPARE(m_application.registerOnBus(), DBusApplication::Registration::owner);
    }

    void init() {
        HermeticTest::init();
        TALLYVANE_TRY_VERIFY(!hasDaemon());
    }

    void answersTheDesktop() {
        const QSignalSpy activated(&m_application, &DBusApplication::activated);
        const QSignalSpy refreshRequested(&m_application, &DBusApplication::refreshRequested);
        call("Activate \"{'activation-token': <'T'>, 'desktop-startup-id': <'X'>}\"");
        call("Open [] \"{'desktop-startup-id': <'X'>}\"");
        QVERIFY(call("ActivateAction shout [] {}").startsWith("Error"));
        QCOMPARE(activated, (QList<QVariantList>{{u"T"_s}, {u"X"_s}}));
        QCOMPARE(call("ActivateAction refresh [] {}"), "()");
        QCOMPARE(refreshRequested.count(), 1);
    }

    void nobodyToCall() {
        m_centre.post({});
        QVERIFY(!isOn());
        // A daemon that the bus cannot start.
        tests::writeFile(tests::inHome("services/daemon.service"),
                         "[D-BUS Service]\nName=org.freedesktop.Notifications\nExec=/bin/false\n");
        reloadServices();
        QVERIFY(!isOn());
        QVERIFY(QFile::remove(tests::inHome("services/daemon.service")));
        reloadServices();
    }

    /// A daemon that has ended counts while the bus can start it, which isOn() leaves to others.
    void followsTheDaemon() {
        DBusNotificationCentre centre({}, {});
        const auto answer = [&centre] { return QCoro::waitFor(centre.isAuthorized()); };
        const QSignalSpy changed(&centre, &DBusNotificationCentre::authorizationChanged);
        QVERIFY(!answer());
        {
            const ScriptedDaemon daemon{u"another"_s};
            TALLYVANE_TRY_COMPARE(changed.count(), 1);
            QVERIFY(answer());
        }
        TALLYVANE_TRY_COMPARE(changed.count(), 2);
        QVERIFY(!answer());
        const QString started = tests::inHome("started");
        tests::writeFile(tests::inHome("services/daemon.service"),
                         "[D-BUS Service]\nName=org.freedesktop.Notifications\nExec=/bin/touch " +
                             started.toUtf8());
        reloadServices();
        QVERIFY(answer());
        QVERIFY(!QFile::exists(started));
        QVERIFY(QFile::remove(tests::inHome("services/daemon.service")));
        reloadServices();
    }

    void canBeTurnedOff() {
        // Daemons, of which an empty one is a stand-in for GNOME Shell, and what turns them off.
        const std::pair<const char*, const char*> rows[] = {
            {"dunst", "dunstctl set-paused true"},
            {"/usr/lib/*/xfce4/notifyd/xfce4-notifyd",
             "xfconf-query -c xfce4-notifyd -p /do-not-disturb -n -t bool -s true"},
            {"/usr/lib/*/xfce4/notifyd/xfce4-notifyd",
             "xfconf-query -c xfce4-notifyd -p /applications/muted_applications -n -a "
             "-t string -s Other -t string -s Tallyvane"},
            {"", "gsettings set org.gnome.desktop.notifications show-banners false"},
            {"", "gsettings set org.gnome.desktop.notifications.application:/org/gnome/desktop/"
                 "notifications/application/org-corvelle-tallyvane/ enable false"},
        };
        qputenv("GSETTINGS_BACKEND", "keyfile");
        tests::output("gdbus wait --session --timeout 30 org.xfce.Xfconf");
        for (const auto& [daemon, command] : rows) {
            TALLYVANE_TRY_VERIFY(!hasDaemon());
            const QTemporaryDir configuration;
            qputenv("XDG_CONFIG_HOME", configuration.path().toUtf8());
            std::optional<tests::RunningProgram> program;
            std::optional<ScriptedDaemon> gnome;
            *daemon == '\0' ? void(gnome.emplace(u"gnome-shell"_s)) : void(program.emplace(daemon));
            TALLYVANE_TRY_VERIFY(hasDaemon());
            std::ignore = std::system("xfconf-query -c xfce4-notifyd -p / -r -R");
            QVERIFY2(isOn(), command);
            QCOMPARE(std::system(command), 0);
            QVERIFY2(!isOn(), command);
        }
    }

    void plasmaCanBeTurnedOff() {
        ScriptedDaemon daemon{u"Plasma"_s};
        const std::tuple<bool, const char*, bool> rows[] = {
            {false, "ShowPopups=true\n[Applications][other]\nShowPopups=false\n", true},
            {true, "", false},
            {false, "Seen=true\nShowPopups=false\n", false}};
        for (const auto& [isInhibited, ours, expected] : rows) {
            daemon.isInhibited = isInhibited;
            tests::writeFile(tests::inHome("config/plasmanotifyrc"),
                             "[Applications][org.corvelle.Tallyvane]\n" + QByteArray(ours));
            QCOMPARE(isOn(), expected);
        }
    }

    void needsNoAnswer() {
        ScriptedDaemon daemon{u"gnome-shell"_s};
        for (const char* script : {"#!/bin/sh\nexec sleep 1000", "#!/nowhere"}) {
            tests::writeFile(tests::inHome("bin/gsettings"), script);
            DBusNotificationCentre centre({tests::inHome("bin")}, {}, 100ms);
            QVERIFY(QCoro::waitFor(centre.isAuthorized()));
        }
        daemon.name.clear();
        DBusNotificationCentre centre({}, {}, 100ms);
        QVERIFY(QCoro::waitFor(centre.isAuthorized()));
    }

    void postsAndHearsOfTheClick() {
        ScriptedDaemon daemon{u"another"_s};
        QVERIFY(isOn());
        const QSignalSpy activated(&m_centre, &DBusNotificationCentre::activated);
        const QString identifier = u"reset-claude-1750000000.5"_s;
        m_centre.post({.identifier = identifier, .title = u"Title"_s, .body = u"您的"_s});
        TALLYVANE_TRY_COMPARE(daemon.calls.size(), 2);
        QVariantList arguments = daemon.calls.at(1).arguments();
        const QVariantMap hints{{u"desktop-entry"_s, u"org.corvelle.Tallyvane"_s},
                                {u"sound-name"_s, u"message-new-instant"_s},
                                {u"urgency"_s, QVariant::fromValue(uchar{1})},
                                {u"x-tallyvane-identifier"_s, identifier}};
        QCOMPARE(qdbus_cast<QVariantMap>(arguments.takeAt(6)), hints);
        const QStringList actions{u"default"_s, u"Open Tallyvane"_s};
        QCOMPARE(arguments, (QVariantList{u"Tallyvane"_s, 0U, u"org.corvelle.Tallyvane"_s,
                                          u"Title"_s, u"您的"_s, actions, -1}));
        daemon.tell(u"ActivationToken"_s, 8, u"token"_s); // not ours
        daemon.tell(u"ActionInvoked"_s, 8, u"default"_s);
        daemon.tell(u"ActionInvoked"_s, 7, u"other"_s);
        daemon.tell(u"ActivationToken"_s, 7, u"token"_s);
        daemon.tell(u"ActionInvoked"_s, 7, u"default"_s);
        TALLYVANE_TRY_COMPARE(activated, QList<QVariantList>{{u"token"_s}});
    }

    void findsTheSettingsPage() {
        const QString program = tests::inHome("bin/gnome-control-center");
        tests::writeFile(program, {});
        const auto page = [](const QString& desktop) {
            return platform::notificationSettingsPage(desktop, {tests::inHome("bin")});
        };
        const auto found = page(u"X-Cinnamon:GNOME"_s); // the first one's is not installed
        QVERIFY(found && found->program == program);
        QCOMPARE(found->arguments, QStringList{u"notifications"_s});
        QVERIFY(!page(u"sway"_s));
    }
};

TALLYVANE_TEST(SessionBusTest)
#include "session_bus_test.moc"
