#include "app/desktop/status_area.h"
#include "platform/application_id.h"
#include "support/gui_test_main.h"
#include "support/idle_model.h"
#include "support/private_bus.h"
#include "support/scripted_service.h"

#include <QtDBus/QDBusMetaType>

#include <sys/prctl.h>

using namespace tallyvane;
using namespace Qt::StringLiterals;
using platform::ColourPreference;

using Settings = QMap<QString, QVariantMap>;

namespace {

const QString appearanceGroup = u"org.freedesktop.appearance"_s;
const QString gnomeGroup = u"org.gnome.desktop.interface"_s;
const QString colourScheme = u"color-scheme"_s;
const QString animations = u"enable-animations"_s;

/// A desktop that prefers dark windows: its portal, its host of status items, and Xfce's settings.
struct Desktop final : tests::ScriptedService {
    Desktop()
        : ScriptedService({u"org.freedesktop.portal.Desktop"_s, u"org.xfce.Xfconf"_s,
                           u"org.kde.StatusNotifierWatcher"_s},
                          u"/org"_s) {}

    [[nodiscard]] QDBusMessage reply(const QDBusMessage& call) const override {
        if (call.member() == "ReadAll"_L1) {
            Settings settings{{appearanceGroup, {{colourScheme, uint{1}}}},
                              {gnomeGroup, {{animations, false}, {colourScheme, uint{2}}}}};
            const QStringList groups = call.arguments().constFirst().toStringList();
            settings.removeIf([&](const auto& group) { return !groups.contains(group.key()); });
            return call.createReply(QVariant::fromValue(settings));
        }
        const QVariant property = xfconf.value(call.arguments().value(1).toString());
        return property.isValid() ? call.createReply(tests::variant(property))
                                  : call.createErrorReply(QDBusError::InvalidArgs, {});
    }
    void change(const QString& group, const QString& key, const QVariant& value) {
        emitSignal(u"/freedesktop/portal/desktop"_s, u"org.freedesktop.portal.Settings"_s,
                   u"SettingChanged"_s, {group, key, tests::variant(value)});
    }
    void changeXfce(const QString& channel, const QString& key, const QVariant& value) {
        emitSignal(u"/xfce/Xfconf"_s, u"org.xfce.Xfconf"_s, u"PropertyChanged"_s,
                   {channel, key, tests::variant(value)});
    }

    QVariantMap xfconf;
};

const char* const grey = "0xff, 0x76, 0x76, 0x76";
const char* const light = "0xff, 0xf2, 0xf2, 0xf2";
const char* const dark = "0xff, 0x2e, 0x34, 0x36";

/// Whether the item's pictures have a pixel of this colour.
bool hasInk(const char* pixel) {
    return tests::callOnBus(QDBusConnection::sessionBus().baseService(), "/StatusNotifierItem",
                            "org.freedesktop.DBus.Properties.Get org.kde.StatusNotifierItem "
                            "IconPixmap")
        .contains(pixel);
}

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
        TALLYVANE_TRY_COMPARE(appearance.colourPreference(), ColourPreference::dark);
        QVERIFY(appearance.isMotionReduced());
        desktop.change(gnomeGroup, colourScheme, 0U);
        desktop.change(appearanceGroup, u"contrast"_s, 0U);
        desktop.change(appearanceGroup, colourScheme, 2U);
        TALLYVANE_TRY_COMPARE(appearance.colourPreference(), ColourPreference::light);
        desktop.change(appearanceGroup, colourScheme, 9U);
        TALLYVANE_TRY_COMPARE(appearance.colourPreference(), ColourPreference::none);
        desktop.change(appearanceGroup, u"reduced-motion"_s, 1U);
        desktop.change(gnomeGroup, animations, true);
        desktop.change(appearanceGroup, u"reduced-motion"_s, 0U);
        TALLYVANE_TRY_VERIFY(!appearance.isMotionReduced());
        desktop.change(u"org.kde.kdeglobals.KDE"_s, u"AnimationDurationFactor"_s, u"0"_s);
        TALLYVANE_TRY_VERIFY(appearance.isMotionReduced());
        QCOMPARE(changed.count(), 6);
        const QString gnomeAccessGroup = u"org.gnome.desktop.a11y.interface"_s;
        const std::tuple<QString, QString, QVariant, QVariant> askingForContrast[] = {
            {appearanceGroup, u"contrast"_s, 1U, 0U},
            {gnomeAccessGroup, u"high-contrast"_s, true, false},
            {gnomeGroup, u"gtk-theme"_s, u"HighContrastInverse"_s, u"Adwaita"_s}};
        for (const auto& [group, key, high, normal] : askingForContrast) {
            QVERIFY(!appearance.isHighContrast());
            desktop.change(group, key, high);
            TALLYVANE_TRY_VERIFY(appearance.isHighContrast());
            desktop.change(group, key, normal);
            TALLYVANE_TRY_VERIFY(!appearance.isHighContrast());
        }
        QCOMPARE(changed.count(), 12);
    }

    /// The panel's own setting counts for the item's ink, and without one the desktop's preference.
    void inkSuitsThePanel() {
        tests::IdleModel idle(model::placeholderSnapshot({}));
        ::prctl(PR_SET_NAME, "wrapper-2.0");
        Desktop desktop;
        const platform::SystemAppearance appearance;
        platform::StatusItem item{QString(platform::applicationId)};
        const app::StatusArea area(item, idle.model, appearance, idle.clock, {});
        TALLYVANE_TRY_VERIFY(hasInk(light));
        ::prctl(PR_SET_NAME, "status_area_test");
        desktop.change(appearanceGroup, colourScheme, 9U);
        TALLYVANE_TRY_VERIFY(hasInk(grey));
        desktop.changeXfce(u"xfce4-panel"_s, u"/panels/size"_s, true);
        desktop.change(appearanceGroup, colourScheme, 2U);
        TALLYVANE_TRY_VERIFY(hasInk(dark));
        // The panel looks as its theme does unless it is in dark mode.
        desktop.changeXfce(u"xsettings"_s, u"/Net/ThemeName"_s, u"Greybird-dark"_s);
        TALLYVANE_TRY_VERIFY(hasInk(light));
        desktop.changeXfce(u"xsettings"_s, u"/Net/ThemeName"_s, u"Greybird"_s);
        TALLYVANE_TRY_VERIFY(hasInk(dark));
        desktop.changeXfce(u"xfce4-panel"_s, u"/panels/dark-mode"_s, true);
        TALLYVANE_TRY_VERIFY(hasInk(light));
        desktop.xfconf = {{u"/panels/dark-mode"_s, false}, {u"/Net/ThemeName"_s, u"Adwaita"_s}};
        const platform::PanelColourPreference later;
        TALLYVANE_TRY_COMPARE(later.value(), ColourPreference::light);
        QVERIFY(!later.isHighContrast());
        desktop.changeXfce(u"xsettings"_s, u"/Net/ThemeName"_s, u"HighContrast"_s);
        TALLYVANE_TRY_VERIFY(later.isHighContrast());
    }

    /// Waybar is dark where the desktop has no preference, which is the default.
    void inkSuitsWaybar() {
        tests::IdleModel idle(model::placeholderSnapshot({}));
        ::prctl(PR_SET_NAME, "waybar");
        Desktop desktop;
        const platform::SystemAppearance appearance;
        platform::StatusItem item{QString(platform::applicationId)};
        const app::StatusArea area(item, idle.model, appearance, idle.clock, {});
        TALLYVANE_TRY_COMPARE(appearance.colourPreference(), ColourPreference::dark);
        for (const auto& [preference, ink] : {std::pair(2U, dark), std::pair(0U, light)}) {
            desktop.change(appearanceGroup, colourScheme, preference);
            TALLYVANE_TRY_VERIFY(hasInk(ink));
        }
        ::prctl(PR_SET_NAME, "status_area_test");
    }

    /// Under the figures of an assistant; both lines open its page.
    void saysInTheMenuWhatRunsOut() {
        using namespace std::chrono_literals;
        const model::Timestamp now{1000h};
        model::QuotaSnapshot snapshot = model::placeholderSnapshot(now);
        snapshot.providers[1] = {.provider = model::AIProvider::claude,
                                 .fiveHour = {{.usedPercent = 80, .resetsAt = now + 150min}},
                                 .syncedAt = now,
                                 .syncState = model::QuotaSyncState::current};
        tests::IdleModel idle(snapshot, now);
        const platform::SystemAppearance appearance;
        platform::StatusItem item{QString(platform::applicationId)};
        const app::StatusArea area(item, idle.model, appearance, idle.clock, {});
        const auto call = [](const QByteArray& method) {
            return tests::callOnBus(QDBusConnection::sessionBus().baseService(), "/MenuBar",
                                    "com.canonical.dbusmenu." + method);
        };
        const QByteArray layout = call("GetLayout -- 0 -1 []");
        const auto line = layout.indexOf("Claude: 5H runs out in 37m");
        QVERIFY2(line > layout.indexOf("Claude: 5H 20%") && line < layout.indexOf("separator"),
                 layout);
        const QSignalSpy requested(&area, &app::StatusArea::usagePageRequested);
        const QByteArray idOfLine = layout.left(line).split('(').last().split(',').first();
        for (const QByteArray& id : {QByteArray("2"), idOfLine}) {
            call("Event " + id + " clicked '<0>' 0");
            TALLYVANE_TRY_COMPARE(requested.size(), id == "2" ? 1 : 2);
            QVERIFY(requested.last().at(0).value<model::AIProvider>() == model::AIProvider::claude);
        }
    }

    void keepsOnlyTheLastTwoPictures() {
        const QTemporaryDir folder;
        app::SymbolicIconFiles files(folder.path().toStdString());
        std::ignore = files.add("first");
        const QString second = files.add("second");
        QCOMPARE(files.add("third"), files.add("third"));
        QCOMPARE(tests::readFile(second), "second");
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 2);
    }
};

TALLYVANE_GUI_TEST(StatusAreaTest)
#include "status_area_test.moc"
