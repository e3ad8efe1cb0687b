#include "core/fixtures.h"
#include "support/fake_login_item.h"
#include "support/gui_test_main.h"
#include "support/idle_model.h"
#include "ui/dashboard/main_window.h"
#include "ui/style/engine.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QFont>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickView>
#include <QtTest/QSignalSpy>

using namespace std::chrono_literals;
using namespace tallyvane;
using platform::LoginItemStatus;

namespace {

struct OpenWindow {
    static constexpr model::Timestamp now =
        std::chrono::sys_days{std::chrono::year{2026} / 11 / 21} + 14h;

    OpenWindow() { show(); }

    void show() {
        window.open();
        QVERIFY(QTest::qWaitForWindowActive(view()));
    }

    [[nodiscard]] QQuickView* view() const { return static_cast<QQuickView*>(window.window()); }
    [[nodiscard]] QQuickItem* root() const { return view()->rootObject(); }

    static void collect(QQuickItem* in, const QString& name, QList<QQuickItem*>& found) {
        if (in->objectName() == name) {
            found << in;
        }
        for (QQuickItem* child : in->childItems()) {
            collect(child, name, found);
        }
    }
    /// Those of that object name that are on show.
    [[nodiscard]] QList<QQuickItem*> items(const char* name) const {
        QList<QQuickItem*> found;
        collect(root(), QString::fromLatin1(name), found);
        found.removeIf([](QQuickItem* item) { return !item->isVisible(); });
        return found;
    }
    [[nodiscard]] QQuickItem* item(const char* name) const {
        const auto found = items(name);
        return found.isEmpty() ? nullptr : found[0];
    }
    [[nodiscard]] QString text(const char* name) const {
        return item(name) != nullptr ? item(name)->property("text").toString() : QString();
    }
    void focus(const char* name) const { item(name)->forceActiveFocus(Qt::TabFocusReason); }
    void press(Qt::Key key, Qt::KeyboardModifiers with = {}) const {
        QTest::keyClick(view(), key, with);
    }
    void write(const char* name, const char* typed) const {
        focus(name);
        for (const char* character = typed; *character != 0; ++character) {
            QTest::keyClick(view(), *character);
        }
        press(Qt::Key_Return);
    }
    [[nodiscard]] notify::NotificationWindow timeWindow() const {
        return idle.model.notificationSettings().windows.at(0);
    }

    model::LocalZone zone{QTimeZone::utc()};
    tests::IdleModel idle{core::fixtureSnapshot(now, zone), now, core::fixtureHistory(now, zone)};
    tests::FakeLoginItem loginItem;
    int questions = 0; ///< how many times the window may ask
    int settingsOpened = 0;
    ui::Appearance appearance{model::AppAppearance::light};
    std::unique_ptr<QQmlEngine> engine = ui::makeEngine(appearance);
    ui::MainWindow window{
        [this]() -> QQmlEngine& { return *engine; },
        {.model = idle.model,
         .appearance = appearance,
         .clock = idle.clock,
         .loginItem = loginItem,
         .notificationCentre = idle.notificationCentre,
         .locale = "de_DE",
         .zone = zone,
         .website = QUrl(QStringLiteral("https://maker.example")),
         .openNotificationSettings = [this] { ++settingsOpened; },
         .takeLaunchQuestion = [this] { return std::exchange(questions, 0) > 0; }}};
};

} // namespace

class MainWindowTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        QGuiApplication::setFont(QFont());
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void dashboard() {
        OpenWindow open;
        QCOMPARE(open.text("updated"), QStringLiteral("Updated 2 min ago"));
        QCOMPARE(open.text("website"), QStringLiteral("maker.example"));
        open.idle.clock.advance(59s);
        QCOMPARE(open.text("updated"), QStringLiteral("Updated 2 min ago"));
        open.idle.clock.advance(1s);
        QCOMPARE(open.text("updated"), QStringLiteral("Updated 3 min ago"));

        const QSignalSpy wished(&open.window, &ui::MainWindow::refreshRequested);
        open.focus("refresh");
        open.press(Qt::Key_Space);
        open.press(Qt::Key_F5);
        QCOMPARE(wished.count(), 2);
        QList<bool> isEnabled; // Where nothing is installed a refresh may end before it is awaited.
        connect(&open.idle.model, &core::AppModel::isRefreshingChanged, open.item("refresh"),
                [&] { isEnabled << open.item("refresh")->isEnabled(); });
        QCoro::waitFor(open.idle.model.refresh(providers::AskedBy::user));
        QCOMPARE(isEnabled, QList({false, true}));
        QCOMPARE(open.text("updated"), QStringLiteral("Updated just now"));
        QCOMPARE(open.text("lastError"), *open.idle.model.lastError());
    }

    void showsPlansWhole() {
        for (int size = 9; size < 20; ++size) {
            QGuiApplication::setFont(QFont(QGuiApplication::font().family(), size));
            const OpenWindow open;
            QCOMPARE(open.items("plan").size(), 2);
            for (const QQuickItem* plan : open.items("plan")) {
                QTRY_VERIFY2(!plan->property("truncated").toBool(),
                             qPrintable(QString::number(size)));
            }
        }
    }

    void nothingTicksWhenClosed() {
        OpenWindow open;
        open.press(Qt::Key_2, Qt::ControlModifier);
        QVERIFY(open.item("chart"));
        const QSignalSpy closed(&open.window, &ui::MainWindow::closed);
        open.press(Qt::Key_W, Qt::ControlModifier);
        QCOMPARE(closed.count(), 1);
        QTRY_COMPARE(open.idle.clock.pendingAlarms(), 0U);
        open.show();
        QVERIFY(open.item("updated"));
    }

    void opensInTheZoneOfTheMoment() {
        OpenWindow open;
        open.press(Qt::Key_W, Qt::ControlModifier);
        qputenv("TZ", "Pacific/Kiritimati");
        ::tzset();
        const auto restore = qScopeGuard([] {
            qputenv("TZ", "UTC");
            ::tzset();
        });
        open.show();
        open.press(Qt::Key_2, Qt::ControlModifier);
        auto* chart = open.root()->property("viewModel").value<ui::MainWindowModel*>()->history();
        open.focus("chart");
        open.press(Qt::Key_Left);
        QVERIFY2(chart->hoveredText().startsWith(u"So., 22. Nov. 2026"),
                 qPrintable(chart->hoveredText()));
    }

    /// At a minute past midnight the clocks went back to the day before, whose midnight has been.
    void restsWhileMidnightIsPast() {
        qputenv("TZ", "EST2:30EDT1:30,M1.1.0/0,M11.4.0/0:01");
        ::tzset();
        const auto restore = qScopeGuard([] {
            qputenv("TZ", "UTC");
            ::tzset();
        });
        OpenWindow open;
        open.idle.clock.advance(11h + 40min);
        open.press(Qt::Key_2, Qt::ControlModifier);
        auto* chart = open.root()->property("viewModel").value<ui::MainWindowModel*>()->history();
        const QSignalSpy changed(chart, &ui::HistoryModel::changed);
        open.idle.clock.advance(1min);
        QVERIFY2(changed.count() <= 60, qPrintable(QString::number(changed.count())));
    }

    void history() {
        OpenWindow open;
        open.press(Qt::Key_2, Qt::ControlModifier);
        QCOMPARE(open.text("subtitle"), QStringLiteral("% of quota used"));
        auto* chart = open.root()->property("viewModel").value<ui::MainWindowModel*>()->history();
        open.focus("chart");
        open.press(Qt::Key_Left);
        QCOMPARE(chart->hoveredText(),
                 QStringLiteral("Sa., 21. Nov. 2026, Codex 8.0%, Claude 14.0%"));
        chart->hover(0);
        QCOMPARE(chart->hoveredTitle(), QStringLiteral("So., 8. Nov. 2026"));
        open.focus("metric");
        open.press(Qt::Key_Right);
        open.focus("period");
        open.press(Qt::Key_Right);
        QCOMPARE(open.text("subtitle"), QStringLiteral("Estimated tokens used"));
        chart->hover(1);
        QCOMPARE(chart->hoveredText(), QStringLiteral("November 2026, Codex 13\u00A0Mio. tokens, "
                                                      "Claude 8,8\u00A0Mio. tokens"));

        open.focus("heatmap");
        open.press(Qt::Key_Down);
        QCOMPARE(open.text("told"), QStringLiteral("Sa., 21. Nov. 2026: 204.000 tokens"));
        open.press(Qt::Key_Down); // Sunday is in the future.
        open.press(Qt::Key_Left);
        QVERIFY(open.text("told").startsWith(QLatin1StringView("Sa., 14. Nov.")));
        open.idle.model.clearHistory();
        QVERIFY(chart->isEmpty() && !chart->isHovered());
        QVERIFY(open.text("told").endsWith(QLatin1StringView(": 0 tokens")));
        open.idle.clock.advance(24h);
        open.press(Qt::Key_Down);
        QVERIFY(open.text("told").startsWith(QLatin1StringView("So., 15. Nov.")));
    }

    void notificationSettings() {
        OpenWindow open;
        open.idle.notificationCentre.isOn = false;
        open.press(Qt::Key_3, Qt::ControlModifier);
        QCOMPARE(open.text("start"), QStringLiteral("09:00"));
        open.focus("openSettings");
        open.press(Qt::Key_Space);
        QCOMPARE(open.settingsOpened, 1);
        open.idle.notificationCentre.isOn = true;
        open.focus("notifies");
        open.press(Qt::Key_Space);
        QVERIFY(open.idle.model.notificationSettings().enabled);
        QTRY_VERIFY(!open.item("notAuthorized"));

        open.write("start", "0:00");
        open.write("end", "2359");
        QCOMPARE(open.timeWindow().startMinutes, 0);
        QCOMPARE(open.timeWindow().endMinutes, 1439);
        QCOMPARE(open.text("end"), QStringLiteral("23:59"));
        open.write("end", "25:00");
        QCOMPARE(open.text("end"), QStringLiteral("23:59"));
        open.press(Qt::Key_Up);
        QCOMPARE(open.timeWindow().endMinutes, 14);
        open.focus("allDay");
        open.press(Qt::Key_Space);
        QVERIFY(open.timeWindow().allDay && !open.item("start"));
        open.press(Qt::Key_Space);
        QCOMPARE(open.text("start"), QStringLiteral("00:00"));
    }

    void removesTheRightWindow() {
        OpenWindow open;
        open.press(Qt::Key_3, Qt::ControlModifier);
        open.focus("addWindow");
        open.press(Qt::Key_Space);
        QTRY_COMPARE(open.items("remove").size(), 2);
        const auto windows = open.idle.model.notificationSettings().windows;
        QVERIFY(windows[0].id != windows[1].id);
        open.items("remove")[1]->forceActiveFocus(Qt::TabFocusReason);
        open.press(Qt::Key_Space);
        QCOMPARE(open.idle.model.notificationSettings().windows, std::vector{windows[0]});
        QTRY_COMPARE(open.items("remove").size(), 1);
    }

    void otherSettings() {
        OpenWindow open;
        open.press(Qt::Key_3, Qt::ControlModifier);
        open.loginItem.isRefusing = true;
        open.focus("launchAtLogin");
        open.press(Qt::Key_Space);
        QVERIFY(!open.item("launchAtLogin")->property("checked").toBool());
        QCOMPARE(open.text("status"), QStringLiteral("Refused"));
        open.loginItem.isRefusing = false;
        open.press(Qt::Key_Space);
        QCOMPARE(open.loginItem.state, LoginItemStatus::enabled);
        open.focus("appearance");
        open.press(Qt::Key_Right);
        open.press(Qt::Key_Right);
        QCOMPARE(open.idle.model.appearance(), model::AppAppearance::dark);
        open.focus("clearHistory");
        open.press(Qt::Key_Space);
        QVERIFY(open.idle.model.history().points.empty());
        QCOMPARE(open.text("status"), QStringLiteral("Usage history cleared."));
    }

    void asksOnce() {
        OpenWindow open;
        QVERIFY(!open.item("continue"));
        open.window.close();
        open.questions = 1;
        open.loginItem.isRefusing = true;
        open.show();
        open.press(Qt::Key_3, Qt::ControlModifier); // The question comes first.
        QVERIFY(open.item("updated"));
        open.focus("wanted");
        open.press(Qt::Key_Return);
        QCOMPARE(open.text("error"), QStringLiteral("Refused"));
        open.loginItem.isRefusing = false;
        open.press(Qt::Key_Return);
        QCOMPARE(open.loginItem.state, LoginItemStatus::enabled);
        QTRY_VERIFY(!open.item("continue"));
        open.window.close();
        open.questions = 1;
        open.show();
        open.focus("notNow");
        open.press(Qt::Key_Space);
        QTRY_VERIFY(!open.item("notNow"));
        QCOMPARE(open.loginItem.state, LoginItemStatus::enabled);
    }

    void keepsItsLayout_data() {
        QTest::addColumn<int>("points");
        QTest::addColumn<int>("width");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QTest::addRow("narrow %d", direction) << 10 << 640 << direction;
            QTest::addRow("wide %d", direction) << 10 << 1600 << direction;
            QTest::addRow("large text %d", direction) << 20 << 640 << direction;
        }
    }
    void keepsItsLayout() {
        QFETCH(const int, points);
        QFETCH(const int, width);
        QFETCH(const Qt::LayoutDirection, direction);
        QFont font;
        font.setPointSize(points);
        QGuiApplication::setFont(font);
        QGuiApplication::setLayoutDirection(direction);
        const OpenWindow open;
        open.view()->resize(QSize(width, 700).expandedTo(open.view()->minimumSize()));
        const QList<std::pair<Qt::Key, QList<const char*>>> pages = {
            {Qt::Key_1, {"Codex", "Claude", "refresh", "website"}},
            {Qt::Key_2, {"metric", "period", "filter", "chart", "heatmap"}},
            {Qt::Key_3, {"appearance", "launchAtLogin", "allDay", "start", "end", "remove"}}};
        for (const auto& [key, names] : pages) {
            open.press(key, Qt::ControlModifier);
            QTRY_VERIFY(open.item(names[0]) && open.item(names[0])->width() > 0);
            QList<QRectF> places;
            for (const char* name : names) {
                const QQuickItem* item = open.item(name);
                const QRectF place = item->mapRectToScene(item->boundingRect());
                QVERIFY2(place.left() >= 0 && place.right() <= open.view()->width(), name);
                QVERIFY2(item->width() >= item->implicitWidth(), name);
                for (const QRectF& other : places) {
                    QVERIFY2(!other.intersects(place), name);
                }
                places << place;
            }
        }
    }
};

TALLYVANE_GUI_TEST_MAIN(MainWindowTest)
#include "main_window_test.moc"
