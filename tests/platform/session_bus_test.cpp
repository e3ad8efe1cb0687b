#include "platform/bus_tools.h"
#include "platform/linux/dbus_application.h"
#include "platform/linux/dbus_notification_centre.h"
#include "platform/linux/dbus_widget_centre.h"
#include "platform/linux/notification_settings_page.h"
#include "support/scripted_service.h"
#include "support/xfce_desktop.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QPromise>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusPendingCall>

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

QCoro::Task<bool> resultOf(QFuture<bool> refresh) {
    co_return co_await refresh;
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

    std::optional<tests::XfceDesktop> m_desktop{std::in_place};
    QPromise<bool> m_refresh;
    DBusApplication m_application{[this] { return resultOf(m_refresh.future()); }};
    DBusNotificationCentre m_centre{{u"/usr/bin"_s}};

    [[nodiscard]] bool isOn() { return QCoro::waitFor(m_centre.isAuthorized()); }

private Q_SLOTS:
    void initTestCase() {
        QCOMPARE(m_application.registerOnBus(), DBusApplication::Registration::owner);
    }

    void init() {
        HermeticTest::init();
        QTRY_VERIFY(!hasDaemon());
    }

    void answersTheDesktop() {
        const QSignalSpy activated(&m_application, &DBusApplication::activated);
        const QSignalSpy refreshRequested(&m_application, &DBusApplication::refreshRequested);
        const QSignalSpy quitRequested(&m_application, &DBusApplication::quitRequested);
        QCOMPARE(call("Activate \"{'activation-token': <'T'>, 'desktop-startup-id': <'X'>}\""),
                 "()");
        QCOMPARE(call("Open [] \"{'desktop-startup-id': <'X'>}\""), "()");
        QVERIFY(call("ActivateAction shout [] {}").startsWith("Error"));
        QCOMPARE(activated, (QList<QVariantList>{{u"T"_s}, {u"X"_s}}));
        QCOMPARE(call("ActivateAction refresh [] {}"), "()");
        QVERIFY(refreshRequested.count() == 1 && quitRequested.isEmpty());
        QCOMPARE(call("ActivateAction quit [] {}"), "()");
        QVERIFY(refreshRequested.count() == 1 && quitRequested.count() == 1);
    }

    void repliesWhenTheRefreshHasEnded() {
        const auto request = QDBusMessage::createMethodCall(
            u"org.corvelle.Tallyvane"_s, u"/org/corvelle/Tallyvane"_s,
            u"org.corvelle.Tallyvane.Control"_s, u"Refresh"_s);
        m_refresh.start();
        const QDBusPendingCall refresh =
            QDBusConnection::connectToBus(m_desktop->bus.address(), u"caller"_s).asyncCall(request);
        QCOMPARE(call("Activate {}"), "()"); // replies keep the order of the calls
        QVERIFY(!refresh.isFinished());
        m_refresh.addResult(true);
        m_refresh.finish();
        QTRY_VERIFY(refresh.isFinished());
        QCOMPARE(refresh.reply().arguments(), QVariantList{true});
    }

    void notifiesWidgets() {
        tests::SignalMonitor monitor(QDBusConnection::sessionBus().baseService());
        platform::DBusWidgetCentre centre;
        centre.reloadTimelines(u"GaugewellWidget"_s);
        centre.reloadAllTimelines();
        const QByteArrayList expected{
            "org.corvelle.Tallyvane.Widgets.TimelinesReloaded ('GaugewellWidget',)",
            "org.corvelle.Tallyvane.Widgets.AllTimelinesReloaded ()"};
        QCOMPARE(monitor.heard("AllTimelinesReloaded"), expected);
    }

    void nobodyToCall() {
        m_centre.post({});
        QVERIFY(!isOn());
        // A daemon that the bus cannot start.
        tests::writeFile(tests::inHome("services/daemon.service"),
                         "[D-BUS Service]\nName=org.freedesktop.Notifications\nExec=/bin/false\n");
        tests::callOnBus(u"org.freedesktop.DBus"_s, "/", "org.freedesktop.DBus.ReloadConfig");
        QVERIFY(!isOn());
    }

    void canBeTurnedOff() {
        // Daemons, of which an empty one is a stand-in for GNOME Shell, and what turns them off.
        const std::pair<const char*, const char*> rows[] = {
            {"dunst", "dunstctl set-paused true"},
            {"/usr/lib/*/xfce4/notifyd/xfce4-notifyd",
             "xfconf-query -c xfce4-notifyd -p /do-not-disturb -n -t bool -s true"},
            {"", "gsettings set org.gnome.desktop.notifications show-banners false"},
            {"", "gsettings set org.gnome.desktop.notifications.application:/org/gnome/desktop/"
                 "notifications/application/org-corvelle-tallyvane/ enable false"},
        };
        qputenv("GSETTINGS_BACKEND", "keyfile");
        tests::output("gdbus wait --session --timeout 30 org.xfce.Xfconf");
        for (const auto& [daemon, command] : rows) {
            QTRY_VERIFY(!hasDaemon());
            const QTemporaryDir configuration;
            qputenv("XDG_CONFIG_HOME", configuration.path().toUtf8());
            std::optional<tests::RunningProgram> program;
            std::optional<ScriptedDaemon> gnome;
            *daemon == '\0' ? void(gnome.emplace(u"gnome-shell"_s)) : void(program.emplace(daemon));
            QTRY_VERIFY(hasDaemon());
            QVERIFY2(isOn(), command);
            QCOMPARE(std::system(command), 0);
            QVERIFY2(!isOn(), command);
        }
    }

    void plasmaCanBeInhibited() {
        ScriptedDaemon daemon{u"Plasma"_s};
        QVERIFY(isOn());
        daemon.isInhibited = true;
        QVERIFY(!isOn());
    }

    void survivesABadGSettings() {
        const ScriptedDaemon daemon{u"gnome-shell"_s};
        for (const char* script : {"#!/bin/sh\nexec sleep 1000", "#!/nowhere"}) {
            tests::writeFile(tests::inHome("bin/gsettings"), script);
            DBusNotificationCentre centre({tests::inHome("bin")}, 100ms);
            QVERIFY(QCoro::waitFor(centre.isAuthorized()));
        }
    }

    void postsAndHearsOfTheClick() {
        ScriptedDaemon daemon{u"another"_s};
        QVERIFY(isOn());
        const QSignalSpy activated(&m_centre, &DBusNotificationCentre::activated);
        const QString identifier = u"reset-claude-1750000000.5"_s;
        m_centre.post({.identifier = identifier, .title = u"Title"_s, .body = u"您的"_s});
        QTRY_COMPARE(daemon.calls.size(), 2);
        QVariantList arguments = daemon.calls.at(1).arguments();
        const QVariantMap hints{{u"desktop-entry"_s, u"org.corvelle.Tallyvane"_s},
                                {u"sound-name"_s, u"message-new-instant"_s},
                                {u"urgency"_s, QVariant::fromValue(uchar{1})},
                                {u"x-tallyvane-identifier"_s, identifier}};
        QCOMPARE(qdbus_cast<QVariantMap>(arguments.takeAt(6)), hints);
        const QStringList actions{u"default"_s, u"Open Tallyvane"_s};
        QCOMPARE(arguments, (QVariantList{u"Tallyvane"_s, 0U, u"org.corvelle.Tallyvane"_s,
                                          u"Title"_s, u"您的"_s, actions, -1}));
        daemon.tell(u"ActionInvoked"_s, 8, u"default"_s); // not ours
        daemon.tell(u"ActionInvoked"_s, 7, u"other"_s);
        daemon.tell(u"ActivationToken"_s, 7, u"token"_s);
        daemon.tell(u"ActionInvoked"_s, 7, u"default"_s);
        QTRY_COMPARE(activated, QList<QVariantList>{{u"token"_s}});
    }

    void aSilentDaemonBlocksNobody() {
        const ScriptedDaemon daemon{{}};
        DBusNotificationCentre centre({}, 100ms);
        centre.post({});
        auto answer = centre.isAuthorized();
        QVERIFY(!answer.isReady());
        QTRY_COMPARE(daemon.calls.size(), 2); // the event loop runs
        QVERIFY(QCoro::waitFor(std::move(answer)));
    }

    void findsTheSettingsPage() {
        for (const char* name : {"bin/gnome-control-center", "bin/xfce4-notifyd-config"}) {
            tests::writeFile(tests::inHome(name), {});
        }
        const auto page = [](const QString& desktop) {
            const auto call = platform::notificationSettingsPage(desktop, {tests::inHome("bin")});
            return call ? (QStringList{QFileInfo(call->program).fileName()} + call->arguments)
                        : QStringList();
        };
        QCOMPARE(page(u"ubuntu:GNOME"_s),
                 (QStringList{u"gnome-control-center"_s, u"notifications"_s}));
        // The first one's is not installed.
        QCOMPARE(page(u"X-Cinnamon:XFCE"_s), QStringList{u"xfce4-notifyd-config"_s});
        QCOMPARE(page(u"sway"_s), QStringList());
    }

    void endsWithTheBus() {
        const QSignalSpy quitRequested(&m_application, &DBusApplication::quitRequested);
        m_desktop.reset();
        QTRY_COMPARE(quitRequested.count(), 1);
        QCOMPARE(m_application.registerOnBus(), DBusApplication::Registration::noBus);
        m_centre.post({});
        QVERIFY(!isOn());
    }
};

TALLYVANE_TEST(SessionBusTest)
#include "session_bus_test.moc"
