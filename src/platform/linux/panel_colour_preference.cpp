#include "platform/linux/panel_colour_preference.h"

#include "platform/linux/bus_call.h"

#include <QtDBus/QDBusVariant>

#include <algorithm>
#include <array>
#include <utility>

namespace tallyvane::platform {

namespace {

const auto xfconf = QStringLiteral("org.xfce.Xfconf");
const auto xfconfPath = QStringLiteral("/org/xfce/Xfconf");
const auto panelChannel = QStringLiteral("xfce4-panel");
const auto darkMode = QStringLiteral("/panels/dark-mode");
const auto themeChannel = QStringLiteral("xsettings");
const auto themeName = QStringLiteral("/Net/ThemeName");

/// Judges by the name, since only GTK can load a theme.
bool isDarkTheme(const QString& theme) {
    const QString name = theme.toLower();
    return std::ranges::any_of(
        std::array{"dark", "black", "night", "inverse", "dracula", "nord"},
        [&](const char* word) { return name.contains(QLatin1StringView(word)); });
}

} // namespace

PanelColourPreference::PanelColourPreference() {
    QDBusConnection::sessionBus().connect(xfconf, xfconfPath, xfconf,
                                          QStringLiteral("PropertyChanged"), this,
                                          SLOT(onPropertyChanged(QDBusMessage)));
    read(panelChannel, darkMode);
    read(themeChannel, themeName);
}

void PanelColourPreference::read(const QString& channel, const QString& property) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(xfconf, xfconfPath, xfconf, QStringLiteral("GetProperty"));
    call << channel << property;
    call.setAutoStartService(false);
    QCoro::connect(readBusValue(QDBusConnection::sessionBus(), call), this,
                   [this, channel, property](const BusValue& value) {
                       if (value) {
                           take(channel, property, *value);
                       }
                   });
}

void PanelColourPreference::onPropertyChanged(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    if (arguments.size() == 3) {
        take(arguments.at(0).toString(), arguments.at(1).toString(),
             arguments.at(2).value<QDBusVariant>().variant());
    }
}

void PanelColourPreference::take(const QString& channel, const QString& property,
                                 const QVariant& value) {
    const bool wasHighContrast = isHighContrast();
    if (channel == panelChannel && property == darkMode) {
        m_isInDarkMode = value.toBool();
    } else if (channel == themeChannel && property == themeName) {
        m_theme = value.toString();
    }
    const bool isDark = m_isInDarkMode || isDarkTheme(m_theme);
    const auto preference = isDark              ? ColourPreference::dark
                            : m_theme.isEmpty() ? ColourPreference::none
                                                : ColourPreference::light;
    const bool isSame = std::exchange(m_value, preference) == preference;
    if (!isSame || isHighContrast() != wasHighContrast) {
        Q_EMIT changed();
    }
}

} // namespace tallyvane::platform

#include "moc_panel_colour_preference.cpp"
