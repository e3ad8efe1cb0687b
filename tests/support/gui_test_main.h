#pragma once

#include "support/test_main.h"

#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickWindow>

/// TALLYVANE_TEST_MAIN for views: windows exist in memory only, rendered as in the program.
#define TALLYVANE_GUI_TEST_MAIN(TestClass)                                                         \
    int main(int argc, char** argv) {                                                              \
        const QTemporaryDir home;                                                                  \
        tallyvane::tests::isolate(home);                                                           \
        qputenv("QT_QPA_PLATFORM", "offscreen");                                                   \
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);                              \
        QGuiApplication application(argc, argv);                                                   \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
