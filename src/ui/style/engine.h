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

/// Fills the view, whose initial properties are set, with the QML of that file. Ends the program,
/// naming the errors, if that fails. It means a broken installation: QML modules are packages of
/// their own, and nothing else notices a missing one.
void load(QQuickView& view, const QUrl& file);

} // namespace tallyvane::ui
