#pragma once

#include "platform/colour_scheme.h"

#include <QtCore/QObject>
#include <QtDBus/QDBusMessage> // a slot is found by its complete types

namespace tallyvane::platform {

/// The colour scheme that the desktop asks for: key `color-scheme` of `org.freedesktop.appearance`
/// in the settings portal (XDG Desktop Portal, org.freedesktop.portal.Settings). Asks once, without
/// waiting, and follows each change. Without a bus, a portal or the key there is no preference.
/// Main thread only.
class SystemAppearance : public QObject {
    Q_OBJECT

public:
    explicit SystemAppearance(QObject* parent = nullptr);

    [[nodiscard]] ColourScheme colourScheme() const { return m_scheme; }

Q_SIGNALS:
    void colourSchemeChanged(tallyvane::platform::ColourScheme scheme);

private Q_SLOTS:
    void onSettingChanged(const QDBusMessage& signal);

private:
    void read();
    void setScheme(const QVariant& value);

    ColourScheme m_scheme = ColourScheme::noPreference;
};

} // namespace tallyvane::platform
