#include "core/fixtures.h"
#include "model/quota_display.h"
#include "support/shown_window.h"
#include "ui/menubar/menu_bar_quota_view_model.h"
#include "ui/menubar/quota_panel.h"

#include <QtGui/QAccessible>
#include <QtGui/QCursor>
#include <QtGui/QDesktopServices>

using namespace std::chrono_literals;
using namespace tallyvane;
using namespace Qt::StringLiterals;

namespace {

struct OpenPanel final : tests::ShownWindow {
    OpenPanel()
        : ShownWindow(core::fixtureSnapshot({}, model::LocalZone(QTimeZone::utc())), {}, {}) {
        panel.open({});
    }

    [[nodiscard]] QQuickView* view() const override {
        return static_cast<QQuickView*>(panel.window());
    }

    ui::MenuBarQuotaViewModel viewModel{idle.model, idle.clock};
    ui::QuotaPanel panel{[this]() -> QQmlEngine& { return *engine; }, viewModel};
};

} // namespace

class QuotaPanelTest : public tests::HermeticTest {
    Q_OBJECT

    QUrl m_opened;

private Q_SLOTS:
    void followsTheModel() {
        OpenPanel open;
        QCOMPARE(open.text("summary"), u"5H 58%  ·  WK 32%"_s);
        QCOMPARE(open.text("details").simplified(), u"5H resets in 2h 14m · WK in 2d 0h"_s);
        open.idle.model.setOnlyProvider(model::AIProvider::codex);
        QVERIFY(open.item("Claude") == nullptr);
        open.idle.clock.advance(20min);
        QCOMPARE(open.text("details").simplified(),
                 u"5H resets in 1h 54m · WK in 1d 23h · Last updated 22 min ago"_s);
        TALLYVANE_TRY_VERIFY(open.view()->isActive());
        open.item("refresh")->forceActiveFocus(Qt::TabFocusReason);
        QList<bool> states; // Without an assistant a refresh may end before it is awaited.
        connect(&open.idle.model, &core::AppModel::isRefreshingChanged, open.view(), [&] {
            states << open.item("refresh")->isEnabled() << (open.item("spinner") == nullptr)
                   << open.item("refresh")->property("showsFocus").toBool();
        });
        QCoro::waitFor(open.idle.model.refresh(providers::AskedBy::user));
        QCOMPARE(states, QList({false, false, true, true, true, true}));
        QVERIFY(open.item("refresh")->property("visualFocus").toBool());
        open.item("refresh")->setEnabled(false);
        open.press(Qt::Key_Tab);
        open.item("refresh")->setEnabled(true);
        QVERIFY(open.item("quit")->property("visualFocus").toBool());
        QCOMPARE(open.text("summary"), u"5H 0%  ·  WK 0%"_s);
        const auto* refresh = QAccessible::queryAccessibleInterface(open.item("refresh"));
        QCOMPARE(refresh->text(QAccessible::Name), u"Refresh"_s);
    }

    void opensAUsagePage() {
        const OpenPanel open;
        QDesktopServices::setUrlHandler(u"https"_s, this, "openUrl");
        TALLYVANE_TRY_VERIFY(open.view()->isActive());
        open.press(Qt::Key_Tab);
        open.press(Qt::Key_Down);
        QVERIFY(open.item("Claude")->property("visualFocus").toBool());
        open.press(Qt::Key_Return);
        QCOMPARE(m_opened, QUrl(model::usagePage(model::AIProvider::claude)));
        QDesktopServices::unsetUrlHandler(u"https"_s);
    }

    void obeysKeys() {
        using ui::MenuBarQuotaViewModel;
        const std::tuple<Qt::Key, Qt::KeyboardModifier, QMetaMethod> rows[] = {
            {Qt::Key_F5, Qt::NoModifier,
             QMetaMethod::fromSignal(&MenuBarQuotaViewModel::refreshRequested)},
            {Qt::Key_R, Qt::ControlModifier,
             QMetaMethod::fromSignal(&MenuBarQuotaViewModel::refreshRequested)},
            {Qt::Key_Comma, Qt::ControlModifier,
             QMetaMethod::fromSignal(&MenuBarQuotaViewModel::settingsRequested)},
            {Qt::Key_Q, Qt::ControlModifier,
             QMetaMethod::fromSignal(&MenuBarQuotaViewModel::quitRequested)}};
        for (const auto& [key, modifier, command] : rows) {
            const OpenPanel open;
            const QSignalSpy requested(&open.viewModel, command);
            TALLYVANE_TRY_VERIFY(open.view()->isActive());
            open.press(key, modifier);
            QVERIFY2(requested.count() == 1, command.name());
        }
    }

    void closes() {
        OpenPanel open;
        TALLYVANE_TRY_VERIFY(open.view()->isActive());
        open.press(Qt::Key_Escape);
        QVERIFY(!open.panel.isOpen());
        open.panel.toggle({}); // by the press that took the focus away
        QVERIFY(!open.panel.isOpen());
    }

    void keepsItsLayout() {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            for (const int points : {9, 10, 20, 30}) {
                OpenPanel::setLook(points, direction);
                const OpenPanel open;
                QCOMPARE(open.misplaced({"Codex", "Claude", "open", "refresh", "quit"}),
                         QByteArray());
                const double quit = open.item("quit")->mapToScene({}).x();
                QVERIFY((quit > open.view()->width() / 2.0) == (direction == Qt::LeftToRight));
            }
        }
    }

    void staysOnTheScreen() {
        const std::pair<QPoint, QPoint> rows[] = {{{1000, 10}, {845, 38}},
                                                  {{1915, 300}, {1602, 308}},
                                                  {{3, 1075}, {8, 832}},
                                                  {{900, 800}, {745, 592}}};
        for (const auto& [point, expected] : rows) {
            QCOMPARE(ui::panelPosition({310, 200}, point, {0, 30, 1920, 1010}), expected);
        }
    }

    /// The item's place, also where the host counts in units of two or three pixels.
    void opensAtTheItem() {
        const std::pair<QPoint, int> rows[] = {
            {{402, 10}, 402}, {{201, 5}, 402}, {{134, 3}, 402}, {{350, 700}, 350}};
        OpenPanel open;
        for (const auto& [position, centre] : rows) {
            QCursor::setPos(402, 10);
            open.panel.close();
            open.panel.open(position);
            QCOMPARE(open.view()->x() + open.view()->width() / 2, centre);
        }
    }

public Q_SLOTS:
    void openUrl(const QUrl& url) { m_opened = url; }
};

TALLYVANE_GUI_TEST(QuotaPanelTest)
#include "quota_panel_test.moc"
