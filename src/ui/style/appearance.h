#pragma once

#include "model/quota_snapshot.h"
#include "platform/colour_preference.h"

#include <QtCore/QObject>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace tallyvane::ui {

/// What the user and the desktop ask of every window's looks. Follows the application's font,
/// palette and layout direction by itself. In QML the singleton of that name, which engine.h hands
/// over. Main thread.
class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)
    Q_PROPERTY(bool isMotionReduced READ isMotionReduced NOTIFY changed)
    Q_PROPERTY(bool isRightToLeft READ isRightToLeft NOTIFY changed)
    Q_PROPERTY(QString fontFamily READ fontFamily NOTIFY changed)
    Q_PROPERTY(double textScale READ textScale NOTIFY changed)
    Q_PROPERTY(QColor accentFill READ accentFill NOTIFY changed)
    Q_PROPERTY(QColor accentInk READ accentInk NOTIFY changed)

public:
    explicit Appearance(model::AppAppearance choice, QObject* parent = nullptr);

    /// The user's choice; `system` leaves it to the desktop.
    void setChoice(model::AppAppearance choice);
    /// What the desktop asks; with no preference the lightness of its palette decides.
    void setSystemColourScheme(platform::ColourPreference scheme);
    /// Whether the desktop asks that nothing move which need not.
    void setMotionReduced(bool isReduced);

    [[nodiscard]] bool isDark() const;
    [[nodiscard]] bool isMotionReduced() const { return m_isMotionReduced; }
    /// Whether the user's language is written from right to left.
    [[nodiscard]] bool isRightToLeft() const;
    /// The application's font, which controls would replace by the desktop's.
    [[nodiscard]] QString fontFamily() const;
    /// How large the desktop's text is; 1 when it is 10 points at 96 dots per inch, or smaller.
    [[nodiscard]] double textScale() const;
    /// The desktop's accent colour, dark enough to carry white text (contrast 4.5, WCAG 2.1).
    [[nodiscard]] QColor accentFill() const;
    /// The desktop's accent colour, readable as text on a window.
    [[nodiscard]] QColor accentInk() const;

    /// For the QML engine alone.
    static Appearance* create(QQmlEngine* engine, QJSEngine* scriptEngine);

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    model::AppAppearance m_choice;
    platform::ColourPreference m_system = platform::ColourPreference::none;
    bool m_isMotionReduced = false;
};

} // namespace tallyvane::ui
