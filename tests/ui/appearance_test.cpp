#include "support/gui_test_main.h"
#include "ui/style/appearance.h"

#include <QtGui/QFont>
#include <QtGui/QPalette>
#include <QtTest/QSignalSpy>

using namespace tallyvane;
using model::AppAppearance;
using platform::ColourScheme;

class AppearanceTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void choosesTheScheme_data() {
        QTest::addColumn<AppAppearance>("choice");
        QTest::addColumn<ColourScheme>("system");
        QTest::addColumn<QColor>("window");
        QTest::addColumn<bool>("isDark");
        const QColor light(Qt::white);
        const QColor dark(Qt::black);
        QTest::newRow("light wins") << AppAppearance::light << ColourScheme::dark << dark << false;
        QTest::newRow("dark wins") << AppAppearance::dark << ColourScheme::light << light << true;
        QTest::newRow("asked dark") << AppAppearance::system << ColourScheme::dark << light << true;
        QTest::newRow("asked light")
            << AppAppearance::system << ColourScheme::light << dark << false;
        QTest::newRow("dark palette")
            << AppAppearance::system << ColourScheme::noPreference << dark << true;
        QTest::newRow("light palette")
            << AppAppearance::system << ColourScheme::noPreference << light << false;
    }
    void choosesTheScheme() {
        QFETCH(const AppAppearance, choice);
        QFETCH(const ColourScheme, system);
        QFETCH(const QColor, window);
        ui::Appearance appearance(AppAppearance::system);
        QGuiApplication::setPalette(QPalette(window));
        appearance.setChoice(choice);
        appearance.setSystemColourScheme(system);
        QTEST(appearance.isDark(), "isDark");
    }

    void keepsTheAccentReadable_data() {
        QTest::addColumn<QColor>("accent");
        for (const char* accent : {"#ffffff", "#ffff00", "#3daee9", "#303060", "#000000"}) {
            QTest::newRow(accent) << QColor(accent);
        }
    }
    void keepsTheAccentReadable() {
        QFETCH(const QColor, accent);
        QPalette palette;
        palette.setColor(QPalette::Highlight, accent);
        QGuiApplication::setPalette(palette);
        const ui::Appearance light(AppAppearance::light);
        const ui::Appearance dark(AppAppearance::dark);
        QVERIFY(qGray(light.accentFill().rgb()) < 125);
        QVERIFY(qGray(light.accentInk().rgb()) < 125);
        QVERIFY(qGray(dark.accentInk().rgb()) > 140);
    }

    void tellsOfEachChange() {
        ui::Appearance appearance(AppAppearance::light);
        const QSignalSpy changed(&appearance, &ui::Appearance::changed);
        appearance.setChoice(AppAppearance::light);
        QCOMPARE(changed.count(), 0);
        appearance.setChoice(AppAppearance::system);
        appearance.setSystemColourScheme(ColourScheme::dark);
        QCOMPARE(changed.count(), 2);
        QFont font;
        font.setPointSize(20);
        QGuiApplication::setFont(font);
        QCOMPARE(qRound(appearance.textScale() * 10), 20);
        QTRY_COMPARE(changed.count(), 3);
    }
};

TALLYVANE_GUI_TEST_MAIN(AppearanceTest)
#include "appearance_test.moc"
