#pragma once

#include "platform/colour_preference.h"

#include <QtCore/QObject>
#include <QtDBus/QDBusMessage> // a slot is found by its complete types

namespace tallyvane::platform {

/// Whether the desktop's panel is dark, where that is independent of the desktop's own preference:
/// xfce4-panel keeps "/panels/dark-mode" in the Xfconf channel "xfce4-panel" (seen in 4.18). Reads
/// it once, asynchronously, and follows changes. Main thread only.
class PanelColourPreference : public QObject {
    Q_OBJECT

public:
    PanelColourPreference();

    /// None on desktops whose panel has no setting of its own.
    [[nodiscard]] ColourPreference value() const { return m_value; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void onPropertyChanged(const QDBusMessage& signal);

private:
    void takeDarkMode(const QVariant& isDark);

    ColourPreference m_value = ColourPreference::none;
};

} // namespace tallyvane::platform
