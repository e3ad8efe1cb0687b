// Prints the milliseconds from a click on the item to the panel's first frame, with all that is
// loaded for it, and to the first frame when it opens again.

#include "app/desktop/windows_library.h"
#include "platform/linux/autostart_entry.h"
#include "support/idle_model.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

#include <cstdio>

using namespace tallyvane;

namespace {

/// Without linking Qt Quick, which is a part of what is measured.
double millisecondsToFrame(const QElapsedTimer& timer) {
    QEventLoop loop;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    if (windows.size() != 1) {
        qFatal("The panel did not open.");
    }
    QObject::connect(windows.first(), SIGNAL(frameSwapped()), &loop, SLOT(quit()));
    loop.exec();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    tests::IdleModel idle(model::placeholderSnapshot({}));
    platform::AutostartEntry loginItem({});
    model::DefaultsStore defaults =
        model::DefaultsStore::openFirst(idle.home().filePath(QStringLiteral("a")).toStdString(),
                                        idle.home().filePath(QStringLiteral("b")).toStdString());
    QElapsedTimer timer;
    timer.start();
    const app::WindowsLibrary library;
    const auto windows = library.makeWindows({.model = idle.model,
                                              .defaults = defaults,
                                              .clock = idle.clock,
                                              .loginItem = loginItem,
                                              .notificationCentre = idle.notificationCentre,
                                              .timeLocale = "C"});
    if (!windows) {
        qFatal("%s", qPrintable(windows.error()));
    }
    (*windows)->togglePanel({100, 20});
    const double first = millisecondsToFrame(timer);
    (*windows)->togglePanel({100, 20});
    QEventLoop pause;
    QTimer::singleShot(500, &pause, &QEventLoop::quit); // longer than one click is taken for
    pause.exec();
    timer.restart();
    (*windows)->togglePanel({100, 20});
    std::printf("%.1f %.1f\n", first, millisecondsToFrame(timer));
    return 0;
}
