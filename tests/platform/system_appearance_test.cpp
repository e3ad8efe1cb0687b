#include "platform/linux/system_appearance.h"
#include "support/private_bus.h"
#include "support/test_main.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVariant>
#include <QtTest/QSignalSpy>

using namespace tallyvane;
using platform::ColourScheme;

namespace {
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto colourScheme = QStringLiteral("color-scheme");
} // namespace

/// The settings portal, on whose bus nothing else is.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    uint scheme = 1;

public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key) { // NOLINT(*-identifier-naming)
        const bool isKnown =
            group == QLatin1StringView("org.freedesktop.appearance") && key == colourScheme;
        const QDBusVariant value(isKnown ? scheme : 7);
        return QDBusVariant(QVariant::fromValue(value));
    }
};

class SystemAppearanceTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void followsThePortal() {
        const tests::PrivateBus bus;
        QDBusConnection desktop =
            QDBusConnection::connectToBus(bus.address(), QStringLiteral("desktop"));
        Portal portal;
        QVERIFY(desktop.registerObject(portalPath, &portal, QDBusConnection::ExportAllSlots));
        QVERIFY(desktop.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));

        const platform::SystemAppearance appearance;
        const QSignalSpy changed(&appearance, &platform::SystemAppearance::colourSchemeChanged);
        QTRY_COMPARE(appearance.colourScheme(), ColourScheme::dark);
        const auto announce = [&](const QString& group, const QString& key, uint value) {
            QDBusMessage signal = QDBusMessage::createSignal(
                portalPath, QStringLiteral("org.freedesktop.portal.Settings"),
                QStringLiteral("SettingChanged"));
            signal << group << key << QVariant::fromValue(QDBusVariant(value));
            QVERIFY(desktop.send(signal));
        };
        announce(QStringLiteral("org.gnome.desktop.interface"), colourScheme, 0);
        announce(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("contrast"), 0);
        announce(QStringLiteral("org.freedesktop.appearance"), colourScheme, 2);
        QTRY_COMPARE(appearance.colourScheme(), ColourScheme::light);
        announce(QStringLiteral("org.freedesktop.appearance"), colourScheme, 9);
        QTRY_COMPARE(appearance.colourScheme(), ColourScheme::noPreference);
        QCOMPARE(changed.count(), 3);
    }
};

TALLYVANE_TEST_MAIN(SystemAppearanceTest)
#include "system_appearance_test.moc"
