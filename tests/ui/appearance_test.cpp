#include "history/heatmap.h"
#include "support/gui_test_main.h"
#include "support/idle_model.h"
#include "ui/history/chart_bars.h"
#include "ui/history/heat_cells.h"
#include "ui/style/appearance.h"
#include "ui/style/colour.h"
#include "ui/style/engine.h"

#include <QtGui/QFont>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtQml/QQmlComponent>

using namespace tallyvane;
using model::AppAppearance;
using platform::ColourPreference;

class AppearanceTest : public tests::HermeticTest {
    Q_OBJECT

    tests::IdleModel m_idle{{}};
    ui::Appearance m_appearance{m_idle.model};

private Q_SLOTS:
    void placesHeatCells() {
        ui::HeatCells cells;
        const QList<ui::HeatmapCell> days{
            {.colour = Qt::red}, {.colour = Qt::transparent}, {.colour = Qt::blue}};
        cells.setProperty("cells", QVariant::fromValue(days));
        cells.setProperty("rows", 2);
        cells.setProperty("cell", 8);
        cells.setProperty("pitch", 10);
        QCOMPARE(QSizeF(cells.implicitWidth(), cells.implicitHeight()), QSizeF(18, 18));
        for (const bool isRightToLeft : {false, true}) {
            cells.setProperty("isRightToLeft", isRightToLeft);
            QImage image(18, 18, QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            cells.paint(&painter);
            const auto at = [&](int x, int y) {
                return image.pixelColor(isRightToLeft ? 17 - x : x, y);
            };
            QCOMPARE(at(4, 4), QColor(Qt::red));
            QCOMPARE(at(4, 14), QColor(Qt::white));
            QCOMPARE(at(14, 4), QColor(Qt::blue));
            QCOMPARE(at(14, 14), QColor(Qt::white));
        }
        QImage enlarged(22, 22, QImage::Format_RGB32);
        enlarged.fill(Qt::white);
        QPainter painter(&enlarged);
        painter.scale(1.25, 1.25);
        cells.paint(&painter);
        for (const auto& [x, colour] : {std::pair{9, Qt::blue}, {10, Qt::white}, {12, Qt::red}}) {
            QCOMPARE(enlarged.pixelColor(x, 5), QColor(colour));
        }
    }

    void placesChartBars() {
        ui::ChartBars bars;
        bars.setSize({20, 20});
        const QList<ui::ChartSegment> segments{
            {.centre = 0.25, .extent = 0.5, .colour = Qt::red},
            {.centre = 0.25, .base = 0.5, .extent = 0.25, .colour = Qt::blue, .isHatched = true},
            {.centre = 0.75, .extent = 1, .colour = Qt::red, .isDimmed = true}};
        bars.setProperty("segments", QVariant::fromValue(segments));
        bars.setProperty("barWidth", 6);
        bars.setProperty("dimmedOpacity", 0.5);
        for (const bool isRightToLeft : {false, true}) {
            bars.setProperty("isRightToLeft", isRightToLeft);
            QImage image(20, 20, QImage::Format_RGB32);
            const auto at = [&](int x, int y) {
                return image.pixelColor(isRightToLeft ? 19 - x : x, y);
            };
            for (const QColor hatching : {Qt::transparent, Qt::green}) {
                bars.setProperty("hatching", hatching);
                image.fill(Qt::white);
                QPainter painter(&image);
                bars.paint(&painter);
                QCOMPARE(at(5, 15), QColor(Qt::red));
                QCOMPARE(at(5, 19), QColor(Qt::white)); // the gap
                QCOMPARE(at(5, 7) == QColor(Qt::blue), hatching.alpha() == 0);
                QCOMPARE(at(5, 3), QColor(Qt::white));
                QVERIFY(at(15, 10).green() > 120 && at(15, 10).red() == 255);
                QCOMPARE(at(10, 10), QColor(Qt::white));
            }
        }
    }

    void choosesTheScheme() {
        const auto isDark = [this](AppAppearance choice, ColourPreference system,
                                   Qt::GlobalColor window) {
            m_idle.model.setAppearance(choice);
            m_appearance.setSystemColourScheme(system);
            QGuiApplication::setPalette(QPalette(window));
            return m_appearance.isDark();
        };
        QVERIFY(!isDark(AppAppearance::light, ColourPreference::dark, Qt::black));
        QVERIFY(isDark(AppAppearance::dark, ColourPreference::light, Qt::white));
        QVERIFY(isDark(AppAppearance::system, ColourPreference::dark, Qt::white));
        QVERIFY(!isDark(AppAppearance::system, ColourPreference::light, Qt::black));
        QVERIFY(isDark(AppAppearance::system, ColourPreference::none, Qt::black));
        QVERIFY(!isDark(AppAppearance::system, ColourPreference::none, Qt::white));
    }

    void recognisesABlackAndWhitePalette() {
        const std::tuple<QColor, QColor, bool> rows[] = {{Qt::white, Qt::black, true},
                                                         {Qt::black, Qt::white, true},
                                                         {Qt::white, 0x202020, false},
                                                         {0xf6f5f4, Qt::black, false},
                                                         {Qt::black, Qt::black, false}};
        for (const auto& [window, text, isHigh] : rows) {
            QPalette palette;
            palette.setColor(QPalette::Window, window);
            palette.setColor(QPalette::WindowText, text);
            QGuiApplication::setPalette(palette);
            QCOMPARE(m_appearance.isHighContrast(), isHigh);
        }
    }

    void canBeRead() {
        const auto engine = ui::makeEngine(m_appearance);
        QQmlComponent component(engine.get());
        component.setData("import QtQml\nimport Tallyvane.Style\n"
                          "QtObject { readonly property QtObject theme: Theme }",
                          {});
        const std::unique_ptr<QObject> holder(component.create());
        QVERIFY2(holder, qPrintable(component.errorString()));
        auto* const theme = holder->property("theme").value<QObject*>();
        const auto colour = [=](const QByteArray& name) {
            return theme->property(name).value<QColor>();
        };
        // A ground may be several layers, from back to front.
        const auto check = [&](const QByteArray& ink, double least, const QByteArray& grounds) {
            for (const QByteArray& layers : grounds.split(',')) {
                QImage ground(1, 1, QImage::Format_RGB32);
                for (const QByteArray& layer : layers.split(' ')) {
                    QPainter(&ground).fillRect(ground.rect(), colour(layer));
                }
                QVERIFY2(ui::contrast(colour(ink), ground.pixelColor(0, 0)) >= least,
                         ink + " on " + layers);
            }
        };
        const auto derived = [=](const char* function, const QColor& from) {
            QColor colour;
            QMetaObject::invokeMethod(theme, function, Q_RETURN_ARG(QColor, colour),
                                      Q_ARG(QColor, from));
            return colour;
        };
        for (const auto choice : {AppAppearance::light, AppAppearance::dark}) {
            m_idle.model.setAppearance(choice);
            m_appearance.setHighContrast(true);
            for (const char* ink : {"text", "secondaryText", "destructive"}) {
                check(ink, 7, "window,panel,card,segment,window notice,panel rowHovered");
                check(ink, 7, "window controlHovered,card control");
            }
            check("accent", 7, "window,panel,card,segment,panel rowHovered");
            check("whiteText", 7, "accentFill");
            for (const char* edge : {"outline", "divider", "tertiaryText", "controlOutline"}) {
                check(edge, 7, "window,panel,card,segment");
            }
            check("warning", 7, "window notice,card");
            check("success", 7, "segment");
            for (const bool isHigh : {true, false}) {
                m_appearance.setHighContrast(isHigh);
                const double least = isHigh ? 7 : 3;
                const QColor card = colour("card");
                for (const auto provider : model::allCases<model::AIProvider>) {
                    const QColor accent = ui::toColour(model::accentColour(provider));
                    QVERIFY(ui::contrast(derived("badgeInk", accent),
                                         derived("badgeGround", accent)) >= least);
                }
                ui::HeatCells cells;
                cells.setProperty("cell", 12);
                cells.setProperty("pitch", 12);
                cells.setProperty("ground", card);
                cells.setProperty("hasWideEdges", isHigh);
                cells.setProperty("contrast", theme->property("symbolContrast"));
                using enum history::HeatmapFilter;
                for (const auto filter : {total, codex, claude}) {
                    for (int level = 1; level <= history::highestLevel; ++level) {
                        const auto fill =
                            history::levelColour(level, filter, model::ColourScheme::dark);
                        const QColor cell = ui::toColour(fill.colour, fill.opacity);
                        cells.setProperty("cells", QVariant::fromValue(QList<ui::HeatmapCell>{
                                                       {.colour = cell, .level = level}}));
                        QImage image(12, 12, QImage::Format_RGB32);
                        image.fill(card);
                        QPainter painter(&image);
                        cells.paint(&painter);
                        QVERIFY(ui::contrast(image.pixelColor(6, 0), card) >= least);
                    }
                }
            }
            check("text", 4.5, "window,panel,card,segment,window notice,panel rowHovered");
            check("text", 4.5, "window controlPressed,card controlPressed");
            check("secondaryText", 4.5, "window,panel,card,panel rowHovered");
            check("destructive", 4.5, "card,card controlPressed");
            check("tertiaryText", 3, "window,panel,card");
            check("warning", 3, "window notice,card");
            check("success", 3, "segment");
            check("indigo", 3, "card");
            for (const char* accent : {"#ffffff", "#ffff00", "#3daee9", "#303060", "#000000"}) {
                QPalette palette;
                palette.setColor(QPalette::Highlight, accent);
                QGuiApplication::setPalette(palette);
                check("accent", 4.5, "window,panel,card");
                check("whiteText", 4.5, "accentFill");
            }
        }
    }

    void announcesEachChange() {
        const QSignalSpy changed(&m_appearance, &ui::Appearance::changed);
        m_idle.model.setAppearance(AppAppearance::light);
        m_appearance.setSystemColourScheme(ColourPreference::dark);
        m_appearance.setMotionReduced(true);
        m_appearance.setHighContrast(true);
        QCOMPARE(changed.count(), 4);
        QGuiApplication::setFont(QFont(QGuiApplication::font().family(), 20));
        QCOMPARE(qRound(m_appearance.textScale() * 10), 20);
        TALLYVANE_TRY_COMPARE(changed.count(), 5);
    }
};

TALLYVANE_GUI_TEST(AppearanceTest)
#include "appearance_test.moc"
