#include "model/file_descriptor.h"
#include "platform/linux/secret_service_store.h"
#include "support/descriptor_limit.h"
#include "support/gnome_keyring.h"
#include "support/private_bus.h"
#include "support/scripted_service.h"
#include "support/test_main.h"

#include <QtCore/QTimer>
#include <QtDBus/QDBusObjectPath>
#include <QtNetwork/QLocalServer>

#include <list>

using namespace tallyvane;
using namespace std::chrono_literals;

namespace {

const QString service = QStringLiteral("Claude Code-credentials");

bool lockKeyring(const tests::PrivateBus& bus) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.secrets"), QStringLiteral("/org/freedesktop/secrets"),
        QStringLiteral("org.freedesktop.Secret.Service"), QStringLiteral("Lock"));
    call << QVariant::fromValue(
        QList{QDBusObjectPath(QStringLiteral("/org/freedesktop/secrets/collection/login"))});
    return QDBusConnection::connectToBus(bus.address(), bus.address()).call(call).type() ==
           QDBusMessage::ReplyMessage;
}

} // namespace

class SecretServiceStoreTest : public tests::HermeticTest {
    Q_OBJECT

    /// The reason why a lookup with little patience fails; empty if it blocks the event loop.
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

    /// Why there is no secret, or "found".
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
        QVERIFY(lockKeyring(bus));
        QCOMPARE(reason(lookup(service)), QString());
    }

    void reportsASilentService() {
        auto bus = std::make_unique<tests::PrivateBus>();
        tests::ScriptedService keyring({QStringLiteral("org.freedesktop.secrets")},
                                       QStringLiteral("/org/freedesktop/secrets"),
                                       [](const QDBusMessage&) { return QDBusMessage(); });
        QCOMPARE(reasonWithoutBlocking(), QStringLiteral("it did not answer in time"));
        QVERIFY(!keyring.calls.isEmpty());
        keyring.calls.clear();
        platform::SecretServiceStore store(1h);
        auto lookup = store.lookup(service);
        QTRY_VERIFY(!keyring.calls.isEmpty());
        bus.reset(); // ends the lookup, but not the program
        QCOMPARE(reason(QCoro::waitFor(std::move(lookup))), QString());
    }

    void reportsMissingDescriptors() {
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

    void reportsASilentBus() {
        const QTemporaryDir directory;
        QLocalServer bus;
        QVERIFY(bus.listen(directory.filePath(QStringLiteral("bus"))));
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + bus.fullServerName().toUtf8());
        QCOMPARE(reasonWithoutBlocking(), QStringLiteral("it did not answer in time"));
        QVERIFY(bus.hasPendingConnections());
    }
};

TALLYVANE_TEST(SecretServiceStoreTest)
#include "secret_service_store_test.moc"
