#include "platform/linux/secret_service_store.h"
#include "support/descriptor_limit.h"
#include "support/gnome_keyring.h"
#include "support/private_bus.h"
#include "support/scripted_service.h"

using namespace tallyvane;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

class SecretServiceStoreTest : public tests::HermeticTest {
    Q_OBJECT

    const QString m_service = u"Claude Code-credentials"_s;

    /// Why there is no secret, or "found".
    static QString reason(const platform::SecretLookup& result) {
        using Kind = platform::SecretStoreError::Kind;
        return result                                ? u"found"_s
               : result.error().kind == Kind::noItem ? u"no item"_s
               : result.error().kind == Kind::absent ? u"absent"_s
                                                     : result.error().reason;
    }

private Q_SLOTS:
    void readsTheKeyring() {
        const tests::PrivateBus bus;
        platform::SecretServiceStore store;
        const auto lookup = [&store](const QString& name) {
            return QCoro::waitFor(store.lookup(name));
        };
        QCOMPARE(reason(lookup(m_service)), u"absent"_s);
        const tests::GnomeKeyring keyring;
        TALLYVANE_TRY_VERIFY(tests::GnomeKeyring::store(u"other"_s, "wrong"));
        QCOMPARE(reason(lookup(m_service)), u"no item"_s);
        QVERIFY(tests::GnomeKeyring::store(u"service"_s, "sécret"));
        QCOMPARE(lookup(m_service).value().bytes, "sécret");
        QCOMPARE(reason(lookup(u"Other"_s)), u"no item"_s);
        tests::callOnBus(u"org.freedesktop.secrets"_s, "/org/freedesktop/secrets",
                         "org.freedesktop.Secret.Service.Lock "
                         "\"['/org/freedesktop/secrets/collection/login']\"");
        for (const QString& name : {m_service, u"Other"_s}) {
            QCOMPARE(reason(lookup(name)), u"it is locked"_s);
        }
    }

    void reportsASilentService() {
        auto bus = std::make_unique<tests::PrivateBus>();
        tests::ScriptedService keyring({u"org.freedesktop.secrets"_s},
                                       u"/org/freedesktop/secrets"_s);
        platform::SecretServiceStore hasty(100ms);
        QCOMPARE(reason(QCoro::waitFor(hasty.lookup(m_service))), u"it did not answer in time"_s);
        keyring.calls.clear();
        platform::SecretServiceStore patient(1h);
        auto lookup = patient.lookup(m_service);
        TALLYVANE_TRY_VERIFY(!keyring.calls.isEmpty());
        bus.reset(); // ends the lookup, but not the program
        QCOMPARE(reason(QCoro::waitFor(std::move(lookup))), u"absent"_s);
    }

    void reportsMissingDescriptors() {
        platform::SecretServiceStore store;
        const tests::DescriptorLimit limit(0);
        QCOMPARE(reason(QCoro::waitFor(store.lookup(m_service))), u"Too many open files"_s);
    }
};

TALLYVANE_TEST(SecretServiceStoreTest)
#include "secret_service_store_test.moc"
