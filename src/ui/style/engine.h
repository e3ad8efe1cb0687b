#pragma once

#include <QtQml/QQmlEngine>

#include <memory>

namespace tallyvane::ui {

class Appearance;

/// The engine's dynamic property that holds its Appearance.
inline constexpr char appearanceProperty[] = "tallyvaneAppearance";

/// An engine that finds this program's QML modules. `appearance` outlives it.
[[nodiscard]] std::unique_ptr<QQmlEngine> makeEngine(Appearance& appearance);

} // namespace tallyvane::ui
