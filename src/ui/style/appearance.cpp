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

namespace tallyvane::ui {

namespace {

/// Moves `colour` towards `end` until it is readable against `ground`.
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

Appearance::Appearance(const core::AppModel& model) : m_model(model) {
    connect(&model, &core::AppModel::appearanceChanged, this, &Appearance::changed);
    qGuiApp->installEventFilter(this);
}

bool Appearance::isDark() const {
    if (const auto choice = m_model.appearance(); choice != model::AppAppearance::system) {
        return choice == model::AppAppearance::dark;
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
    // Roughly Theme.qml's raised surfaces, where contrast is lowest.
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

#include "moc_appearance.cpp"
