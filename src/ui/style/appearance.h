#pragma once

#include "core/app_model.h"
#include "platform/colour_preference.h"

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace tallyvane::ui {

/// How every window looks: the user's choice, the desktop's preferences, and the application's
/// font, palette and layout direction. `changed` announces a change of any of them. A singleton in
/// QML, where makeEngine() provides it. Main thread.
class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)
    Q_PROPERTY(bool isMotionReduced READ isMotionReduced NOTIFY changed)
    Q_PROPERTY(bool isHighContrast READ isHighContrast NOTIFY changed)
    Q_PROPERTY(bool isRightToLeft READ isRightToLeft NOTIFY changed)
    Q_PROPERTY(QString fontFamily READ fontFamily NOTIFY changed)
    Q_PROPERTY(double textScale READ textScale NOTIFY changed)
    Q_PROPERTY(QColor accentFill READ accentFill NOTIFY changed)
    Q_PROPERTY(QColor accentInk READ accentInk NOTIFY changed)

public:
    /// Follows the user's choice in `model`, which must outlive this.
    explicit Appearance(const core::AppModel& model);

    /// The desktop's preference. Without one, the lightness of its palette decides.
    void setSystemColourScheme(platform::ColourPreference scheme) { m_system = scheme; }
    /// Whether the desktop asks for no more motion than necessary.
    void setMotionReduced(bool isReduced) { m_isMotionReduced = isReduced; }
    /// Whether the desktop asks for high contrast.
    void setHighContrast(bool isHigh) { m_isHighContrast = isHigh; }

    [[nodiscard]] bool isDark() const;
    [[nodiscard]] bool isMotionReduced() const { return m_isMotionReduced; }
    /// Whether colours need more contrast than usual: on the desktop's request, or where its
    /// palette is black and white.
    [[nodiscard]] bool isHighContrast() const;
    /// Whether the user's language is written from right to left.
    [[nodiscard]] bool isRightToLeft() const;
    /// The application's font; controls use the desktop's unless told otherwise.
    [[nodiscard]] QString fontFamily() const;
    /// The size of the desktop's text relative to 10 points at 96 dots per inch; at least 1.
    [[nodiscard]] double textScale() const;
    /// The desktop's accent colour, darkened until white text on it is readable (contrast 4.5,
    /// or 7 in high contrast; WCAG 2.1).
    [[nodiscard]] QColor accentFill() const;
    /// The desktop's accent colour, adjusted until it is readable as text on a window.
    [[nodiscard]] QColor accentInk() const;

    /// As ui::readable().
    Q_INVOKABLE static QColor readable(const QColor& colour, const QColor& ground, double least);

    /// Called by the QML engine only.
    static Appearance* create(QQmlEngine* engine, QJSEngine* scriptEngine);

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] double textContrast() const;

    const core::AppModel& m_model;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(Appearance, platform::ColourPreference, m_system,
                                         platform::ColourPreference::none, &Appearance::changed)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(Appearance, bool, m_isMotionReduced, false,
                                         &Appearance::changed)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(Appearance, bool, m_isHighContrast, false,
                                         &Appearance::changed)
};

} // namespace tallyvane::ui
