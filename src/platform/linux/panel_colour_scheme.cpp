#include "platform/linux/panel_colour_scheme.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>
#include <QtDBus/QDBusVariant>

#include <utility>

namespace tallyvane::platform {

namespace {

const auto xfconf = QStringLiteral("org.xfce.Xfconf");
const auto xfconfPath = QStringLiteral("/org/xfce/Xfconf");
const auto panelChannel = QStringLiteral("xfce4-panel");
const auto darkMode = QStringLiteral("/panels/dark-mode");

ColourScheme schemeOf(const QVariant& isDark) {
    return isDark.toBool() ? ColourScheme::dark : ColourScheme::light;
}

} // namespace

PanelColourScheme::PanelColourScheme() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return;
    }
    bus.connect(xfconf, xfconfPath, xfconf, QStringLiteral("PropertyChanged"), this,
                SLOT(onPropertyChanged(QDBusMessage)));
    QDBusMessage call =
        QDBusMessage::createMethodCall(xfconf, xfconfPath, xfconf, QStringLiteral("GetProperty"));
    call << panelChannel << darkMode;
    call.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (const QDBusPendingReply<QDBusVariant> reply = *watcher; !reply.isError()) {
            setScheme(schemeOf(reply.value().variant()));
        }
    });
}

void PanelColourScheme::onPropertyChanged(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    if (arguments.size() == 3 && arguments.at(0) == panelChannel && arguments.at(1) == darkMode) {
        setScheme(schemeOf(arguments.at(2).value<QDBusVariant>().variant()));
    }
}

void PanelColourScheme::setScheme(ColourScheme scheme) {
    if (std::exchange(m_scheme, scheme) != scheme) {
        Q_EMIT changed();
    }
}

} // namespace tallyvane::platform
