#pragma once

#include "support/test_main.h"

#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickWindow>

/// TALLYVANE_TEST_MAIN for views: windows exist in memory only, rendered as in the program.
#define TALLYVANE_GUI_TEST_MAIN(TestClass)                                                         \
    int main(int argc, char** argv) {                                                              \
        const QTemporaryDir directory;                                                             \
        tallyvane::tests::isolate(directory);                                                      \
        qputenv("QT_QPA_PLATFORM", "offscreen");                                                   \
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);                              \
        QGuiApplication application(argc, argv);                                                   \
        return TestClass().execute(argc, argv);                                                    \
    }
