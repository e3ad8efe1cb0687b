#include "platform/linux/dbus_application.h"
#include "support/private_bus.h"
#include "support/test_main.h"

#include <QCoro/QCoroSignal>
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

class Gate : public QObject {
    Q_OBJECT

public:
    QCoro::Task<bool> passed(bool result) {
        co_await qCoro(this, &Gate::opened);
        co_return result;
    }

Q_SIGNALS:
    void opened();
};

} // namespace

class DBusApplicationTest : public tests::HermeticTest {
    Q_OBJECT

    const tests::PrivateBus m_bus;
    QDBusConnection m_caller =
        QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("caller"));

private Q_SLOTS:
    void startsOnce_data() {
        QTest::addColumn<int>("starts");
        QTest::newRow("two") << 2;
        QTest::newRow("ten") << 10;
    }

    void startsOnce() {
        QFETCH(int, starts);
        std::list<Start> all;
        for (int i = 0; i < starts; ++i) {
            all.emplace_back(QStringLiteral("token%1").arg(i));
        }
        QTRY_COMPARE_WITH_TIMEOUT(std::ranges::count_if(all, &Start::hasEnded), starts - 1, 30'000);
        for (Start& start : all) {
            QCOMPARE(start.hasSaid("owner"), !start.hasEnded());
            QCOMPARE(start.process.exitCode(), 0);
        }
        Start& owner = *std::ranges::find(all, false, &Start::hasEnded);
        for (const Start& start : all) {
            const QByteArray token = start.process.arguments().value(0).toUtf8();
            QCOMPARE(owner.hasSaid("activated " + token), &start != &owner);
        }
    }

    void answersTheDesktop() {
        Start owner;
        QTRY_VERIFY(owner.hasSaid("owner"));
        const auto isUnderstood = [this](const char* method, const QVariantList& arguments) {
            return m_caller.call(applicationCall(method, arguments)).type() ==
                   QDBusMessage::ReplyMessage;
        };
        const QVariantMap data{{QStringLiteral("desktop-startup-id"), QStringLiteral("X")}};
        QVERIFY(isUnderstood("Activate", {data}));
        QVERIFY(isUnderstood("Open", {QStringList(), QVariantMap()}));
        QVERIFY(isUnderstood("ActivateAction",
                             {QStringLiteral("refresh"), QVariantList(), QVariantMap()}));
        QVERIFY(!isUnderstood("ActivateAction",
                              {QStringLiteral("shout"), QVariantList(), QVariantMap()}));
        QTRY_VERIFY(owner.hasSaid("refresh"));
        QCOMPARE(owner.output, "owner\nactivated X\nactivated \nrefresh\n");
        m_caller.send(applicationCall("ActivateAction",
                                      {QStringLiteral("quit"), QVariantList(), QVariantMap()}));
        QTRY_VERIFY(owner.hasEnded());
        QCOMPARE(owner.process.exitCode(), 0);
    }

    void endsWhenAskedByASignal_data() {
        QTest::addColumn<int>("number");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }

    void endsWhenAskedByASignal() {
        QFETCH(int, number);
        Start start;
        QTRY_VERIFY(start.hasSaid("owner"));
        ::kill(static_cast<pid_t>(start.process.processId()), number);
        QTRY_VERIFY(start.hasEnded());
        QVERIFY(start.hasSaid("terminated"));
        QCOMPARE(start.process.exitStatus(), QProcess::NormalExit);
    }

    void runsWithoutABus() {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
        Start start;
        QTRY_VERIFY(start.hasSaid("no bus"));
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address().toUtf8());
    }

    /// Last, since this process keeps the name.
    void repliesWhenTheRefreshHasEnded() {
        Gate gate;
        bool result = true;
        platform::DBusApplication application([&] { return gate.passed(result); });
        QCOMPARE(application.registerOnBus(), platform::DBusApplication::Registration::owner);
        for (const bool expected : {true, false}) {
            result = expected;
            const QDBusPendingCall refresh =
                m_caller.asyncCall(call("org.corvelle.Tallyvane.Control", "Refresh"));
            const QSignalSpy asked(&application, &platform::DBusApplication::activated);
            m_caller.send(applicationCall("Activate", {QVariantMap()}));
            QTRY_COMPARE(asked.count(), 1); // calls keep their order
            m_caller.call(QDBusMessage::createMethodCall(
                QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")));
            QVERIFY(!refresh.isFinished());
            Q_EMIT gate.opened();
            QTRY_VERIFY(refresh.isFinished());
            QCOMPARE(refresh.reply().arguments(), QVariantList{expected});
        }
    }
};

TALLYVANE_TEST_MAIN(DBusApplicationTest)
#include "dbus_application_test.moc"
