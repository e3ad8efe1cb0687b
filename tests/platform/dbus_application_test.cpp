#include "platform/bus_tools.h"
#include "platform/linux/dbus_application.h"
#include "platform/linux/dbus_widget_centre.h"
#include "platform/linux/termination_signals.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QPromise>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCall>

#include <signal.h>

using namespace tallyvane;
using namespace Qt::StringLiterals;
using platform::DBusApplication;

namespace {

QCoro::Task<bool> resultOf(QFuture<bool> refresh) {
    co_return co_await refresh;
}

} // namespace

class DBusApplicationTest : public tests::HermeticTest {
    Q_OBJECT

    std::optional<tests::PrivateBus> m_bus{std::in_place};
    QDBusConnection m_caller = QDBusConnection::connectToBus(m_bus->address(), u"caller"_s);
    QPromise<bool> m_refresh;
    DBusApplication m_application{[this] { return resultOf(m_refresh.future()); }};

    /// What the application answers to a call of this method.
    static QByteArray call(const QByteArray& call) {
        return tests::callOnBus(u"org.corvelle.Tallyvane"_s, "/org/corvelle/Tallyvane",
                                "org.freedesktop.Application." + call);
    }

private Q_SLOTS:
    void initTestCase() {
        QCOMPARE(m_application.registerOnBus(), DBusApplication::Registration::owner);
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
        const QDBusPendingCall refresh = m_caller.asyncCall(request);
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

    void quitsWithTheBus() {
        const QSignalSpy quitRequested(&m_application, &DBusApplication::quitRequested);
        m_bus.reset();
        QTRY_COMPARE(quitRequested.count(), 1);
        QCOMPARE(m_application.registerOnBus(), DBusApplication::Registration::noBus);
    }

    void catchesTerminationSignals() {
        for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
            ::signal(number, SIG_DFL); // the test library has handlers of its own
            int calls = 0;
            {
                const platform::TerminationSignals signals([&calls] { ++calls; });
                ::raise(number);
                QCOMPARE(calls, 0);
                QTRY_COMPARE(calls, 1);
            }
            QVERIFY(::signal(number, SIG_IGN) == SIG_DFL);
            const platform::TerminationSignals ignored([&calls] { ++calls; });
            QVERIFY(::signal(number, SIG_DFL) == SIG_IGN);
        }
    }
};

TALLYVANE_TEST(DBusApplicationTest)
#include "dbus_application_test.moc"
