#pragma once

#include "platform/colour_preference.h"

#include <QtCore/QObject>
#include <QtDBus/QDBusMessage> // a slot is found by its complete types

namespace tallyvane::platform {

/// Whether a GTK theme is one of those made for high contrast, by its name.
[[nodiscard]] inline bool isHighContrastTheme(const QString& name) {
    return name.startsWith(QStringLiteral("HighContrast"));
}

/// Whether Xfce's panel is dark, which is independent of the desktop's preference: the property
/// "/panels/dark-mode" of the Xfconf channel "xfce4-panel" makes it dark; otherwise it looks as the
/// GTK theme does, "/Net/ThemeName" of the channel "xsettings" (seen in 4.18). Reads both once,
/// asynchronously, and follows changes. Main thread only.
class PanelColourPreference : public QObject {
    Q_OBJECT

public:
    PanelColourPreference();

    /// None while nothing is known.
    [[nodiscard]] ColourPreference value() const { return m_value; }
    /// Whether that GTK theme, which is all of Xfce's, is made for high contrast.
    [[nodiscard]] bool isHighContrast() const { return isHighContrastTheme(m_theme); }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void onPropertyChanged(const QDBusMessage& signal);

private:
    void read(const QString& channel, const QString& property);
    void take(const QString& channel, const QString& property, const QVariant& value);

    bool m_isInDarkMode = false;
    QString m_theme; ///< empty: unknown
    ColourPreference m_value = ColourPreference::none;
};

} // namespace tallyvane::platform
