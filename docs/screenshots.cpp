// Draws the pages, the panel and the first question, with fixed figures at a fixed time, light and
// dark, into the folder that is named.

#include "core/fixtures.h"
#include "platform/linux/autostart_entry.h"
#include "support/home_files.h"
#include "support/idle_model.h"
#include "support/test_main.h"
#include "ui/dashboard/main_window.h"
#include "ui/menubar/menu_bar_quota_view_model.h"
#include "ui/menubar/quota_panel.h"
#include "ui/style/engine.h"

#include <QtGui/QFont>
#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickView>

#include <cmath>

using namespace std::chrono_literals;
using namespace tallyvane;

namespace {

const model::Timestamp now = std::chrono::sys_days{std::chrono::year{2026} / 11 / 21} + 14h + 20min;

/// A quarter in which both assistants were at work on most days.
history::UsageHistory quarter() {
    history::UsageHistory history;
    for (int day = 0; day < 90; ++day) {
        for (const auto provider : {model::AIProvider::codex, model::AIProvider::claude}) {
            const int seed = day * 7 + static_cast<int>(provider) * 3;
            if (seed % 5 != 0) {
                history.points.push_back(
                    {.date = now - std::chrono::days(day),
                     .provider = provider,
                     .estimatedQuotaConsumed = std::fabs(std::sin(seed * 1.3)) * 14,
                     .estimatedLocalTokens =
                         static_cast<std::int64_t>(std::fabs(std::sin(seed * 0.7)) * 2.4e6)});
            }
        }
    }
    return history;
}

class Camera {
public:
    explicit Camera(QString folder) : m_folder(std::move(folder)) {}

    void take(QWindow* window, const QString& name) const {
        QCoreApplication::processEvents();
        const QImage picture = static_cast<QQuickView*>(window)->grabWindow();
        const QString path = QStringLiteral("%1/%2.png").arg(m_folder, name);
        constexpr int smallest = 0;
        if (!picture.save(path, "PNG", smallest)) {
            qFatal("%s could not be written.", qPrintable(path));
        }
    }

private:
    QString m_folder;
};

void takeAll(const Camera& camera, model::AppAppearance choice, const QString& suffix) {
    const model::LocalZone utc(QTimeZone::utc());
    tests::IdleModel idle(core::fixtureSnapshot(now, utc), now, quarter());
    idle.model.setAppearance(choice);
    tests::writeFile(idle.home().filePath(QStringLiteral("codex")), "#!/bin/sh\n");
    ui::Appearance appearance(idle.model);
    appearance.setMotionReduced(true);
    const auto engine = ui::makeEngine(appearance);
    const auto givenEngine = [&]() -> QQmlEngine& { return *engine; };
    platform::AutostartEntry loginItem({});
    bool isToAsk = false;
    ui::MainWindow mainWindow(givenEngine, {.model = idle.model,
                                            .defaults = idle.defaults,
                                            .appearance = appearance,
                                            .clock = idle.clock,
                                            .loginItem = loginItem,
                                            .notificationCentre = idle.notificationCentre,
                                            .locale = "en_US",
                                            .zone = utc,
                                            .website = QUrl(QStringLiteral(TALLYVANE_WEBSITE)),
                                            .codexProgram = idle.codexSetting(),
                                            .openNotificationSettings = [] {},
                                            .takeLaunchQuestion = [&] { return isToAsk; }});
    // Of a size that the screen in memory is too small for.
    const auto openMainWindow = [&mainWindow] {
        mainWindow.open();
        mainWindow.window()->resize(820, 760);
    };
    openMainWindow();
    QObject* content = static_cast<QQuickView*>(mainWindow.window())->rootObject();
    for (const auto& [page, name] : {std::pair{0, "dashboard"}, {1, "history"}, {2, "settings"}}) {
        content->setProperty("page", page);
        camera.take(mainWindow.window(), QLatin1StringView(name) + suffix);
    }
    mainWindow.close();
    isToAsk = true;
    openMainWindow();
    camera.take(mainWindow.window(), QStringLiteral("question") + suffix);
    mainWindow.close();

    ui::MenuBarQuotaViewModel panelModel(idle.model, idle.clock);
    ui::QuotaPanel panel(givenEngine, panelModel);
    panel.open({});
    camera.take(panel.window(), QStringLiteral("panel") + suffix);
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir home;
    tests::isolate(home);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        qFatal("usage: screenshots <folder>");
    }
    QGuiApplication::setFont(QFont(QStringLiteral("Cantarell"), 11));
    const Camera camera(QString::fromLocal8Bit(argv[1]));
    takeAll(camera, model::AppAppearance::light, {});
    takeAll(camera, model::AppAppearance::dark, QStringLiteral("-dark"));
    return 0;
}
