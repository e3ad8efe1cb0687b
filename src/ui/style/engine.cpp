#include "ui/style/engine.h"

#include "ui/style/appearance.h"

#include <QtGui/QFontInfo>
#include <QtGui/QGuiApplication>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlError>
#include <QtQuick/QQuickView>

namespace tallyvane::ui {

std::unique_ptr<QQmlEngine> makeEngine(Appearance& appearance) {
    auto engine = std::make_unique<QQmlEngine>();
    engine->addImportPath(QStringLiteral("qrc:/"));
    engine->setProperty(appearanceProperty, QVariant::fromValue(&appearance));
    return engine;
}

void load(QQuickView& view, const QUrl& file) {
    // Qt loads the types on a thread of its own, and meanwhile the fonts on this one.
    const QQmlComponent types(view.engine(), file, QQmlComponent::Asynchronous);
    (void)QFontInfo(QGuiApplication::font()).pixelSize();
    view.setSource(file);
    if (view.rootObject() == nullptr) {
        for (const QQmlError& error : view.errors()) {
            qCritical("%s", qPrintable(error.toString()));
        }
        qFatal("The window cannot be shown; is a QML module missing?");
    }
}

} // namespace tallyvane::ui
