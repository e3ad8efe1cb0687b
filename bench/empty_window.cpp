// The least program that shows a window of the same size with Qt Quick; ends with its first frame.

#include <QtGui/QGuiApplication>
#include <QtQml/QQmlComponent>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickView>

int main(int argc, char** argv) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QQuickView view;
    QQmlComponent component(view.engine());
    component.setData("import QtQuick\nRectangle {}", {});
    view.setContent({}, &component, component.create());
    view.resize(820, 700);
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    QObject::connect(&view, &QQuickWindow::frameSwapped, &QGuiApplication::quit);
    view.show();
    return QGuiApplication::exec();
}
