#pragma once

#include "platform/colour_preference.h"

#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtDBus/QDBusMessage> // a slot is found by its complete types

namespace tallyvane::platform {

/// How the desktop wants windows to look, from its settings portal (XDG Desktop Portal,
/// org.freedesktop.portal.Settings). Reads it once, asynchronously, and follows changes. Without a
/// bus, a portal or a setting nothing is preferred. Main thread only.
class SystemAppearance : public QObject {
    Q_OBJECT

public:
    explicit SystemAppearance(QObject* parent = nullptr);

    /// `color-scheme` of `org.freedesktop.appearance`.
    [[nodiscard]] ColourPreference colourPreference() const { return m_colours; }
    /// Whether to avoid animation: `reduced-motion` of `org.freedesktop.appearance`, or GNOME's or
    /// Plasma's own setting.
    [[nodiscard]] bool isMotionReduced() const { return !m_reducingKeys.isEmpty(); }
    /// Whether to draw with high contrast: `contrast` of `org.freedesktop.appearance`, GNOME's own
    /// setting, or a GTK theme made for it.
    [[nodiscard]] bool isHighContrast() const { return !m_contrastKeys.isEmpty(); }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void onSettingChanged(const QDBusMessage& signal);

private:
    void take(const QString& group, const QString& key, const QVariant& value);

    ColourPreference m_colours = ColourPreference::none;
    QSet<QString> m_reducingKeys; ///< the settings that ask for reduced motion
    QSet<QString> m_contrastKeys; ///< the settings that ask for high contrast
};

} // namespace tallyvane::platform
