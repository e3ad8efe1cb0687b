// Draws the pages, the panel and the first question, with fixed figures at a fixed time, into the
// folder that is named. Fails if a text of theirs is cut off. $QT_SCALE_FACTOR is the screen's
// scale.

#include "core/fixtures.h"
#include "platform/linux/autostart_entry.h"
#include "support/home_files.h"
#include "support/idle_model.h"
#include "support/test_main.h"
#include "ui/dashboard/main_window.h"
#include "ui/menubar/menu_bar_quota_view_model.h"
#include "ui/menubar/quota_panel.h"
#include "ui/style/engine.h"
#include "ui/translation/translation.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>
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

    void take(QWindow* window, const QString& name) {
        auto* view = static_cast<QQuickView*>(window);
        QCoreApplication::processEvents();
        std::ignore = view->grabWindow(); // lays out texts, whose lines change the window's height
        QCoreApplication::processEvents();
        m_hasSeenCutText |= hasCutText(view->rootObject(), name);
        const QImage picture = view->grabWindow();
        const QString path = QStringLiteral("%1/%2.png").arg(m_folder, name);
        constexpr int smallest = 0;
        if (!picture.save(path, "PNG", smallest)) {
            qFatal("%s could not be written.", qPrintable(path));
        }
    }

    [[nodiscard]] bool hasSeenCutText() const { return m_hasSeenCutText; }

private:
    /// Whether a text at or below `item` has no room, or reaches past the window's sides.
    static bool hasCutText(const QQuickItem* item, const QString& name) {
        if (!item->isVisible()) {
            return false;
        }
        const QRectF place = item->mapRectToScene(item->boundingRect());
        const QString text = item->property("text").toString();
        bool isCut = item->inherits("QQuickText") &&
                     (item->property("truncated").toBool() ||
                      item->property("contentWidth").toDouble() > item->width() + 1 ||
                      place.left() < 0 || place.right() > item->window()->width());
        if (isCut) {
            qWarning("%s: \"%s\" is cut off", qUtf8Printable(name), qUtf8Printable(text));
        }
        for (const QQuickItem* child : item->childItems()) {
            isCut |= hasCutText(child, name);
        }
        return isCut;
    }

    QString m_folder;
    bool m_hasSeenCutText = false;
};

/// What the pictures show.
struct Scene {
    std::string locale;
    QSize window;
    model::AppAppearance scheme;
    bool isHighContrast;
    QString suffix; ///< of the files' names
};

void takeAll(Camera& camera, const Scene& scene) {
    const model::LocalZone utc(QTimeZone::utc());
    tests::IdleModel idle(core::fixtureSnapshot(now, utc), now, quarter());
    idle.model.setAppearance(scene.scheme);
    tests::writeFile(idle.home().filePath(QStringLiteral("codex")), "#!/bin/sh\n");
    ui::Appearance appearance(idle.model);
    appearance.setMotionReduced(true);
    appearance.setHighContrast(scene.isHighContrast);
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
                                            .locale = scene.locale,
                                            .zone = utc,
                                            .website = QUrl(QStringLiteral(TALLYVANE_WEBSITE)),
                                            .codexProgram = idle.codexSetting(),
                                            .openNotificationSettings = [] {},
                                            .takeLaunchQuestion = [&] { return isToAsk; }});
    // Of a size that the screen in memory is too small for.
    const auto openMainWindow = [&] {
        mainWindow.open();
        mainWindow.window()->resize(scene.window.expandedTo(mainWindow.window()->minimumSize()));
    };
    openMainWindow();
    QObject* content = static_cast<QQuickView*>(mainWindow.window())->rootObject();
    for (const auto& [page, name] : {std::pair{0, "dashboard"}, {1, "history"}, {2, "settings"}}) {
        content->setProperty("page", page);
        camera.take(mainWindow.window(), QLatin1StringView(name) + scene.suffix);
    }
    mainWindow.close();
    isToAsk = true;
    openMainWindow();
    camera.take(mainWindow.window(), QStringLiteral("question") + scene.suffix);
    mainWindow.close();

    ui::MenuBarQuotaViewModel panelModel(idle.model, idle.clock);
    ui::QuotaPanel panel(givenEngine, panelModel);
    panel.open({});
    camera.take(panel.window(), QStringLiteral("panel") + scene.suffix);
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir home;
    tests::isolate(home);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QCommandLineParser options;
    options.addOptions(
        {{QStringLiteral("language"), {}, QStringLiteral("locale"), QStringLiteral("en_US")},
         {QStringLiteral("width"), {}, QStringLiteral("pixels"), QStringLiteral("820")},
         {QStringLiteral("height"), {}, QStringLiteral("pixels"), QStringLiteral("760")},
         {QStringLiteral("text"), {}, QStringLiteral("percent"), QStringLiteral("100")},
         {QStringLiteral("contrast"), QStringLiteral("high contrast")}});
    options.addPositionalArgument(QStringLiteral("folder"), {});
    options.process(application);
    const auto number = [&](const char* name) {
        return options.value(QLatin1StringView(name)).toInt();
    };
    if (options.positionalArguments().size() != 1) {
        options.showHelp(2);
    }
    const QString language = options.value(QStringLiteral("language"));
    QTranslator translator;
    const QLocale locale = ui::loadTranslation(translator, {language});
    QLocale::setDefault(locale);
    QGuiApplication::setLayoutDirection(locale.textDirection());
    QCoreApplication::installTranslator(&translator);
    QGuiApplication::setFont(QFont(QStringLiteral("Cantarell"), 11 * number("text") / 100));

    Camera camera(options.positionalArguments().constFirst());
    Scene scene{.locale = language.toStdString(),
                .window = {number("width"), number("height")},
                .scheme = model::AppAppearance::light,
                .isHighContrast = options.isSet(QStringLiteral("contrast")),
                .suffix = {}};
    takeAll(camera, scene);
    scene.scheme = model::AppAppearance::dark;
    scene.suffix = QStringLiteral("-dark");
    takeAll(camera, scene);
    return camera.hasSeenCutText() ? 1 : 0;
}
