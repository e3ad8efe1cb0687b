#include "core/fixtures.h"
#include "core/preferences.h"
#include "platform/linux/autostart_entry.h"
#include "support/home_files.h"
#include "support/shown_window.h"
#include "ui/dashboard/main_window.h"

#include <QtGui/QAccessible>
#include <QtGui/QClipboard>

#include <cmath>

using namespace std::chrono_literals;
using namespace tallyvane;
using namespace Qt::StringLiterals;
using std::chrono::sys_days;
using std::chrono::year;

namespace {

// A Saturday morning 14 hours east of UTC, where it is still Friday.
const model::LocalZone zone{QTimeZone("Pacific/Kiritimati")};
const model::Timestamp morning = sys_days{year{2026} / 11 / 20} + 14h;

struct OpenWindow final : tests::ShownWindow {
    explicit OpenWindow(const model::QuotaSnapshot& snapshot = core::fixtureSnapshot(morning, zone))
        : ShownWindow(snapshot, morning, core::fixtureHistory(morning, zone)) {
        show();
    }

    void show() {
        window.open();
        QVERIFY(QTest::qWaitForWindowActive(view()));
    }
    /// Whether the login item, if changed, reports that it could not be.
    void setLoginItemBroken(bool isBroken) const {
        const QString folder = idle.home().filePath(u"autostart"_s);
        isBroken ? tests::writeFile(folder, {}) : void(QFile::remove(folder));
    }
    /// Opens the page with this number.
    void open(int page) const {
        press(static_cast<Qt::Key>(Qt::Key_0 + page), Qt::ControlModifier);
    }
    void type(const char* name, const char* text) const {
        item(name)->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_A, Qt::ControlModifier);
        for (const char character : std::string_view(text)) {
            QTest::keyClick(view(), character);
        }
        press(Qt::Key_Return);
    }

    [[nodiscard]] QQuickView* view() const override {
        return static_cast<QQuickView*>(window.window());
    }
    [[nodiscard]] ui::MainWindowModel* viewModel() const {
        return root()->property("viewModel").value<ui::MainWindowModel*>();
    }
    [[nodiscard]] ui::ProviderCard card(const char* name) const {
        return item(name)->property("card").value<ui::ProviderCard>();
    }
    [[nodiscard]] notify::NotificationWindow timeWindow() const {
        return idle.model.notificationSettings().windows.at(0);
    }

    platform::AutostartEntry loginItem{
        {.userDirectory = idle.home().filePath(u"autostart"_s).toStdString(),
         .program = "/bin/sh"}};
    int questions = 0; ///< how many times the window may ask
    int settingsOpened = 0;
    ui::MainWindow window{
        [this]() -> QQmlEngine& { return *engine; },
        {.model = idle.model,
         .defaults = idle.defaults,
         .appearance = appearance,
         .clock = idle.clock,
         .loginItem = loginItem,
         .notificationCentre = idle.notificationCentre,
         .locale = "de_DE",
         .zone = zone,
         .website = QUrl(u"https://maker.example"_s),
         .version = u"1.2"_s,
         .codexProgram = idle.codexSetting(),
         .openNotificationSettings = [this] { ++settingsOpened; },
         .takeLaunchQuestion = [this] { return std::exchange(questions, 0) > 0; }}};
};

/// The bar at `index` of all: its filled part, 0 to 1, and whether it has the colour of a warning.
struct QuotaBarLook {
    int index;
    double fraction;
    bool isLow;
};

} // namespace

class MainWindowTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void dashboard() {
        OpenWindow open;
        QVERIFY(!open.item("lastError"));
        QCOMPARE(open.card("Codex").week.resetText, u"Mo., 04:00"_s);
        for (const QuotaBarLook& look : {QuotaBarLook{0, 0.58, false}, {2, 0.19, true}}) {
            const QQuickItem* fill = open.items("fill").at(look.index);
            TALLYVANE_TRY_COMPARE(fill->width(), fill->parentItem()->width() * look.fraction);
            const auto colour = fill->childItems().at(0)->property("color").value<QColor>();
            QCOMPARE(colour.red() > colour.green(), look.isLow);
        }
        open.items("fill").at(0)->setWidth(0.3); // as while it grows
        QVERIFY(!open.view()->grabWindow().isNull());
        const QQuickItem* mark = open.items("evenMark").at(0);
        const double even =
            mark->parentItem()->width() * 136 / 300; // minutes of the window to come
        QVERIFY(std::abs(mark->x() + mark->width() / 2 - even) <= 0.5);
        open.idle.clock.advance(59s);
        QCOMPARE(open.text("updated"), u"Updated 2 min ago"_s);
        open.idle.clock.advance(1s);
        QCOMPARE(open.text("updated"), u"Updated 3 min ago"_s);

        const QSignalSpy requested(&open.window, &ui::MainWindow::refreshRequested);
        open.press("refresh", Qt::Key_Space);
        open.press(Qt::Key_F5);
        QCOMPARE(requested.count(), 2);
        QCoro::waitFor(open.idle.model.refresh(providers::AskedBy::user));
        QCOMPARE(open.text("updated"), u"Updated just now"_s);
        QCOMPARE(open.text("lastError"), u"Could not find Codex CLI."_s);
        QVERIFY(!open.item("useFoundProgram"));
        QVERIFY(open.text("trouble").contains(u"'claude'"));

        const QString elsewhere = open.idle.home().filePath(u".nvm/versions/node/v22/bin/codex"_s);
        tests::writeFile(elsewhere, "#!/bin/sh\n");
        QCoro::waitFor(open.idle.model.refresh(providers::AskedBy::user));
        QCOMPARE(open.item("useFoundProgram")->property("text"),
                 u"Use ~/.nvm/versions/node/v22/bin/codex"_s);
        open.press("useFoundProgram", Qt::Key_Space);
        QCOMPARE(open.idle.codexSetting().state().chosen, elsewhere);
    }

    void tellsOfOldFigures() {
        auto snapshot = core::fixtureSnapshot(morning, zone);
        auto& claude = snapshot.providers.at(1);
        claude.syncState = model::QuotaSyncState::pending;
        claude.statusMessage = u"Network error"_s;
        claude.syncedAt = morning - 150s;
        claude.week->usedPercent = 99.6;
        OpenWindow open(snapshot);
        const QQuickItem* sliver = open.items("fill").at(3);
        TALLYVANE_TRY_COMPARE(sliver->width(), sliver->parentItem()->width() * (100 - 99.6) / 100);
        QCOMPARE(open.card("Codex").age, QString());
        QVERIFY(open.text("trouble").startsWith(u"Network error. Check "));
        open.idle.clock.advance(29s);
        QCOMPARE(open.card("Claude").age, u"From 2 min ago"_s);
        open.idle.clock.advance(1s);
        QCOMPARE(open.card("Claude").age, u"From 3 min ago"_s);
    }

    void history() {
        OpenWindow open;
        open.open(2);
        QCOMPARE(open.text("subtitle"), u"% of quota used"_s);
        auto* chart = open.viewModel()->history();
        const auto value = [](QAbstractItemModel* rows, int row, const char* role) {
            return rows->data(rows->index(row, 0), rows->roleNames().key(role)).toDouble();
        };
        QCOMPARE(value(chart->valueMarks(), 0, "position"), 0);
        const auto segments = chart->segments();
        QCOMPARE(segments[1].base, segments[0].extent); // Claude's stands on Codex's.
        QCOMPARE(segments[2].base, 0);
        open.press("chart", Qt::Key_Left);
        QCOMPARE(chart->hoveredText(), u"Sa., 21. Nov. 2026, Codex 8.0%, Claude 14.0%, "
                                       "Shares of two weekly quotas, added up"_s);
        open.press(Qt::Key_Left);
        QCOMPARE(chart->hoveredTitle(), u"Fr., 20. Nov. 2026"_s);
        QVERIFY(open.item("bars")
                    ->property("segments")
                    .value<QList<ui::ChartSegment>>()
                    .last()
                    .isDimmed);
        chart->hover(0);
        QCOMPARE(chart->hoveredTitle(), u"So., 8. Nov. 2026"_s);
        open.press("metric", Qt::Key_Right);
        // What assistive programs do to a button that can be on.
        auto* periods = QAccessible::queryAccessibleInterface(open.item("period"));
        const auto isMonthly = [=] { return periods->child(1)->state().checked; };
        QVERIFY(!isMonthly());
        chart->hover(0);
        periods->child(1)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(isMonthly() && !periods->child(0)->state().checked && !chart->isHovered());
        QCOMPARE(open.text("subtitle"), u"Estimated tokens used"_s);
        chart->hover(1);
        QCOMPARE(chart->hoveredText(),
                 u"November 2026, Codex 13\u00A0Mio. tokens, Claude 8,8\u00A0Mio. tokens"_s);

        const auto* period = open.item("period");
        const double place = period->mapToScene({}).x();
        open.press("copy", Qt::Key_Space);
        QCOMPARE(open.text("copy"), u"Copied"_s);
        QVERIFY(!open.view()->grabWindow().isNull());
        QCOMPARE(period->mapToScene({}).x(), place);
        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY2(copied.startsWith(u"day,provider,weekly_quota_percent,tokens\r\n"
                                   "2026-11-21,codex,8,120000\r\n2026-11-21,claude,14,84000\r\n"),
                 qPrintable(copied));
        open.press("heatmap", Qt::Key_Down);
        QCOMPARE(open.text("told"), u"Sa., 21. Nov. 2026: 204.000 tokens"_s);
        open.press("filter", Qt::Key_Right);
        open.press("heatmap", Qt::Key_Down);
        QCOMPARE(open.text("told"), u"Sa., 21. Nov. 2026: 120.000 tokens"_s);
        open.press(Qt::Key_Down); // Sunday is in the future.
        open.press(Qt::Key_Left);
        QVERIFY(open.text("told").startsWith("Sa., 14. Nov."_L1));
        auto* heatmap = open.viewModel()->heatmap();
        QCOMPARE(heatmap->months()->rowCount(), 6);
        QCOMPARE(value(heatmap->months(), 5, "position"), 22. / 26); // in whose week November began
        const auto legend = heatmap->legend();
        const auto cells = heatmap->cells();
        open.idle.model.setAppearance(model::AppAppearance::dark);
        QVERIFY(!cells.isEmpty() && heatmap->cells()[0] != cells[0]);
        QVERIFY(heatmap->legend() != legend);
        open.idle.model.clearHistory();
        QVERIFY(open.text("told").endsWith(": No record"_L1));
        for (const auto& [day, reason] : {std::pair{90, false}, {91, true}}) {
            // Today is the sixth day of the last of 26 weeks.
            open.viewModel()->heatmap()->point(25 * 7 + 5 - day);
            QCOMPARE(open.text("told").endsWith("(the history covers 90 days)"_L1), reason);
        }
        QVERIFY(chart->isEmpty() && !chart->isHovered());
    }

    void beginsEachDay() {
        OpenWindow open;
        open.open(2);
        auto* chart = open.viewModel()->history();
        open.press("heatmap", Qt::Key_Escape);
        chart->step(1);
        for (const auto& [wait, today] :
             {std::pair{20h, "So., 22. Nov."}, {24h, "Mo., 23. Nov."}}) {
            const double place = chart->hoveredCentre();
            open.idle.clock.advance(wait);
            QVERIFY(chart->hoveredCentre() < place);
            open.press(Qt::Key_Down);
            QVERIFY(open.text("told").startsWith(QLatin1StringView(today)));
            open.press(Qt::Key_Escape);
        }
    }

    void settings() {
        OpenWindow open;
        open.idle.notificationCentre.isOn = false;
        open.open(3);
        QCOMPARE(open.text("start"), u"09:00"_s);
        open.press("notAuthorizedHelp", Qt::Key_Space);
        QCOMPARE(open.settingsOpened, 1);
        open.idle.notificationCentre.isOn = true;
        QVERIFY(!open.item("lowQuotaNotAuthorized"));
        open.idle.notificationCentre.isOn = false;
        open.press("warnsOfLowQuota", Qt::Key_Space);
        QVERIFY(open.idle.model.warnsOfLowQuota() && core::loadWarnsOfLowQuota(open.idle.defaults));
        QVERIFY(open.item("lowQuotaNotAuthorized"));
        open.idle.notificationCentre.isOn = true;
        open.press("notifies", Qt::Key_Space);
        QVERIFY(open.idle.model.notificationSettings().enabled);
        TALLYVANE_TRY_VERIFY(!open.item("notAuthorized"));
        for (const bool isOn : {false, true}) { // as when the daemon ends, and starts again
            open.idle.notificationCentre.isOn = isOn;
            Q_EMIT open.idle.notificationCentre.authorizationChanged();
            TALLYVANE_TRY_COMPARE(open.item("notAuthorized") == nullptr, isOn);
        }

        open.type("start", "0:00");
        open.type("end", "2359");
        QCOMPARE(open.timeWindow().startMinutes, 0);
        QCOMPARE(open.timeWindow().endMinutes, 1439);
        open.type("end", "25:00");
        QCOMPARE(open.text("end"), u"23:59"_s);
        open.press(Qt::Key_Up);
        QCOMPARE(open.timeWindow().endMinutes, 14);
        open.press(Qt::Key_Down);
        QCOMPARE(open.timeWindow().endMinutes, 1439);
        open.press("allDay", Qt::Key_Space);
        QVERIFY(open.timeWindow().allDay && !open.item("start"));
        open.press(Qt::Key_Space);
        QCOMPARE(open.text("start"), u"00:00"_s);

        open.type("end", "0:00");
        QVERIFY(open.text("windowsNote").endsWith(u"allows any."));
        QVERIFY(open.text("windowNote").startsWith(u"No time lies"));
        auto off = open.idle.model.notificationSettings();
        off.windows[0].enabled = false;
        off.windows[0].endMinutes = 1;
        open.idle.model.setNotificationSettings(off);
        QVERIFY(open.text("windowsNote").endsWith(u"allows any."));
        open.press("windowNoteHelp", Qt::Key_Space);
        QVERIFY(!open.item("windowNote") && !open.item("windowsNote"));
        open.press("addWindow", Qt::Key_Space);
        TALLYVANE_TRY_COMPARE(open.items("remove").size(), 2);
        const auto windows = open.idle.model.notificationSettings().windows;
        open.items("remove")[1]->forceActiveFocus(Qt::TabFocusReason);
        open.press(Qt::Key_Space);
        QCOMPARE(open.idle.model.notificationSettings().windows, std::vector{windows[0]});
        TALLYVANE_TRY_COMPARE(open.items("remove").size(), 1);
        open.press("remove", Qt::Key_Space);
        TALLYVANE_TRY_VERIFY(open.text("windowsNote").endsWith(u"there is no time window."));

        open.press("providers", Qt::Key_Right);
        QCOMPARE(core::loadOnlyProvider(open.idle.defaults), model::AIProvider::codex);
        QVERIFY(open.item("codexState"));
        open.press(Qt::Key_Right);
        QVERIFY(!open.item("codexState") && !open.item("codexPath"));
        open.open(1);
        TALLYVANE_TRY_VERIFY(open.item("Claude") && !open.item("Codex"));
        open.open(2);
        QVERIFY(!open.item("filter"));
        QCOMPARE(open.viewModel()->history()->key()->rowCount(), 1);
        open.idle.model.setOnlyProvider({});
        QVERIFY(open.item("filter"));
        open.open(1);
        TALLYVANE_TRY_VERIFY(open.item("Codex")->y() < open.item("Claude")->y());
        open.open(3);

        tests::writeFile(open.idle.home().filePath(u"mine/codex"_s), "#!/bin/sh\n");
        const std::pair<const char*, const char*> rows[] = {
            {"~/mine/codex", "In use: ~/mine/codex, chosen by you."},
            {"~/codex", "Could not find %1/codex."},
            {"codex", "Not an absolute path: codex"}};
        for (const auto& [typed, state] : rows) {
            open.type("codexPath", typed);
            QCOMPARE(open.text("codexState"),
                     QString::fromLatin1(state).replace(u"%1"_s, open.idle.home().path()));
            QCOMPARE(open.text("codexPath"), QLatin1StringView(typed));
        }
        open.press("codexAutomatic", Qt::Key_Space);
        QCOMPARE(open.text("codexPath"), QString());
        QCOMPARE(open.text("codexState"), u"Could not find Codex CLI."_s);

        open.setLoginItemBroken(true);
        open.press("launchAtLogin", Qt::Key_Space);
        QVERIFY(!open.item("launchAtLogin")->property("checked").toBool());
        QVERIFY(open.text("launchError").contains(u"autostart"));
        open.setLoginItemBroken(false);
        open.press(Qt::Key_Space);
        QCOMPARE(open.loginItem.status(), platform::LoginItemStatus::enabled);
    }

    void forgetsRemovedItems() {
        OpenWindow open;
        open.open(3);
        open.press("addWindow", Qt::Key_Space);
        open.idle.notificationCentre.isOn = false;
        Q_EMIT open.idle.notificationCentre.authorizationChanged();
        TALLYVANE_TRY_VERIFY(open.item("notAuthorized"));
        auto windows = open.idle.model.notificationSettings();
        windows.windows.clear();
        const std::function<void()> rows[] = {
            [&] { open.idle.model.setOnlyProvider(model::AIProvider::claude); },
            [&] { open.idle.model.setNotificationSettings(windows); },
            [&] {
                open.idle.notificationCentre.isOn = true;
                Q_EMIT open.idle.notificationCentre.authorizationChanged();
            }};
        for (const auto& remove : rows) {
            remove();
            QCoreApplication::sendPostedEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            open.root()->setWidth(open.root()->width() - 1); // before the next frame
        }
    }

    void remembersItsShape() {
        OpenWindow open;
        open.view()->resize(700, 600);
        open.window.close();
        open.show();
        QCOMPARE(open.view()->size(), QSize(700, 600));
        open.view()->showMaximized();
        open.window.close();
        open.show();
        QVERIFY(open.view()->windowStates() & Qt::WindowMaximized);
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
        open.view()->showMinimized();
        open.window.open();
        QVERIFY(!(open.view()->windowStates() & Qt::WindowMinimized));
        open.view()->showNormal();
        open.window.close();
        QVERIFY(open.idle.defaults.setText(u"windowSize"_s, u"99999x10"_s));
        open.show();
        const QSize screen = open.view()->screen()->availableSize();
        QCOMPARE(open.view()->size(), QSize(screen.width(), open.view()->minimumHeight()));
    }

    void tellsOfAMissingHost() {
        OpenWindow open;
        open.window.setHasStatusHost(false);
        const QSignalSpy quit(&open.window, &ui::MainWindow::quitRequested);
        open.press("quit", Qt::Key_Space);
        QCOMPARE(quit.count(), 1);
        open.press("dismissHostNotice", Qt::Key_Space);
        open.window.close();
        open.show();
        QVERIFY(!open.item("quit"));
    }

    void followsShortcuts() {
        const OpenWindow open;
        const QSignalSpy quit(&open.window, &ui::MainWindow::quitRequested);
        const auto goes = [&](Qt::Key key, Qt::KeyboardModifiers with, int page) {
            open.press(key, with);
            QCOMPARE(open.root()->property("page").toInt(), page);
        };
        goes(Qt::Key_Comma, Qt::ControlModifier, 2);
        open.item("notifies")->forceActiveFocus(Qt::TabFocusReason);
        goes(Qt::Key_Tab, Qt::ControlModifier, 0);
        goes(Qt::Key_PageDown, Qt::ControlModifier, 1);
        goes(Qt::Key_PageUp, Qt::ControlModifier, 0);
        goes(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier, 2);
        open.press(Qt::Key_Space); // scrolls, as the switch has lost the focus
        QVERIFY(!open.idle.model.notificationSettings().enabled);
        for (const auto close : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_F1}) {
            open.press(Qt::Key_Question, Qt::ControlModifier);
            QCOMPARE(open.text("version"), u"Tallyvane 1.2"_s);
            QVERIFY(open.text("settingsFile").contains(u"~/"));
            goes(Qt::Key_Tab, Qt::ControlModifier, 2);
            open.press(Qt::Key_Q, Qt::ControlModifier);
            open.press(close);
            TALLYVANE_TRY_VERIFY(!open.item("version"));
        }
        open.press(Qt::Key_Escape);
        QVERIFY(open.view()->isVisible());
        open.press(Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(quit.count(), 4);
    }

    void asksOnce() {
        OpenWindow open;
        const auto ask = [&open] {
            open.window.close();
            open.questions = 1;
            open.show();
        };
        for (const auto decline : {Qt::Key_Space, Qt::Key_Escape}) {
            ask();
            open.press("notNow", decline);
            TALLYVANE_TRY_VERIFY(!open.item("notNow") && open.view()->isVisible());
        }
        QCOMPARE(open.loginItem.status(), platform::LoginItemStatus::notRegistered);
        open.setLoginItemBroken(true);
        ask();
        open.open(3); // The question comes first.
        QVERIFY(open.item("updated"));
        open.press("wanted", Qt::Key_Return);
        QVERIFY(open.text("error").contains(u"autostart"));
        open.setLoginItemBroken(false);
        open.press(Qt::Key_Return);
        QCOMPARE(open.loginItem.status(), platform::LoginItemStatus::enabled);
        TALLYVANE_TRY_VERIFY(!open.item("continue"));
    }

    void keepsItsLayout() {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            for (const auto& [points, width] : {std::pair{10, 640}, {10, 1600}, {20, 640}}) {
                OpenWindow::setLook(points, direction);
                const OpenWindow open;
                open.view()->resize(QSize(width, 700).expandedTo(open.view()->minimumSize()));
                TALLYVANE_TRY_COMPARE(open.misplaced({"Codex", "Claude", "refresh", "website"}),
                                      "");
                TALLYVANE_TRY_COMPARE(open.misplaced({"plan"}), "");
                const bool isBeside = open.item("interval")->y() == 0;
                QCOMPARE(open.text("interval").startsWith(u"·"), isBeside);
                open.open(2);
                TALLYVANE_TRY_COMPARE(
                    open.misplaced({"metric", "period", "filter", "chart", "heatmap"}), "");
                open.open(3);
                TALLYVANE_TRY_COMPARE(open.misplaced({"appearance", "launchAtLogin", "allDay",
                                                      "start", "end", "remove"}),
                                      "");
            }
        }
    }
};

TALLYVANE_GUI_TEST(MainWindowTest)
#include "main_window_test.moc"
