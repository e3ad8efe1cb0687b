#include "support/gui_test_main.h"
#include "ui/style/appearance.h"
#include "ui/style/colour.h"
#include "ui/style/engine.h"

#include <QtGui/QFont>
#include <QtGui/QPalette>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtTest/QSignalSpy>

using namespace tallyvane;
using model::AppAppearance;
using platform::ColourPreference;

namespace {

/// `colour`, which may be translucent, as it shows on `ground`.
QColor onto(const QColor& ground, const QColor& colour) {
    const auto mix = [alpha = colour.alphaF()](float below, float above) {
        return below + (above - below) * alpha;
    };
    return QColor::fromRgbF(mix(ground.redF(), colour.redF()),
                            mix(ground.greenF(), colour.greenF()),
                            mix(ground.blueF(), colour.blueF()));
}

} // namespace

class AppearanceTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void choosesTheScheme_data() {
        QTest::addColumn<AppAppearance>("choice");
        QTest::addColumn<ColourPreference>("system");
        QTest::addColumn<QColor>("window");
        QTest::addColumn<bool>("isDark");
        const QColor light(Qt::white);
        const QColor dark(Qt::black);
        QTest::newRow("light wins")
            << AppAppearance::light << ColourPreference::dark << dark << false;
        QTest::newRow("dark wins")
            << AppAppearance::dark << ColourPreference::light << light << true;
        QTest::newRow("asked dark")
            << AppAppearance::system << ColourPreference::dark << light << true;
        QTest::newRow("asked light")
            << AppAppearance::system << ColourPreference::light << dark << false;
        QTest::newRow("dark palette")
            << AppAppearance::system << ColourPreference::none << dark << true;
        QTest::newRow("light palette")
            << AppAppearance::system << ColourPreference::none << light << false;
    }
    void choosesTheScheme() {
        QFETCH(const AppAppearance, choice);
        QFETCH(const ColourPreference, system);
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
        QVERIFY(ui::contrast(light.accentFill(), Qt::white) >= 4.5);
        QVERIFY(ui::contrast(light.accentInk(), Qt::white) >= 4.5);
        QVERIFY(ui::contrast(dark.accentInk(), Qt::black) >= 4.5);
    }

    void canBeRead_data() {
        QTest::addColumn<QByteArray>("ink");
        QTest::addColumn<QByteArrayList>("grounds"); ///< from the back to the front
        QTest::addColumn<double>("least");
        const double text = 4.5;
        const double symbol = 3;
        const auto add = [](const QByteArray& ink, const QByteArray& grounds, double least) {
            QTest::newRow((ink + " on " + grounds).constData())
                << ink << grounds.split(' ') << least;
        };
        for (const char* ground :
             {"window", "panel", "card", "segment", "window notice", "window controlPressed",
              "card controlPressed", "panel rowHovered"}) {
            add("text", ground, text);
        }
        for (const char* ground : {"window", "panel", "card", "panel rowHovered"}) {
            add("secondaryText", ground, text);
        }
        for (const char* ground : {"window", "panel", "card"}) {
            add("accent", ground, text);
            add("tertiaryText", ground, symbol);
        }
        add("destructive", "card", text);
        add("destructive", "card controlPressed", text);
        add("whiteText", "accentFill", text);
        add("warning", "window notice", symbol);
        add("warning", "card", symbol);
        add("success", "segment", symbol);
        add("indigo", "card", symbol);
    }
    void canBeRead() {
        QFETCH(const QByteArray, ink);
        QFETCH(const QByteArrayList, grounds);
        QFETCH(const double, least);
        for (const auto choice : {AppAppearance::light, AppAppearance::dark}) {
            ui::Appearance appearance(choice);
            const auto engine = ui::makeEngine(appearance);
            QQmlComponent component(engine.get());
            component.setData("import QtQml\nimport Tallyvane.Style\n"
                              "QtObject { readonly property QtObject theme: Theme }",
                              {});
            const std::unique_ptr<QObject> holder(component.create());
            QVERIFY2(holder, qPrintable(component.errorString()));
            auto* theme = holder->property("theme").value<QObject*>();
            QColor ground;
            for (const QByteArray& layer : grounds) {
                ground = onto(ground, theme->property(layer.constData()).value<QColor>());
            }
            const double contrast =
                ui::contrast(theme->property(ink.constData()).value<QColor>(), ground);
            QVERIFY2(contrast >= least, QByteArray::number(contrast).constData());
        }
    }

    void tellsOfEachChange() {
        ui::Appearance appearance(AppAppearance::light);
        const QSignalSpy changed(&appearance, &ui::Appearance::changed);
        appearance.setChoice(AppAppearance::light);
        QCOMPARE(changed.count(), 0);
        appearance.setChoice(AppAppearance::system);
        appearance.setSystemColourScheme(ColourPreference::dark);
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
