#pragma once

#include "platform/colour_scheme.h"

#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtDBus/QDBusMessage> // a slot is found by its complete types

namespace tallyvane::platform {

/// What the desktop asks of every window's looks, as the settings portal tells it (XDG Desktop
/// Portal, org.freedesktop.portal.Settings). Asks once, without waiting, and follows each change.
/// Without a bus, a portal or a setting there is no wish. Main thread only.
class SystemAppearance : public QObject {
    Q_OBJECT

public:
    explicit SystemAppearance(QObject* parent = nullptr);

    /// `color-scheme` of `org.freedesktop.appearance`.
    [[nodiscard]] ColourScheme colourScheme() const { return m_scheme; }
    /// Whether nothing should move that need not: `reduced-motion` of `org.freedesktop.appearance`,
    /// or GNOME's or Plasma's own setting.
    [[nodiscard]] bool isMotionReduced() const { return !m_stillness.isEmpty(); }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void onSettingChanged(const QDBusMessage& signal);

private:
    void readAll();
    void take(const QString& group, const QString& key, const QVariant& value);

    ColourScheme m_scheme = ColourScheme::noPreference;
    QSet<QString> m_stillness; ///< the settings that ask for it
};

} // namespace tallyvane::platform
