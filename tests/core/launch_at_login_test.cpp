#include "core/launch_at_login.h"
#include "model/shared_store.h"
#include "support/test_main.h"

#include <QtCore/QDir>

using namespace tallyvane;
using platform::LoginItemStatus;

namespace {

/// A login item that refuses every change, and counts them.
struct RefusingLoginItem final : platform::LoginItem {
    LoginItemStatus current = LoginItemStatus::notRegistered;
    QStringList calls;

    LoginItemStatus status() const override { return current; }
    std::expected<void, QString> enable() override { return refuse("enable"); }
    std::expected<void, QString> disable() override { return refuse("disable"); }

    std::expected<void, QString> refuse(const char* call) {
        calls << QString::fromLatin1(call);
        return std::unexpected(QStringLiteral("refused"));
    }
};

} // namespace

class LaunchAtLoginTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void changesOnlyWhatIsOtherwise_data() {
        QTest::addColumn<LoginItemStatus>("status");
        QTest::addColumn<bool>("wanted");
        QTest::addColumn<QString>("call");
        using enum LoginItemStatus;
        QTest::newRow("on again") << enabled << true << QString();
        QTest::newRow("off") << enabled << false << QStringLiteral("disable");
        QTest::newRow("on") << notRegistered << true << QStringLiteral("enable");
        QTest::newRow("off again") << notRegistered << false << QString();
        QTest::newRow("on, switched off elsewhere")
            << requiresApproval << true << QStringLiteral("enable");
        QTest::newRow("off, switched off elsewhere") << requiresApproval << false << QString();
        QTest::newRow("on, no program") << notFound << true << QStringLiteral("enable");
        QTest::newRow("off, no program") << notFound << false << QString();
    }

    void changesOnlyWhatIsOtherwise() {
        QFETCH(LoginItemStatus, status);
        QFETCH(bool, wanted);
        QFETCH(QString, call);
        RefusingLoginItem item;
        item.current = status;
        const auto result = core::setLaunchAtLogin(item, wanted);
        QCOMPARE(item.calls.join(u' '), call);
        QCOMPARE(result.has_value(), call.isEmpty());
        QCOMPARE(result ? QString() : result.error(),
                 call.isEmpty() ? QString() : QStringLiteral("refused"));
    }

    /// In the shared file of preferences, and in our own when that one cannot be opened.
    void asksOnce_data() {
        QTest::addColumn<bool>("hasSuite");
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<bool>("asks");
        QTest::newRow("first time") << true << QByteArray() << true;
        QTest::newRow("first time, no suite") << false << QByteArray() << true;
        QTest::newRow("malformed") << true << QByteArray("hasAskedLaunchAtLogin=perhaps\n") << true;
        QTest::newRow("no") << true << QByteArray("hasAskedLaunchAtLogin=false\n") << true;
        QTest::newRow("asked before")
            << true << QByteArray("hasAskedLaunchAtLogin=true\n") << false;
    }

    void asksOnce() {
        QFETCH(bool, hasSuite);
        QFETCH(QByteArray, stored);
        QFETCH(bool, asks);
        const QTemporaryDir config;
        const model::StoreLocations locations{.configHome = config.path().toStdString()};
        const auto openDefaults = [&locations] {
            return model::DefaultsStore::openFirst(locations.defaultsSuite(),
                                                   locations.standardDefaults());
        };
        if (hasSuite) {
            QFile file(locations.defaultsSuite());
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("[General]\n" + stored);
        } else {
            QVERIFY(std::filesystem::create_directory(locations.defaultsSuite()));
        }
        model::DefaultsStore defaults = openDefaults();
        QVERIFY(!core::takeLaunchQuestion(defaults, {.isTestHost = true}));
        QVERIFY(!core::takeLaunchQuestion(defaults, {.isFixtureMode = true}));
        QCOMPARE(core::takeLaunchQuestion(defaults, {}), asks);
        model::DefaultsStore nextRun = openDefaults();
        QVERIFY(!core::takeLaunchQuestion(nextRun, {}));
    }
};

TALLYVANE_TEST_MAIN(LaunchAtLoginTest)
#include "launch_at_login_test.moc"
