#include "ui/style/appearance.h"

#include "ui/style/colour.h"
#include "ui/style/engine.h"

#include <QtCore/QEvent>
#include <QtGui/QFontInfo>
#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>
#include <QtQml/QQmlEngine>

#include <algorithm>
#include <array>
#include <utility>

namespace tallyvane::ui {

namespace {

/// `colour`, moved towards `end` until it can be read against `ground`.
QColor readable(const QColor& colour, const QColor& ground, const QColor& end) {
    constexpr double enough = 4.5;
    constexpr int steps = 20;
    QColor moved = colour;
    for (int step = 1; step <= steps && contrast(moved, ground) < enough; ++step) {
        const float part = static_cast<float>(step) / steps;
        const auto mix = [part](float from, float to) { return from + (to - from) * part; };
        moved = QColor::fromRgbF(mix(colour.redF(), end.redF()), mix(colour.greenF(), end.greenF()),
                                 mix(colour.blueF(), end.blueF()));
    }
    return moved;
}

QColor systemAccent() {
    return QGuiApplication::palette().color(QPalette::Active, QPalette::Highlight);
}

} // namespace

Appearance::Appearance(model::AppAppearance choice, QObject* parent)
    : QObject(parent), m_choice(choice) {
    qGuiApp->installEventFilter(this);
}

void Appearance::setChoice(model::AppAppearance choice) {
    if (std::exchange(m_choice, choice) != choice) {
        Q_EMIT changed();
    }
}

void Appearance::setSystemColourScheme(platform::ColourPreference scheme) {
    if (std::exchange(m_system, scheme) != scheme) {
        Q_EMIT changed();
    }
}

void Appearance::setMotionReduced(bool isReduced) {
    if (std::exchange(m_isMotionReduced, isReduced) != isReduced) {
        Q_EMIT changed();
    }
}

bool Appearance::isDark() const {
    if (m_choice != model::AppAppearance::system) {
        return m_choice == model::AppAppearance::dark;
    }
    if (m_system != platform::ColourPreference::none) {
        return m_system == platform::ColourPreference::dark;
    }
    const QPalette palette = QGuiApplication::palette();
    return luminance(palette.color(QPalette::Window)) <
           luminance(palette.color(QPalette::WindowText));
}

bool Appearance::isRightToLeft() const {
    return QGuiApplication::isRightToLeft();
}

QString Appearance::fontFamily() const {
    return QGuiApplication::font().family();
}

double Appearance::textScale() const {
    constexpr double tenPoints = 10 * 96.0 / 72;
    return std::max(QFontInfo(QGuiApplication::font()).pixelSize() / tenPoints, 1.0);
}

QColor Appearance::accentFill() const {
    return readable(systemAccent(), Qt::white, Qt::black);
}

QColor Appearance::accentInk() const {
    // The raised surfaces of Theme.qml, on which contrast is lowest.
    return isDark() ? readable(systemAccent(), QColor(0x35, 0x36, 0x3b), Qt::white)
                    : readable(systemAccent(), QColor(0xf0, 0xf0, 0xf3), Qt::black);
}

Appearance* Appearance::create(QQmlEngine* engine, QJSEngine* /*scriptEngine*/) {
    auto* appearance = engine->property(appearanceProperty).value<Appearance*>();
    QJSEngine::setObjectOwnership(appearance, QJSEngine::CppOwnership);
    return appearance;
}

bool Appearance::eventFilter(QObject* watched, QEvent* event) {
    constexpr std::array types{QEvent::ApplicationFontChange, QEvent::ApplicationPaletteChange,
                               QEvent::ApplicationLayoutDirectionChange};
    if (watched == qGuiApp && std::ranges::find(types, event->type()) != types.end()) {
        Q_EMIT changed();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tallyvane::ui
