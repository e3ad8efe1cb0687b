#include "platform/linux/dbus_notification_centre.h"
#include "platform/linux/notification_settings_page.h"
#include "support/home_files.h"
#include "support/private_bus.h"
#include "support/running_program.h"
#include "support/scripted_service.h"
#include "support/test_main.h"
#include "support/virtual_display.h"

#include <QtDBus/QDBusConnectionInterface>
#include <QtTest/QSignalSpy>

using namespace tallyvane;
using namespace std::chrono_literals;
using platform::DBusNotificationCentre;

namespace {

const QString serviceName = QStringLiteral("org.freedesktop.Notifications");

/// A daemon that names itself `name`, or never answers if that is empty. It gives notifications the
/// id 7.
struct ScriptedDaemon {
    [[nodiscard]] QDBusMessage reply(const QDBusMessage& call) const {
        if (name.isEmpty()) {
            return {};
        }
        return call.member() == u"Notify" ? call.createReply(7U)
               : call.member() == u"Get"  ? call.createReply(tests::variant(isInhibited))
                                          : call.createReply(name);
    }

    void emitSignal(const char* signal, uint id, const char* text) {
        service.emitSignal("", "org.freedesktop.Notifications", signal,
                           {id, QString::fromLatin1(text)});
    }

    QString name;
    bool isInhibited = false;
    tests::ScriptedService service{{serviceName},
                                   QStringLiteral("/org/freedesktop/Notifications"),
                                   [this](const QDBusMessage& call) { return reply(call); }};
};

} // namespace

class DBusNotificationCentreTest : public tests::HermeticTest {
    Q_OBJECT

    std::optional<tests::PrivateBus> m_bus{std::in_place};
    tests::VirtualDisplay m_display;
    DBusNotificationCentre m_centre{{QStringLiteral("/usr/bin")}};

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
        m_centre.post({});
        QVERIFY(!isOn());
    }

    void canBeTurnedOff_data() {
        QTest::addColumn<QByteArray>("daemon"); // a program; empty: a stand-in for GNOME Shell
        QTest::addColumn<QByteArray>("command");
        const auto row = [](const char* daemon, const char* command) {
            QTest::newRow(command) << QByteArray(daemon) << QByteArray(command);
        };
        row("dunst", "dunstctl set-paused true");
        row("/usr/lib/*/xfce4/notifyd/xfce4-notifyd",
            "xfconf-query -c xfce4-notifyd -p /do-not-disturb -n -t bool -s true");
        row("", "gsettings set org.gnome.desktop.notifications show-banners false");
        row("", "gsettings set org.gnome.desktop.notifications.application:/org/gnome/desktop/"
                "notifications/application/org-corvelle-tallyvane/ enable false");
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
        daemon.isEmpty() ? void(gnome.emplace(QStringLiteral("gnome-shell")))
                         : void(program.emplace(daemon));
        QTRY_VERIFY(isOwned(serviceName));
        QVERIFY(isOn());
        QCOMPARE(std::system(command.constData()), 0);
        QVERIFY(!isOn());
    }

    void plasmaCanBeInhibited() {
        ScriptedDaemon daemon{QStringLiteral("Plasma")};
        QVERIFY(isOn());
        daemon.isInhibited = true;
        QVERIFY(!isOn());
    }

    void survivesABadGSettings() {
        for (const char* script : {"#!/bin/sh\nexec sleep 1000", "#!/nowhere"}) {
            const QTemporaryDir folder;
            tests::writeFile(folder.filePath(QStringLiteral("gsettings")), script);
            const ScriptedDaemon daemon{QStringLiteral("gnome-shell")};
            DBusNotificationCentre centre({folder.path()}, 100ms);
            auto answer = centre.isAuthorized();
            QTRY_VERIFY(answer.isReady());
            QVERIFY(QCoro::waitFor(std::move(answer)));
        }
    }

    void postsAndHearsOfTheClick() {
        ScriptedDaemon daemon{QStringLiteral("another")};
        QVERIFY(isOn());
        const QSignalSpy activated(&m_centre, &DBusNotificationCentre::activated);
        m_centre.post({.identifier = QStringLiteral("reset-claude-1750000000.5"),
                       .title = QStringLiteral("Title"),
                       .body = QStringLiteral("您的")});
        QTRY_COMPARE(daemon.service.calls.size(), 2);
        QVariantList arguments = daemon.service.calls.at(1).arguments();
        const QVariantMap hints{
            {QStringLiteral("desktop-entry"), QStringLiteral("org.corvelle.Tallyvane")},
            {QStringLiteral("sound-name"), QStringLiteral("message-new-instant")},
            {QStringLiteral("urgency"), QVariant::fromValue(uchar{1})},
            {QStringLiteral("x-tallyvane-identifier"),
             QStringLiteral("reset-claude-1750000000.5")}};
        QCOMPARE(qdbus_cast<QVariantMap>(arguments.takeAt(6)), hints);
        const QStringList actions{QStringLiteral("default"), QStringLiteral("Open Tallyvane")};
        QCOMPARE(
            arguments,
            (QVariantList{QStringLiteral("Tallyvane"), 0U, QStringLiteral("org.corvelle.Tallyvane"),
                          QStringLiteral("Title"), QStringLiteral("您的"), actions, -1}));
        daemon.emitSignal("ActionInvoked", 8, "default"); // not ours
        daemon.emitSignal("ActionInvoked", 7, "other");
        daemon.emitSignal("ActivationToken", 7, "token");
        daemon.emitSignal("ActionInvoked", 7, "default");
        QTRY_COMPARE(activated, QList<QVariantList>{{QStringLiteral("token")}});
    }

    void aSilentDaemonBlocksNobody() {
        const ScriptedDaemon daemon;
        DBusNotificationCentre centre({}, 100ms);
        centre.post({});
        auto answer = centre.isAuthorized();
        QVERIFY(!answer.isReady());
        QTRY_COMPARE(daemon.service.calls.size(), 2); // the event loop runs
        QTRY_VERIFY(answer.isReady());
        QVERIFY(QCoro::waitFor(std::move(answer)));
    }

    void findsTheSettingsPage() {
        const QTemporaryDir programs;
        for (const char* name : {"gnome-control-center", "xfce4-notifyd-config"}) {
            tests::writeFile(programs.filePath(QString::fromLatin1(name)), {});
        }
        const std::pair<const char*, const char*> rows[] = {
            {"ubuntu:GNOME", "gnome-control-center notifications"},
            {"X-Cinnamon:XFCE", "xfce4-notifyd-config"}, // the first one's is not installed
            {"sway", ""},
        };
        for (const auto& [desktop, expected] : rows) {
            const auto page =
                platform::notificationSettingsPage(QString::fromLatin1(desktop), {programs.path()});
            const QString call = page ? (QStringList{page->program} + page->arguments).join(u' ')
                                      : programs.filePath({});
            QCOMPARE(call, programs.filePath(QString::fromLatin1(expected)));
        }
    }

    void noBus() {
        m_bus.reset();
        QTRY_VERIFY(!QDBusConnection::sessionBus().isConnected());
        m_centre.post({});
        QVERIFY(!isOn());
    }
};

TALLYVANE_TEST(DBusNotificationCentreTest)
#include "dbus_notification_centre_test.moc"
