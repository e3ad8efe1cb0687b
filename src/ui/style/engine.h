#pragma once

#include <QtQml/QQmlEngine>

#include <memory>

class QQuickView;

namespace tallyvane::ui {

class Appearance;

/// The dynamic property of the engine that holds its Appearance.
inline constexpr char appearanceProperty[] = "tallyvaneAppearance";

/// Returns an engine that finds this program's QML modules. `appearance` must outlive it.
[[nodiscard]] std::unique_ptr<QQmlEngine> makeEngine(Appearance& appearance);

/// Ends the program, naming the errors, if the view's QML failed to load. That means a broken
/// installation: QML modules are packages of their own, and nothing else notices a missing one.
void checkLoaded(const QQuickView& view);

} // namespace tallyvane::ui
