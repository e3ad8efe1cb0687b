#include "model/quota_display.h"
#include "support/gui_test_main.h"
#include "support/idle_model.h"
#include "ui/menubar/menu_bar_quota_view_model.h"
#include "ui/menubar/quota_panel.h"
#include "ui/style/appearance.h"
#include "ui/style/engine.h"

#include <QtGui/QAccessible>
#include <QtGui/QDesktopServices>
#include <QtGui/QFont>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickView>
#include <QtTest/QSignalSpy>

using namespace tallyvane;

namespace {

model::QuotaSnapshot someFigures() {
    model::QuotaSnapshot snapshot = model::placeholderSnapshot({});
    snapshot.providers[1].syncState = model::QuotaSyncState::current;
    snapshot.providers[1].fiveHour = model::QuotaWindowSnapshot{.usedPercent = 80.4};
    return snapshot;
}

struct OpenPanel {
    OpenPanel() { panel.open({}); }

    [[nodiscard]] QQuickView* window() const { return static_cast<QQuickView*>(panel.window()); }

    /// Also in what a Repeater made, which is no QObject child of the root.
    static QQuickItem* find(QQuickItem* in, const QString& name) {
        if (in->objectName() == name) {
            return in;
        }
        for (QQuickItem* child : in->childItems()) {
            if (QQuickItem* found = find(child, name)) {
                return found;
            }
        }
        return nullptr;
    }
    [[nodiscard]] QQuickItem* item(const char* name) const {
        return find(window()->rootObject(), QString::fromLatin1(name));
    }
    [[nodiscard]] QString summary(const char* row) const {
        return find(item(row), QStringLiteral("summary"))->property("text").toString();
    }
    void press(Qt::Key key) const { QTest::keyClick(window(), key); }

    tests::IdleModel idle{someFigures()};
    ui::Appearance appearance{idle.model};
    std::unique_ptr<QQmlEngine> engine = ui::makeEngine(appearance);
    ui::MenuBarQuotaViewModel viewModel{idle.model};
    ui::QuotaPanel panel{[this]() -> QQmlEngine& { return *engine; }, viewModel};
};

} // namespace

class QuotaPanelTest : public tests::HermeticTest {
    Q_OBJECT

    QUrl m_opened;

private Q_SLOTS:
    void cleanup() {
        QGuiApplication::setFont(QFont());
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void followsTheModel() {
        OpenPanel open;
        QCOMPARE(open.summary("Codex"), QStringLiteral("5H 0%  \u00B7  WK 0%"));
        QCOMPARE(open.summary("Claude"), QStringLiteral("5H 19%  \u00B7  WK 0%"));
        QVERIFY(open.item("refresh")->isEnabled());
        QVERIFY(!open.item("spinner")->isVisible());

        // Where nothing is installed a refresh may end before it is awaited.
        QList<bool> wasIdle;
        connect(&open.idle.model, &core::AppModel::isRefreshingChanged, open.item("refresh"), [&] {
            wasIdle << (open.item("refresh")->isEnabled() && !open.item("spinner")->isVisible());
        });
        QCoro::waitFor(open.idle.model.refresh(providers::AskedBy::user));
        QCOMPARE(wasIdle, QList({false, true}));
        QVERIFY(open.item("refresh")->isEnabled());
        QVERIFY(!open.item("spinner")->isVisible());
        // The figures are kept and marked with the reason: nobody is signed in here.
        const auto claude = entryFor(open.idle.model.snapshot(), model::AIProvider::claude);
        QVERIFY(claude.statusMessage);
        QCOMPARE(open.summary("Claude"), model::summaryText(claude));
    }

    void worksByKeyboard() {
        OpenPanel open;
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "openUrl");
        const QSignalSpy refreshed(&open.viewModel, &ui::MenuBarQuotaViewModel::refreshRequested);
        const QSignalSpy opened(&open.viewModel, &ui::MenuBarQuotaViewModel::openRequested);
        QTRY_VERIFY(open.window()->isActive());
        for (const char* name : {"Codex", "Claude", "open", "refresh", "quit", "Codex"}) {
            open.press(Qt::Key_Tab);
            QCOMPARE(open.window()->activeFocusItem()->objectName(), QLatin1StringView(name));
            QVERIFY(open.window()->activeFocusItem()->property("visualFocus").toBool());
        }
        open.press(Qt::Key_Down);
        open.press(Qt::Key_Return);
        QCOMPARE(m_opened, QUrl(model::usagePage(model::AIProvider::claude)));
        open.item("refresh")->forceActiveFocus();
        open.press(Qt::Key_Space);
        QCOMPARE(refreshed.count(), 1);
        QVERIFY(open.panel.isOpen());
        open.press(Qt::Key_Up);
        open.press(Qt::Key_Return);
        QCOMPARE(opened.count(), 1);
        QVERIFY(!open.panel.isOpen());
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    }

    void worksByScreenReader() {
        OpenPanel open;
        const QSignalSpy quit(&open.viewModel, &ui::MenuBarQuotaViewModel::quitRequested);
        QAccessible::setActive(true);
        QCOMPARE(
            QAccessible::queryAccessibleInterface(open.item("refresh"))->text(QAccessible::Name),
            QStringLiteral("Refresh"));
        QAccessibleInterface* button = QAccessible::queryAccessibleInterface(open.item("quit"));
        QCOMPARE(button->text(QAccessible::Name), QStringLiteral("Quit"));
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(quit.count(), 1);
    }

    void closes() {
        OpenPanel open;
        QTRY_VERIFY(open.window()->isActive());
        open.press(Qt::Key_Escape);
        QVERIFY(!open.panel.isOpen());
        // The press on the item that took the focus away.
        open.panel.toggle({});
        QVERIFY(!open.panel.isOpen());

        open.panel.open({});
        QTRY_VERIFY(open.window()->isActive());
        QWindow other;
        other.show();
        other.requestActivate();
        QTRY_VERIFY(!open.panel.isOpen());
        QTRY_VERIFY(open.panel.isOpen() || (open.panel.toggle({}), open.panel.isOpen()));
        open.panel.toggle({});
        QVERIFY(!open.panel.isOpen());
    }

    void keepsItsLayout_data() {
        QTest::addColumn<int>("points");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            for (const int points : {9, 10, 20, 30}) {
                QTest::addRow("%d points, direction %d", points, direction) << points << direction;
            }
        }
    }
    void keepsItsLayout() {
        QFETCH(const int, points);
        QFETCH(const Qt::LayoutDirection, direction);
        QFont font;
        font.setPointSize(points);
        QGuiApplication::setFont(font);
        QGuiApplication::setLayoutDirection(direction);
        const OpenPanel open;
        const int width = open.window()->width();
        QVERIFY(points > 10 || width == 310);

        QList<QRectF> places;
        for (const char* name : {"Codex", "Claude", "open", "refresh", "quit"}) {
            const QQuickItem* item = open.item(name);
            const QRectF place = item->mapRectToScene(item->boundingRect());
            QVERIFY2(QRectF(0, 0, width, open.window()->height()).contains(place), name);
            QVERIFY2(item->width() >= item->implicitWidth(), name);
            for (const QRectF& other : places) {
                QVERIFY2(!other.intersects(place), name);
            }
            places.append(place);
        }
        QCOMPARE(places.at(2).left() < places.at(4).left(), direction == Qt::LeftToRight);
    }

    void staysOnTheScreen_data() {
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<QPoint>("expected");
        QTest::newRow("bar above") << QPoint(1000, 10) << QPoint(845, 38);
        QTest::newRow("bar below") << QPoint(1000, 1075) << QPoint(845, 832);
        QTest::newRow("upper right corner") << QPoint(1915, 10) << QPoint(1602, 38);
        QTest::newRow("lower left corner") << QPoint(3, 1075) << QPoint(8, 832);
        QTest::newRow("in the middle of the desktop") << QPoint(900, 300) << QPoint(745, 308);
    }
    void staysOnTheScreen() {
        QFETCH(const QPoint, point);
        QTEST(ui::panelPosition({310, 200}, point, {0, 30, 1920, 1010}), "expected");
    }

public Q_SLOTS:
    void openUrl(const QUrl& url) { m_opened = url; }
};

TALLYVANE_GUI_TEST_MAIN(QuotaPanelTest)
#include "quota_panel_test.moc"
