#include "platform/linux/secret_service_store.h"
#include "support/gnome_keyring.h"
#include "support/private_bus.h"
#include "support/test_main.h"

#include <QtCore/QTimer>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusVirtualObject>
#include <QtNetwork/QLocalServer>

using namespace tallyvane;
using namespace std::chrono_literals;

namespace {

const QString service = QStringLiteral("Claude Code-credentials");

QDBusConnection connectTo(const tests::PrivateBus& bus) {
    return QDBusConnection::connectToBus(bus.address(), bus.address());
}

bool lockKeyring(QDBusConnection bus) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.secrets"), QStringLiteral("/org/freedesktop/secrets"),
        QStringLiteral("org.freedesktop.Secret.Service"), QStringLiteral("Lock"));
    call << QVariant::fromValue(
        QList{QDBusObjectPath(QStringLiteral("/org/freedesktop/secrets/collection/login"))});
    return bus.call(call).type() == QDBusMessage::ReplyMessage;
}

class SilentObject final : public QDBusVirtualObject {
public:
    int calls = 0;

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& /*message*/, const QDBusConnection& /*bus*/) override {
        ++calls;
        return true;
    }
};

/// Takes the name of the keyring on `bus` and never answers.
struct SilentKeyring {
    explicit SilentKeyring(const tests::PrivateBus& bus) {
        QDBusConnection connection = connectTo(bus);
        connection.registerVirtualObject(QStringLiteral("/org/freedesktop/secrets"), &object,
                                         QDBusConnection::SubPath);
        connection.registerService(QStringLiteral("org.freedesktop.secrets"));
    }

    SilentObject object;
};

} // namespace

class SecretServiceStoreTest : public tests::HermeticTest {
    Q_OBJECT

    /// Whether a lookup of little patience comes back empty while the event loop runs.
    static bool isMissWithoutBlocking() {
        int ticks = 0;
        QTimer ticker;
        connect(&ticker, &QTimer::timeout, [&ticks] { ++ticks; });
        ticker.start(1);
        platform::SecretServiceStore store(100ms);
        auto lookup = store.lookup(service);
        return QTest::qWaitFor([&lookup] { return lookup.isReady(); }, 10'000) && ticks > 0 &&
               !QCoro::waitFor(std::move(lookup));
    }

private Q_SLOTS:
    void readsTheKeyring() {
        const tests::PrivateBus bus;
        platform::SecretServiceStore store;
        QVERIFY(!QCoro::waitFor(store.lookup(service))); // nobody has the name
        const tests::GnomeKeyring keyring;
        QTRY_VERIFY(tests::GnomeKeyring::store(QStringLiteral("other"), "wrong"));
        QVERIFY(!QCoro::waitFor(store.lookup(service)));
        QVERIFY(tests::GnomeKeyring::store(QStringLiteral("service"), "s\xc3\xa9"
                                                                      "cret"));
        QCOMPARE(QCoro::waitFor(store.lookup(service)), QByteArray("s\xc3\xa9"
                                                                   "cret"));
        QVERIFY(!QCoro::waitFor(store.lookup(QStringLiteral("Other"))));
        QVERIFY(lockKeyring(connectTo(bus)));
        QVERIFY(!QCoro::waitFor(store.lookup(service)));
    }

    void aSilentServiceIsAMiss() {
        const tests::PrivateBus bus;
        const SilentKeyring keyring(bus);
        QVERIFY(isMissWithoutBlocking());
        QVERIFY(keyring.object.calls > 0);
    }

    void survivesTheEndOfTheBus() {
        auto bus = std::make_unique<tests::PrivateBus>();
        const SilentKeyring keyring(*bus);
        platform::SecretServiceStore store(1h);
        auto lookup = store.lookup(service);
        QTRY_VERIFY(keyring.object.calls > 0);
        bus.reset();
        QVERIFY(!QCoro::waitFor(std::move(lookup)));
    }

    void aSilentBusIsAMiss() {
        const QTemporaryDir directory;
        QLocalServer bus;
        QVERIFY(bus.listen(directory.filePath(QStringLiteral("bus"))));
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + bus.fullServerName().toUtf8());
        QVERIFY(isMissWithoutBlocking());
        QVERIFY(bus.hasPendingConnections());
    }
};

TALLYVANE_TEST_MAIN(SecretServiceStoreTest)
#include "secret_service_store_test.moc"
