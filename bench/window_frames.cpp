// Prints milliseconds until a frame is on the screen. With the argument
//   panel   from the click on the item, all that is loaded for it included; and when opened again;
//   window  from the request for the main window, all that is loaded for it included;
//   pages   from the key for another page: the longest of the first visits, and of the second.

#include "app/desktop/windows_library.h"
#include "platform/linux/autostart_entry.h"
#include "support/idle_model.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <cstdio>

using namespace tallyvane;

namespace {

QWindow* onlyWindow() {
    const QWindowList windows = QGuiApplication::topLevelWindows();
    if (windows.size() != 1) {
        qFatal("There is not one window.");
    }
    return windows.first();
}

/// Without linking Qt Quick, which is a part of what is measured.
double millisecondsToFrame(const std::function<void()>& request) {
    QElapsedTimer timer;
    timer.start();
    request();
    QSignalSpy frames(onlyWindow(), SIGNAL(frameSwapped()));
    if (!frames.wait()) {
        qFatal("No frame came.");
    }
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double longestPageSwitch() {
    double longest = 0;
    for (const Qt::Key key : {Qt::Key_2, Qt::Key_3, Qt::Key_1}) {
        longest = std::max(longest, millisecondsToFrame([key] {
                               QTest::keyClick(onlyWindow(), key, Qt::ControlModifier);
                           }));
        QTest::qWait(200); // so that no later frame of this page counts for the next
    }
    return longest;
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QByteArrayView asked = argc == 2 ? argv[1] : "";
    tests::IdleModel idle(model::placeholderSnapshot({}));
    platform::AutostartEntry loginItem({});
    model::DefaultsStore defaults =
        model::DefaultsStore::openFirst(idle.home().filePath(QStringLiteral("a")).toStdString(),
                                        idle.home().filePath(QStringLiteral("b")).toStdString());
    std::unique_ptr<app::Windows> windows;
    const auto load = [&] {
        auto loaded = app::loadWindows({.model = idle.model,
                                        .defaults = defaults,
                                        .clock = idle.clock,
                                        .loginItem = loginItem,
                                        .notificationCentre = idle.notificationCentre,
                                        .timeLocale = "C"});
        if (!loaded) {
            qFatal("%s", qPrintable(loaded.error()));
        }
        windows = std::move(*loaded);
    };
    const auto toggle = [&] { windows->togglePanel({100, 20}); };
    if (asked == "panel") {
        const double first = millisecondsToFrame([&] {
            load();
            toggle();
        });
        toggle();
        QTest::qWait(500); // longer than one click is taken for
        std::printf("%.1f %.1f\n", first, millisecondsToFrame(toggle));
    } else {
        const double first = millisecondsToFrame([&] {
            load();
            windows->openMainWindow();
        });
        if (asked == "pages") {
            QTest::qWait(200);
            const double firstVisits = longestPageSwitch();
            std::printf("%.1f %.1f\n", firstVisits, longestPageSwitch());
        } else {
            std::printf("%.1f\n", first);
        }
    }
    return 0;
}
