#include "platform/linux/dbus_application.h"
#include "platform/linux/dbus_widget_centre.h"
#include "platform/linux/termination_signals.h"
#include "support/private_bus.h"
#include "support/test_main.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QPromise>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCall>
#include <QtTest/QSignalSpy>

#include <signal.h>

using namespace tallyvane;
using platform::DBusApplication;

namespace {

QDBusMessage call(const char* interface, const char* method, const QVariantList& arguments = {}) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.corvelle.Tallyvane"), QStringLiteral("/org/corvelle/Tallyvane"),
        QString::fromLatin1(interface), QString::fromLatin1(method));
    message.setArguments(arguments);
    return message;
}

QCoro::Task<bool> resultOf(QFuture<bool> refresh) {
    co_return co_await refresh;
}

} // namespace

class DBusApplicationTest : public tests::HermeticTest {
    Q_OBJECT

    std::optional<tests::PrivateBus> m_bus{std::in_place};
    QDBusConnection m_caller =
        QDBusConnection::connectToBus(m_bus->address(), QStringLiteral("caller"));
    QPromise<bool> m_refresh;
    DBusApplication m_application{[this] { return resultOf(m_refresh.future()); }};
    QList<QVariantList> m_widgetSignals; // member and arguments

    /// Whether the application answers without an error.
    bool accepts(const char* method, const QVariantList& arguments) {
        return m_caller
                   .call(call("org.freedesktop.Application", method, arguments),
                         QDBus::BlockWithGui)
                   .type() == QDBusMessage::ReplyMessage;
    }
    bool acceptsAction(const char* action) {
        return accepts("ActivateAction",
                       {QString::fromLatin1(action), QVariantList(), QVariantMap()});
    }

private Q_SLOTS:
    void initTestCase() {
        QCOMPARE(m_application.registerOnBus(), DBusApplication::Registration::owner);
    }

    void answersTheDesktop() {
        const QSignalSpy activated(&m_application, &DBusApplication::activated);
        const QSignalSpy refreshRequested(&m_application, &DBusApplication::refreshRequested);
        const QSignalSpy quitRequested(&m_application, &DBusApplication::quitRequested);
        const QVariantMap data{{QStringLiteral("desktop-startup-id"), QStringLiteral("X")}};
        QVERIFY(accepts("Activate", {data}));
        QVERIFY(accepts("Open", {QStringList(), QVariantMap()}));
        QVERIFY(!acceptsAction("shout"));
        QCOMPARE(activated, (QList<QVariantList>{{QStringLiteral("X")}, {QString()}}));
        QVERIFY(acceptsAction("refresh"));
        QVERIFY(refreshRequested.count() == 1 && quitRequested.isEmpty());
        QVERIFY(acceptsAction("quit"));
        QVERIFY(refreshRequested.count() == 1 && quitRequested.count() == 1);
    }

    void repliesWhenTheRefreshHasEnded() {
        for (const bool isStored : {true, false}) {
            m_refresh = QPromise<bool>();
            m_refresh.start();
            const QDBusPendingCall refresh =
                m_caller.asyncCall(call("org.corvelle.Tallyvane.Control", "Refresh"));
            QVERIFY(accepts("Activate", {QVariantMap()})); // replies keep the order of the calls
            QVERIFY(!refresh.isFinished());
            m_refresh.addResult(isStored);
            m_refresh.finish();
            QTRY_VERIFY(refresh.isFinished());
            QCOMPARE(refresh.reply().arguments(), QVariantList{isStored});
        }
    }

    void notifiesWidgets() {
        for (const char* member : {"TimelinesReloaded", "AllTimelinesReloaded"}) {
            QVERIFY(m_caller.connect(QString(), QStringLiteral("/org/corvelle/Tallyvane"),
                                     QStringLiteral("org.corvelle.Tallyvane.Widgets"),
                                     QString::fromLatin1(member), this,
                                     SLOT(receive(QDBusMessage))));
        }
        platform::DBusWidgetCentre centre;
        centre.reloadTimelines(QStringLiteral("GaugewellWidget"));
        centre.reloadAllTimelines();
        const QList<QVariantList> expected{
            {QStringLiteral("TimelinesReloaded"), QStringLiteral("GaugewellWidget")},
            {QStringLiteral("AllTimelinesReloaded")}};
        QTRY_COMPARE(m_widgetSignals, expected);
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

public Q_SLOTS:
    void receive(const QDBusMessage& signal) {
        m_widgetSignals.append(QVariantList{signal.member()} + signal.arguments());
    }
};

TALLYVANE_TEST(DBusApplicationTest)
#include "dbus_application_test.moc"
