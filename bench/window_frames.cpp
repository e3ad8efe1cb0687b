// Prints milliseconds until a frame is on the screen. With the argument
//   panel   from the click on the item, all that is loaded for it included; and when opened again;
//   window  from the request for the main window, all that is loaded for it included;
//   pages   from the key for another page: the first visits of history and settings, and the
//   second.

#include "app/desktop/windows_library.h"
#include "core/fixtures.h"
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

class Stopwatch {
public:
    Stopwatch() { m_timer.start(); }

    /// Milliseconds from the making of this to the next frame of the window, which is named without
    /// linking Qt Quick, as that is a part of what is measured.
    double toFrame() {
        QSignalSpy frames(onlyWindow(), SIGNAL(frameSwapped()));
        return toFrame(frames);
    }
    double toFrame(QSignalSpy& frames) {
        if (frames.isEmpty() && !frames.wait()) {
            qFatal("No frame came.");
        }
        return static_cast<double>(m_timer.nsecsElapsed()) / 1e6;
    }

private:
    QElapsedTimer m_timer;
};

double pageSwitch(Qt::Key key) {
    QSignalSpy frames(onlyWindow(), SIGNAL(frameSwapped()));
    Stopwatch stopwatch;
    QTest::keyClick(onlyWindow(), key, Qt::ControlModifier); // may draw the frame at once
    const double milliseconds = stopwatch.toFrame(frames);
    QTest::qWait(200); // so that no later frame of this page counts for the next
    return milliseconds;
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QByteArrayView asked = argc == 2 ? argv[1] : "";
    const model::Timestamp now{std::chrono::days{20000}};
    const model::LocalZone zone(QTimeZone::utc());
    tests::IdleModel idle(core::fixtureSnapshot(now, zone), now, core::fixtureHistory(now, zone));
    platform::AutostartEntry loginItem({});
    model::DefaultsStore defaults =
        model::DefaultsStore::openFirst(idle.home().filePath(QStringLiteral("a")).toStdString(),
                                        idle.home().filePath(QStringLiteral("b")).toStdString());
    Stopwatch first;
    const app::WindowsLibrary library;
    const auto loaded = library.makeWindows({.model = idle.model,
                                             .defaults = defaults,
                                             .clock = idle.clock,
                                             .loginItem = loginItem,
                                             .notificationCentre = idle.notificationCentre,
                                             .codexProgram = idle.codexSetting(),
                                             // without the first start's question
                                             .launchContext = {.isFixtureMode = true},
                                             .timeLocale = "C",
                                             .zone = zone});
    if (!loaded) {
        qFatal("%s", qPrintable(loaded.error()));
    }
    app::Windows& windows = **loaded;
    const auto toggle = [&] { windows.togglePanel(QPoint(100, 20)); };
    if (asked == "panel") {
        toggle();
        const double milliseconds = first.toFrame();
        toggle();
        QTest::qWait(500); // longer than one click is taken for
        Stopwatch second;
        toggle();
        std::printf("%.1f %.1f\n", milliseconds, second.toFrame());
        return 0;
    }
    windows.openMainWindow();
    const double milliseconds = first.toFrame();
    if (asked == "pages") {
        if (!QTest::qWaitForWindowActive(onlyWindow())) {
            qFatal("The window takes no keys.");
        }
        for (const Qt::Key key : {Qt::Key_2, Qt::Key_3, Qt::Key_2, Qt::Key_3}) {
            std::printf("%.1f ", pageSwitch(key));
        }
    } else {
        std::printf("%.1f\n", milliseconds);
    }
    return 0;
}
