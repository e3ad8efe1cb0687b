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

constexpr double enough = 4.5;
constexpr double enoughForHighContrast = 7;

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

bool Appearance::isHighContrast() const {
    const QPalette palette = QGuiApplication::palette();
    const QRgb window = palette.color(QPalette::Window).rgb();
    const QRgb text = palette.color(QPalette::WindowText).rgb();
    const auto isIn = [&](Qt::GlobalColor one, Qt::GlobalColor other) {
        return window == QColor(one).rgb() && text == QColor(other).rgb();
    };
    return m_isHighContrast || isIn(Qt::black, Qt::white) || isIn(Qt::white, Qt::black);
}

double Appearance::textContrast() const {
    return isHighContrast() ? enoughForHighContrast : enough;
}

QColor Appearance::accentFill() const {
    return ui::readable(systemAccent(), Qt::white, textContrast());
}

QColor Appearance::accentInk() const {
    // Roughly Theme.qml's raised surfaces, where contrast is lowest.
    return ui::readable(systemAccent(),
                        isDark() ? QColor(0x35, 0x36, 0x3b) : QColor(0xf0, 0xf0, 0xf3),
                        textContrast());
}

QColor Appearance::readable(const QColor& colour, const QColor& ground, double least) {
    return ui::readable(colour, ground, least);
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
