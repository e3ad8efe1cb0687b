#include "model/file_descriptor.h"
#include "platform/linux/secret_service_store.h"
#include "support/descriptor_limit.h"
#include "support/gnome_keyring.h"
#include "support/private_bus.h"
#include "support/test_main.h"

#include <QtCore/QTimer>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusVirtualObject>
#include <QtNetwork/QLocalServer>

#include <list>

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

    /// Why a lookup of little patience gave nothing, unless the event loop stood still meanwhile.
    static QString reasonWithoutBlocking() {
        int ticks = 0;
        QTimer ticker;
        connect(&ticker, &QTimer::timeout, [&ticks] { ++ticks; });
        ticker.start(1);
        platform::SecretServiceStore store(100ms);
        auto lookup = store.lookup(service);
        const bool isReady = QTest::qWaitFor([&lookup] { return lookup.isReady(); }, 10'000);
        return isReady && ticks > 0 ? reason(QCoro::waitFor(lookup)) : QString();
    }

    /// Why there is no secret; "found" when there is one.
    static QString reason(const platform::SecretLookup& result) {
        return result ? QStringLiteral("found") : result.error().reason;
    }

private Q_SLOTS:
    void readsTheKeyring() {
        const tests::PrivateBus bus;
        platform::SecretServiceStore store;
        const auto lookup = [&store](const QString& name) {
            return QCoro::waitFor(store.lookup(name));
        };
        QCOMPARE(reason(lookup(service)), QString()); // nobody has the name
        const tests::GnomeKeyring keyring;
        QTRY_VERIFY(tests::GnomeKeyring::store(QStringLiteral("other"), "wrong"));
        QCOMPARE(reason(lookup(service)), QString());
        QVERIFY(tests::GnomeKeyring::store(QStringLiteral("service"), "s\xc3\xa9"
                                                                      "cret"));
        QCOMPARE(lookup(service).value().bytes, QByteArray("s\xc3\xa9"
                                                           "cret"));
        QCOMPARE(reason(lookup(QStringLiteral("Other"))), QString());
        QVERIFY(lockKeyring(connectTo(bus)));
        QCOMPARE(reason(lookup(service)), QString());
    }

    void tellsOfASilentService() {
        const tests::PrivateBus bus;
        const SilentKeyring keyring(bus);
        QCOMPARE(reasonWithoutBlocking(), QStringLiteral("it did not answer in time"));
        QVERIFY(keyring.object.calls > 0);
    }

    void survivesTheEndOfTheBus() {
        auto bus = std::make_unique<tests::PrivateBus>();
        const SilentKeyring keyring(*bus);
        platform::SecretServiceStore store(1h);
        auto lookup = store.lookup(service);
        QTRY_VERIFY(keyring.object.calls > 0);
        bus.reset();
        QCOMPARE(reason(QCoro::waitFor(std::move(lookup))), QString());
    }

    void tellsOfMissingDescriptors() {
        const tests::PrivateBus bus;
        platform::SecretServiceStore store;
        for (int spare = 0; spare < 20; ++spare) {
            const tests::DescriptorLimit limit(100);
            std::list<model::FileDescriptor> all;
            while (all.emplace_back("/", O_PATH).get() >= 0) {
            }
            for (int i = 0; i <= spare; ++i) {
                all.pop_front();
            }
            auto lookup = store.lookup(service);
            QTRY_VERIFY(lookup.isReady());
            const QString told = reason(QCoro::waitFor(lookup));
            QVERIFY2(told.isEmpty() || told == u"Too many open files", qPrintable(told));
            QVERIFY(spare > 0 || !told.isEmpty());
        }
    }

    void tellsOfASilentBus() {
        const QTemporaryDir directory;
        QLocalServer bus;
        QVERIFY(bus.listen(directory.filePath(QStringLiteral("bus"))));
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + bus.fullServerName().toUtf8());
        QCOMPARE(reasonWithoutBlocking(), QStringLiteral("it did not answer in time"));
        QVERIFY(bus.hasPendingConnections());
    }
};

TALLYVANE_TEST_MAIN(SecretServiceStoreTest)
#include "secret_service_store_test.moc"
