#include "ui/style/engine.h"

#include "ui/style/appearance.h"

#include <QtQml/QQmlError>
#include <QtQuick/QQuickView>

namespace tallyvane::ui {

std::unique_ptr<QQmlEngine> makeEngine(Appearance& appearance) {
    auto engine = std::make_unique<QQmlEngine>();
    engine->addImportPath(QStringLiteral("qrc:/"));
    engine->setProperty(appearanceProperty, QVariant::fromValue(&appearance));
    return engine;
}

void checkLoaded(const QQuickView& view) {
    if (view.rootObject() == nullptr) {
        for (const QQmlError& error : view.errors()) {
            qCritical("%s", qPrintable(error.toString()));
        }
        qFatal("The window cannot be shown; is a QML module missing?");
    }
}

} // namespace tallyvane::ui
