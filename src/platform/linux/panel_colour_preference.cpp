#include "platform/linux/panel_colour_preference.h"

#include "platform/linux/bus_call.h"

#include <QtDBus/QDBusVariant>

#include <utility>

namespace tallyvane::platform {

namespace {

const auto xfconf = QStringLiteral("org.xfce.Xfconf");
const auto xfconfPath = QStringLiteral("/org/xfce/Xfconf");
const auto panelChannel = QStringLiteral("xfce4-panel");
const auto darkMode = QStringLiteral("/panels/dark-mode");

} // namespace

PanelColourPreference::PanelColourPreference() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(xfconf, xfconfPath, xfconf, QStringLiteral("PropertyChanged"), this,
                SLOT(onPropertyChanged(QDBusMessage)));
    QDBusMessage call =
        QDBusMessage::createMethodCall(xfconf, xfconfPath, xfconf, QStringLiteral("GetProperty"));
    call << panelChannel << darkMode;
    call.setAutoStartService(false);
    QCoro::connect(readBusValue(bus, call), this, [this](const BusValue& isDark) {
        if (isDark) {
            takeDarkMode(*isDark);
        }
    });
}

void PanelColourPreference::onPropertyChanged(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    if (arguments.size() == 3 && arguments.at(0) == panelChannel && arguments.at(1) == darkMode) {
        takeDarkMode(arguments.at(2).value<QDBusVariant>().variant());
    }
}

void PanelColourPreference::takeDarkMode(const QVariant& isDark) {
    const auto value = isDark.toBool() ? ColourPreference::dark : ColourPreference::light;
    if (std::exchange(m_value, value) != value) {
        Q_EMIT changed();
    }
}

} // namespace tallyvane::platform

#include "moc_panel_colour_preference.cpp"
