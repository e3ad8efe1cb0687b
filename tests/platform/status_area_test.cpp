#include "app/desktop/status_area.h"
#include "support/gui_test_main.h"
#include "support/home_files.h"
#include "support/idle_model.h"
#include "support/private_bus.h"
#include "support/running_program.h"

#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusVariant>
#include <QtDBus/QDBusVirtualObject>
#include <QtTest/QSignalSpy>

using namespace tallyvane;
using platform::ColourPreference;

using Settings = QMap<QString, QVariantMap>;

namespace {

const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const auto gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const auto colourScheme = QStringLiteral("color-scheme");
const auto animations = QStringLiteral("enable-animations");
const auto xfconf = QStringLiteral("org.xfce.Xfconf");

/// The settings of a desktop that prefers dark windows: its portal, and Xfconf if `isPanelDark` has
/// a value.
class Desktop final : public QDBusVirtualObject {
public:
    explicit Desktop(std::optional<bool> isPanelDark) : m_isPanelDark(isPanelDark) {
        qDBusRegisterMetaType<Settings>();
        m_bus.registerVirtualObject(QStringLiteral("/org"), this, QDBusConnection::SubPath);
        m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
        m_bus.registerService(xfconf);
    }
    ~Desktop() override { QDBusConnection::disconnectFromBus(m_bus.name()); }
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        if (call.member() == u"ReadAll") {
            const Settings all{{appearanceGroup, {{colourScheme, uint{1}}}},
                               {gnomeGroup, {{animations, false}, {colourScheme, uint{2}}}}};
            Settings asked;
            for (const QString& group : call.arguments().constFirst().toStringList()) {
                asked.insert(group, all.value(group));
            }
            return bus.send(call.createReply(QVariant::fromValue(asked)));
        }
        return m_isPanelDark &&
               bus.send(call.createReply(QVariant::fromValue(QDBusVariant(m_isPanelDark.value()))));
    }

    void change(const QString& group, const QString& key, const QVariant& value) {
        QDBusMessage signal = QDBusMessage::createSignal(
            portalPath, QStringLiteral("org.freedesktop.portal.Settings"),
            QStringLiteral("SettingChanged"));
        m_bus.send(signal << group << key << QVariant::fromValue(QDBusVariant(value)));
    }

    void changePanel(const char* key, bool value) {
        QDBusMessage signal = QDBusMessage::createSignal(QStringLiteral("/org/xfce/Xfconf"), xfconf,
                                                         QStringLiteral("PropertyChanged"));
        m_bus.send(signal << QStringLiteral("xfce4-panel") << QString::fromLatin1(key)
                          << QVariant::fromValue(QDBusVariant(value)));
    }

private:
    std::optional<bool> m_isPanelDark;
    QDBusConnection m_bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("desktop"));
};

} // namespace

class StatusAreaTest : public tests::HermeticTest {
    Q_OBJECT

    const tests::PrivateBus m_bus;

private Q_SLOTS:
    void followsThePortal() {
        Desktop desktop(std::nullopt);
        const platform::SystemAppearance appearance;
        const QSignalSpy changed(&appearance, &platform::SystemAppearance::changed);
        QTRY_COMPARE(appearance.colourPreference(), ColourPreference::dark);
        QVERIFY(appearance.isMotionReduced());
        desktop.change(gnomeGroup, colourScheme, 0U);
        desktop.change(appearanceGroup, QStringLiteral("contrast"), 0U);
        desktop.change(appearanceGroup, colourScheme, 2U);
        QTRY_COMPARE(appearance.colourPreference(), ColourPreference::light);
        desktop.change(appearanceGroup, colourScheme, 9U);
        QTRY_COMPARE(appearance.colourPreference(), ColourPreference::none);
        desktop.change(appearanceGroup, QStringLiteral("reduced-motion"), 1U);
        desktop.change(gnomeGroup, animations, true);
        desktop.change(appearanceGroup, QStringLiteral("reduced-motion"), 0U);
        QTRY_VERIFY(!appearance.isMotionReduced());
        desktop.change(QStringLiteral("org.kde.kdeglobals.KDE"),
                       QStringLiteral("AnimationDurationFactor"), QStringLiteral("0"));
        QTRY_VERIFY(appearance.isMotionReduced());
        QCOMPARE(changed.count(), 6);
    }

    /// The panel's own setting counts for the item's ink, and without one the desktop's preference.
    void inkSuitsThePanel() {
        const tests::IdleModel idle(model::placeholderSnapshot({}));
        const auto hasInk = [](const char* pixel) {
            return tests::output("gdbus call --session --dest " +
                                 QDBusConnection::sessionBus().baseService().toUtf8() +
                                 " --object-path /StatusNotifierItem"
                                 " --method org.freedesktop.DBus.Properties.Get"
                                 " org.kde.StatusNotifierItem IconPixmap")
                .contains(pixel);
        };
        const char* grey = "0x8a, 0x8a, 0x8a";
        const char* light = "0xf2, 0xf2, 0xf2";
        const char* dark = "0x2e, 0x34, 0x36";
        for (const std::optional<bool> isPanelDark :
             {std::optional(false), std::optional<bool>()}) {
            Desktop desktop(isPanelDark);
            const platform::SystemAppearance appearance;
            const app::StatusArea area(idle.model, appearance, {});
            QTRY_VERIFY(hasInk(isPanelDark ? dark : light));
            desktop.changePanel("/panels/size", true);
            desktop.change(appearanceGroup, colourScheme, 9U);
            QTRY_COMPARE(appearance.colourPreference(), ColourPreference::none);
            QVERIFY(hasInk(isPanelDark ? dark : grey));
            desktop.change(appearanceGroup, colourScheme, 2U);
            QTRY_COMPARE(appearance.colourPreference(), ColourPreference::light);
            QVERIFY(hasInk(dark));
            desktop.changePanel("/panels/dark-mode", true);
            QTRY_VERIFY(hasInk(light));
        }
    }

    void keepsOnlyTheLastTwoPictures() {
        const QTemporaryDir folder;
        const QString foreign = QStringLiteral("gauges-mine-symbolic.svg");
        const QString old = QStringLiteral("gauges-%1-symbolic.svg").arg(QString(32, u'0'));
        const auto names = [&] { return QDir(folder.path()).entryList(QDir::Files); };
        for (const QString& name : {foreign, old}) {
            tests::writeFile(folder.filePath(name), {});
        }
        {
            app::SymbolicIconFiles files(folder.path().toStdString());
            QCOMPARE(names(), QStringList{foreign});
            std::ignore = files.add("first");
            const QString second = files.add("second");
            const QString third = files.add("third");
            QCOMPARE(files.add("third"), third);
            QCOMPARE(tests::readFile(second), QByteArray("second"));
            QCOMPARE(tests::readFile(third), QByteArray("third"));
            QCOMPARE(names().size(), 3);
        }
        QCOMPARE(names(), QStringList{foreign});
    }
};

TALLYVANE_GUI_TEST_MAIN(StatusAreaTest)
#include "status_area_test.moc"
