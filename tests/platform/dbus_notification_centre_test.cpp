#include "platform/linux/dbus_notification_centre.h"
#include "platform/linux/notification_settings_page.h"
#include "support/scripted_service.h"
#include "support/xfce_desktop.h"

#include <QtDBus/QDBusConnectionInterface>

using namespace tallyvane;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
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

} // namespace

class DBusNotificationCentreTest : public tests::HermeticTest {
    Q_OBJECT

    std::optional<tests::XfceDesktop> m_desktop{std::in_place};
    DBusNotificationCentre m_centre{{u"/usr/bin"_s}};

    [[nodiscard]] bool isOn() { return QCoro::waitFor(m_centre.isAuthorized()); }

private Q_SLOTS:
    void init() {
        HermeticTest::init();
        QTRY_VERIFY(!hasDaemon());
    }

    void nobodyToCall() {
        m_centre.post({});
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

    void noBus() {
        m_desktop.reset();
        QTRY_VERIFY(!QDBusConnection::sessionBus().isConnected());
        m_centre.post({});
        QVERIFY(!isOn());
    }
};

TALLYVANE_TEST(DBusNotificationCentreTest)
#include "dbus_notification_centre_test.moc"
