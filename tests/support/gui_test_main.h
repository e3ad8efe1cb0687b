#pragma once

#include "support/test_main.h"

#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickWindow>

/// TALLYVANE_TEST for views: windows exist in memory only, rendered as in the program.
#define TALLYVANE_GUI_TEST(TestClass)                                                              \
    static const bool is##TestClass##Added =                                                       \
        tallyvane::tests::add(__FILE__, [](int argc, char** argv) {                                \
            qputenv("QT_QPA_PLATFORM", "offscreen");                                               \
            QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);                          \
            const QGuiApplication application(argc, argv);                                         \
            return TestClass().execute(argc, argv);                                                \
        });
