#pragma once

#include "platform/colour_scheme.h"

#include <QtCore/QObject>
#include <QtDBus/QDBusMessage> // a slot is found by its complete types

namespace tallyvane::platform {

/// Whether the desktop's panel is dark, where that does not follow the desktop's colour scheme:
/// xfce4-panel has a setting of its own, "/panels/dark-mode" of channel "xfce4-panel" in Xfconf
/// (seen in 4.18). Asks once, without waiting, and follows each change. On other desktops there is
/// no preference. Main thread only.
class PanelColourScheme : public QObject {
    Q_OBJECT

public:
    PanelColourScheme();

    [[nodiscard]] ColourScheme colourScheme() const { return m_scheme; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void onPropertyChanged(const QDBusMessage& signal);

private:
    void setScheme(ColourScheme scheme);

    ColourScheme m_scheme = ColourScheme::noPreference;
};

} // namespace tallyvane::platform
