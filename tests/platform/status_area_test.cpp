#include "app/desktop/status_area.h"
#include "support/gui_test_main.h"
#include "support/home_files.h"
#include "support/idle_model.h"
#include "support/private_bus.h"
#include "support/running_program.h"
#include "support/scripted_service.h"

#include <QtDBus/QDBusMetaType>
#include <QtTest/QSignalSpy>

using namespace tallyvane;
using platform::ColourPreference;

using Settings = QMap<QString, QVariantMap>;

namespace {

const auto appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const auto gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const auto colourScheme = QStringLiteral("color-scheme");
const auto animations = QStringLiteral("enable-animations");

/// The settings of a desktop that prefers dark windows: its portal, and Xfconf if `isPanelDark` has
/// a value.
struct Desktop {
    [[nodiscard]] QDBusMessage reply(const QDBusMessage& call) const {
        if (call.member() == u"ReadAll") {
            Settings settings{{appearanceGroup, {{colourScheme, uint{1}}}},
                              {gnomeGroup, {{animations, false}, {colourScheme, uint{2}}}}};
            const QStringList groups = call.arguments().constFirst().toStringList();
            settings.removeIf([&](const auto& group) { return !groups.contains(group.key()); });
            return call.createReply(QVariant::fromValue(settings));
        }
        return isPanelDark ? call.createReply(tests::variant(*isPanelDark))
                           : call.createErrorReply(QDBusError::InvalidArgs, {});
    }

    void change(const QString& group, const QString& key, const QVariant& value) {
        service.emitSignal("/freedesktop/portal/desktop", "org.freedesktop.portal.Settings",
                           "SettingChanged", {group, key, tests::variant(value)});
    }
    void changePanel(const char* key, bool value) {
        service.emitSignal(
            "/xfce/Xfconf", "org.xfce.Xfconf", "PropertyChanged",
            {QStringLiteral("xfce4-panel"), QString::fromLatin1(key), tests::variant(value)});
    }

    std::optional<bool> isPanelDark;
    tests::ScriptedService service{
        {QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("org.xfce.Xfconf")},
        QStringLiteral("/org"),
        [this](const QDBusMessage& call) { return reply(call); }};
};

} // namespace

class StatusAreaTest : public tests::HermeticTest {
    Q_OBJECT

    const tests::PrivateBus m_bus;

private Q_SLOTS:
    void followsThePortal() {
        qDBusRegisterMetaType<Settings>();
        Desktop desktop;
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
        constexpr int patience = 1000; // in milliseconds, without the time that gdbus takes
        const char* grey = "0x8a, 0x8a, 0x8a";
        const char* light = "0xf2, 0xf2, 0xf2";
        const char* dark = "0x2e, 0x34, 0x36";
        for (const std::optional<bool> isPanelDark :
             {std::optional(false), std::optional<bool>()}) {
            Desktop desktop{isPanelDark};
            const platform::SystemAppearance appearance;
            const app::StatusArea area(idle.model, appearance, {});
            QTRY_VERIFY_WITH_TIMEOUT(hasInk(isPanelDark ? dark : light), patience);
            desktop.changePanel("/panels/size", true);
            desktop.change(appearanceGroup, colourScheme, 9U);
            QTRY_COMPARE(appearance.colourPreference(), ColourPreference::none);
            QVERIFY(hasInk(isPanelDark ? dark : grey));
            desktop.change(appearanceGroup, colourScheme, 2U);
            QTRY_COMPARE(appearance.colourPreference(), ColourPreference::light);
            QVERIFY(hasInk(dark));
            desktop.changePanel("/panels/dark-mode", true);
            QTRY_VERIFY_WITH_TIMEOUT(hasInk(light), patience);
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

TALLYVANE_GUI_TEST(StatusAreaTest)
#include "status_area_test.moc"
