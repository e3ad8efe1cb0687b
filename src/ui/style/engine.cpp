#include "ui/style/engine.h"

#include "ui/style/appearance.h"

namespace tallyvane::ui {

std::unique_ptr<QQmlEngine> makeEngine(Appearance& appearance) {
    auto engine = std::make_unique<QQmlEngine>();
    engine->addImportPath(QStringLiteral("qrc:/"));
    engine->setProperty(appearanceProperty, QVariant::fromValue(&appearance));
    return engine;
}

} // namespace tallyvane::ui
