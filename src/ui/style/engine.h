#pragma once

#include <QtQml/QQmlEngine>

#include <memory>

class QQuickView;

namespace tallyvane::ui {

class Appearance;

/// The engine's dynamic property that holds its Appearance.
inline constexpr char appearanceProperty[] = "tallyvaneAppearance";

/// An engine that finds this program's QML modules. `appearance` outlives it.
[[nodiscard]] std::unique_ptr<QQmlEngine> makeEngine(Appearance& appearance);

/// Ends the program when the view's QML could not be loaded, which takes a broken installation:
/// QML modules are packages of their own, and are missed only here.
void checkLoaded(const QQuickView& view);

} // namespace tallyvane::ui
