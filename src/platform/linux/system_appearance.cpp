#include "platform/linux/system_appearance.h"

#include "platform/linux/bus_call.h"
#include "platform/linux/panel_colour_preference.h"

#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusVariant>

namespace tallyvane::platform {

namespace {

const auto portal = QStringLiteral("org.freedesktop.portal.Desktop");
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settings = QStringLiteral("org.freedesktop.portal.Settings");
const auto appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const auto gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const auto gnomeAccessGroup = QStringLiteral("org.gnome.desktop.a11y.interface");
const auto plasmaGroup = QStringLiteral("org.kde.kdeglobals.KDE");

} // namespace

SystemAppearance::SystemAppearance(QObject* parent) : QObject(parent) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(portal, portalPath, settings, QStringLiteral("SettingChanged"), this,
                SLOT(onSettingChanged(QDBusMessage)));
    const auto call =
        QDBusMessage::createMethodCall(portal, portalPath, settings, QStringLiteral("ReadAll"))
        << QStringList{appearanceGroup, gnomeGroup, gnomeAccessGroup, plasmaGroup};
    QCoro::connect(callBus(bus, call), this, [this](const BusReply& reply) {
        if (!reply || reply->signature() != u"a{sa{sv}}") {
            return;
        }
        const auto groups = qdbus_cast<QMap<QString, QVariantMap>>(reply->arguments().constFirst());
        for (const auto& [group, values] : groups.asKeyValueRange()) {
            for (const auto& [key, value] : values.asKeyValueRange()) {
                take(group, key, value);
            }
        }
    });
}

void SystemAppearance::onSettingChanged(const QDBusMessage& signal) {
    if (signal.signature() == u"ssv") {
        const QVariantList arguments = signal.arguments();
        take(arguments[0].toString(), arguments[1].toString(),
             arguments[2].value<QDBusVariant>().variant());
    }
}

void SystemAppearance::take(const QString& group, const QString& key, const QVariant& value) {
    const ColourPreference coloursBefore = m_colours;
    const bool wasMotionReduced = isMotionReduced();
    const bool wasHighContrast = isHighContrast();
    const auto set = [&key](QSet<QString>& keys, bool isAsking) {
        if (isAsking) {
            keys.insert(key);
        } else {
            keys.remove(key);
        }
    };
    if (group == appearanceGroup && key == u"color-scheme") {
        const uint number = value.toUInt();
        m_colours = number == 1   ? ColourPreference::dark
                    : number == 2 ? ColourPreference::light
                                  : ColourPreference::none;
    } else if (group == appearanceGroup && key == u"reduced-motion") {
        set(m_reducingKeys, value.toUInt() == 1);
    } else if (group == gnomeGroup && key == u"enable-animations") {
        set(m_reducingKeys, !value.toBool());
    } else if (group == plasmaGroup && key == u"AnimationDurationFactor") {
        set(m_reducingKeys, value.toString() == u"0");
    } else if (group == appearanceGroup && key == u"contrast") {
        set(m_contrastKeys, value.toUInt() == 1);
    } else if (group == gnomeAccessGroup && key == u"high-contrast") {
        set(m_contrastKeys, value.toBool());
    } else if (group == gnomeGroup && key == u"gtk-theme") {
        set(m_contrastKeys, isHighContrastTheme(value.toString()));
    }
    if (m_colours != coloursBefore || isMotionReduced() != wasMotionReduced ||
        isHighContrast() != wasHighContrast) {
        Q_EMIT changed();
    }
}

} // namespace tallyvane::platform

#include "moc_system_appearance.cpp"
