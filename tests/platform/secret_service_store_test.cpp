#include "model/file_descriptor.h"
#include "platform/linux/secret_service_store.h"
#include "support/descriptor_limit.h"
#include "support/gnome_keyring.h"
#include "support/private_bus.h"
#include "support/scripted_service.h"

#include <QtCore/QTimer>
#include <QtNetwork/QLocalServer>

#include <list>

using namespace tallyvane;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

class SecretServiceStoreTest : public tests::HermeticTest {
    Q_OBJECT

    const QString m_service = u"Claude Code-credentials"_s;

    /// The reason why a lookup with little patience fails; empty if it blocks the event loop.
    [[nodiscard]] QString reasonWithoutBlocking() const {
        int ticks = 0;
        QTimer ticker;
        connect(&ticker, &QTimer::timeout, [&ticks] { ++ticks; });
        ticker.start(1);
        platform::SecretServiceStore store(100ms);
        const QString told = reason(QCoro::waitFor(store.lookup(m_service)));
        return ticks > 0 ? told : QString();
    }

    /// Why there is no secret, or "found".
    static QString reason(const platform::SecretLookup& result) {
        return result ? u"found"_s : result.error().reason;
    }

private Q_SLOTS:
    void readsTheKeyring() {
        const tests::PrivateBus bus;
        platform::SecretServiceStore store;
        const auto lookup = [&store](const QString& name) {
            return QCoro::waitFor(store.lookup(name));
        };
        QCOMPARE(reason(lookup(m_service)), QString()); // nobody has the name
        const tests::GnomeKeyring keyring;
        QTRY_VERIFY(tests::GnomeKeyring::store(u"other"_s, "wrong"));
        QCOMPARE(reason(lookup(m_service)), QString());
        QVERIFY(tests::GnomeKeyring::store(u"service"_s, "sécret"));
        QCOMPARE(lookup(m_service).value().bytes, "sécret");
        QCOMPARE(reason(lookup(u"Other"_s)), QString());
        tests::callOnBus(u"org.freedesktop.secrets"_s, "/org/freedesktop/secrets",
                         "org.freedesktop.Secret.Service.Lock "
                         "\"['/org/freedesktop/secrets/collection/login']\"");
        QCOMPARE(reason(lookup(m_service)), QString());
    }

    void reportsASilentService() {
        auto bus = std::make_unique<tests::PrivateBus>();
        tests::ScriptedService keyring({u"org.freedesktop.secrets"_s},
                                       u"/org/freedesktop/secrets"_s);
        QCOMPARE(reasonWithoutBlocking(), u"it did not answer in time"_s);
        QVERIFY(!keyring.calls.isEmpty());
        keyring.calls.clear();
        platform::SecretServiceStore store(1h);
        auto lookup = store.lookup(m_service);
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
            const QString told = reason(QCoro::waitFor(store.lookup(m_service)));
            QVERIFY2(told.isEmpty() || told == u"Too many open files", qPrintable(told));
            QVERIFY(spare > 0 || !told.isEmpty());
        }
    }

    void reportsASilentBus() {
        const QTemporaryDir directory;
        QLocalServer bus;
        QVERIFY(bus.listen(directory.filePath(u"bus"_s)));
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + bus.fullServerName().toUtf8());
        QCOMPARE(reasonWithoutBlocking(), u"it did not answer in time"_s);
        QVERIFY(bus.hasPendingConnections());
    }
};

TALLYVANE_TEST(SecretServiceStoreTest)
#include "secret_service_store_test.moc"
