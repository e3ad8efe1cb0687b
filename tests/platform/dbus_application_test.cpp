#include "platform/linux/dbus_application.h"
#include "platform/linux/dbus_widget_centre.h"
#include "support/private_bus.h"
#include "support/test_main.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QPromise>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCall>
#include <QtTest/QSignalSpy>

#include <algorithm>
#include <list>
#include <signal.h>

using namespace tallyvane;

namespace {

/// One start of the program of one_instance.cpp.
struct Start {
    explicit Start(const QString& token = {}) {
        process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/one_instance"),
                      {token});
    }
    ~Start() {
        process.kill();
        process.waitForFinished();
    }
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;

    bool hasSaid(const QByteArray& line) {
        output += process.readAllStandardOutput();
        return ("\n" + output).contains("\n" + line + "\n");
    }
    [[nodiscard]] bool hasEnded() const { return process.state() == QProcess::NotRunning; }

    QProcess process;
    QByteArray output;
};

QDBusMessage call(const char* interface, const char* method, const QVariantList& arguments = {}) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.corvelle.Tallyvane"), QStringLiteral("/org/corvelle/Tallyvane"),
        QString::fromLatin1(interface), QString::fromLatin1(method));
    message.setArguments(arguments);
    return message;
}

QDBusMessage applicationCall(const char* method, const QVariantList& arguments) {
    return call("org.freedesktop.Application", method, arguments);
}

QDBusMessage actionCall(const char* action) {
    return applicationCall("ActivateAction",
                           {QString::fromLatin1(action), QVariantList(), QVariantMap()});
}

QCoro::Task<bool> resultOf(QFuture<bool> refresh) {
    co_return co_await refresh;
}

} // namespace

class DBusApplicationTest : public tests::HermeticTest {
    Q_OBJECT

    const tests::PrivateBus m_bus;
    QDBusConnection m_caller =
        QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("caller"));
    QList<QVariantList> m_widgetSignals; // member and arguments

private Q_SLOTS:
    void startsOnce() {
        constexpr int starts = 5;
        std::list<Start> all;
        for (int i = 0; i < starts; ++i) {
            all.emplace_back(QStringLiteral("token%1").arg(i));
        }
        QTRY_COMPARE_WITH_TIMEOUT(std::ranges::count_if(all, &Start::hasEnded), starts - 1, 30'000);
        Start& owner = *std::ranges::find(all, false, &Start::hasEnded);
        for (Start& start : all) {
            QCOMPARE(start.hasSaid("owner"), &start == &owner);
            QCOMPARE(start.process.exitCode(), 0);
            const QByteArray token = start.process.arguments().value(0).toUtf8();
            QCOMPARE(owner.hasSaid("activated " + token), &start != &owner);
        }
    }

    void answersTheDesktop() {
        Start owner;
        QTRY_VERIFY(owner.hasSaid("owner"));
        const auto isUnderstood = [this](const QDBusMessage& message) {
            return m_caller.call(message).type() == QDBusMessage::ReplyMessage;
        };
        const QVariantMap data{{QStringLiteral("desktop-startup-id"), QStringLiteral("X")}};
        QVERIFY(isUnderstood(applicationCall("Activate", {data})));
        QVERIFY(isUnderstood(applicationCall("Open", {QStringList(), QVariantMap()})));
        QVERIFY(isUnderstood(actionCall("refresh")));
        QVERIFY(!isUnderstood(actionCall("shout")));
        QTRY_VERIFY(owner.hasSaid("refresh"));
        QCOMPARE(owner.output, "owner\nactivated X\nactivated \nrefresh\n");
        m_caller.send(actionCall("quit"));
        QTRY_VERIFY(owner.hasEnded());
        QCOMPARE(owner.process.exitCode(), 0);
    }

    void endsOnASignal() {
        for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
            Start start;
            QTRY_VERIFY(start.hasSaid("owner"));
            ::kill(static_cast<pid_t>(start.process.processId()), number);
            QTRY_VERIFY(start.hasEnded());
            QVERIFY(start.hasSaid("terminated"));
            QCOMPARE(start.process.exitStatus(), QProcess::NormalExit);
        }
    }

    void runsWithoutABus() {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
        Start start;
        QTRY_VERIFY(start.hasSaid("no bus"));
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address().toUtf8());
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

    /// Last, since this process keeps the name.
    void repliesWhenTheRefreshHasEnded() {
        QPromise<bool> result;
        platform::DBusApplication application([&] { return resultOf(result.future()); });
        QCOMPARE(application.registerOnBus(), platform::DBusApplication::Registration::owner);
        for (const bool isStored : {true, false}) {
            result = QPromise<bool>();
            result.start();
            const QDBusPendingCall refresh =
                m_caller.asyncCall(call("org.corvelle.Tallyvane.Control", "Refresh"));
            const QSignalSpy asked(&application, &platform::DBusApplication::activated);
            m_caller.call(applicationCall("Activate", {QVariantMap()}), QDBus::BlockWithGui);
            QCOMPARE(asked.count(), 1); // calls and their replies keep their order
            QVERIFY(!refresh.isFinished());
            result.addResult(isStored);
            result.finish();
            QTRY_VERIFY(refresh.isFinished());
            QCOMPARE(refresh.reply().arguments(), QVariantList{isStored});
        }
    }

public Q_SLOTS:
    void receive(const QDBusMessage& signal) {
        m_widgetSignals.append(QVariantList{signal.member()} + signal.arguments());
    }
};

TALLYVANE_TEST_MAIN(DBusApplicationTest)
#include "dbus_application_test.moc"
