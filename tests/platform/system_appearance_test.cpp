#include "platform/linux/system_appearance.h"
#include "support/private_bus.h"
#include "support/test_main.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusVariant>
#include <QtTest/QSignalSpy>

using namespace tallyvane;
using platform::ColourScheme;

using Settings = QMap<QString, QVariantMap>;

namespace {
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const auto gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const auto colourScheme = QStringLiteral("color-scheme");
const auto animations = QStringLiteral("enable-animations");
} // namespace

/// The settings portal, on whose bus nothing else is.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public Q_SLOTS:
    Settings ReadAll(const QStringList& groups) { // NOLINT(*-identifier-naming)
        const Settings all{{appearanceGroup, {{colourScheme, uint{1}}}},
                           {gnomeGroup, {{animations, false}, {colourScheme, uint{2}}}}};
        Settings asked;
        for (const QString& group : groups) {
            asked.insert(group, all.value(group));
        }
        return asked;
    }
};

class SystemAppearanceTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void followsThePortal() {
        qDBusRegisterMetaType<Settings>();
        const tests::PrivateBus bus;
        QDBusConnection desktop =
            QDBusConnection::connectToBus(bus.address(), QStringLiteral("desktop"));
        Portal portal;
        QVERIFY(desktop.registerObject(portalPath, &portal, QDBusConnection::ExportAllSlots));
        QVERIFY(desktop.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));

        const platform::SystemAppearance appearance;
        const QSignalSpy changed(&appearance, &platform::SystemAppearance::changed);
        QTRY_COMPARE(appearance.colourScheme(), ColourScheme::dark);
        QVERIFY(appearance.isMotionReduced());
        const auto announce = [&](const QString& group, const QString& key, const QVariant& value) {
            QDBusMessage signal = QDBusMessage::createSignal(
                portalPath, QStringLiteral("org.freedesktop.portal.Settings"),
                QStringLiteral("SettingChanged"));
            signal << group << key << QVariant::fromValue(QDBusVariant(value));
            QVERIFY(desktop.send(signal));
        };
        announce(gnomeGroup, colourScheme, 0U);
        announce(appearanceGroup, QStringLiteral("contrast"), 0U);
        announce(appearanceGroup, colourScheme, 2U);
        QTRY_COMPARE(appearance.colourScheme(), ColourScheme::light);
        announce(appearanceGroup, colourScheme, 9U);
        QTRY_COMPARE(appearance.colourScheme(), ColourScheme::noPreference);
        announce(appearanceGroup, QStringLiteral("reduced-motion"), 1U);
        announce(gnomeGroup, animations, true);
        announce(appearanceGroup, QStringLiteral("reduced-motion"), 0U);
        QTRY_VERIFY(!appearance.isMotionReduced());
        announce(QStringLiteral("org.kde.kdeglobals.KDE"),
                 QStringLiteral("AnimationDurationFactor"), QStringLiteral("0"));
        QTRY_VERIFY(appearance.isMotionReduced());
        QCOMPARE(changed.count(), 6);
    }
};

TALLYVANE_TEST_MAIN(SystemAppearanceTest)
#include "system_appearance_test.moc"
