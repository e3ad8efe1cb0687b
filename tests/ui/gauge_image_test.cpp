#include "support/test_main.h"
#include "ui/menubar/gauge_image.h"

#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

using namespace tallyvane;
using ui::GaugeValues;

namespace {

constexpr QPointF codex(6.6, 6.6);
constexpr QPointF claude(15.4, 15.4);
constexpr std::array panelSizes{16, 22, 24, 32, 48};

/// How many runs of inked columns there are in the upper half.
int inkedRuns(const QImage& image) {
    int runs = 0;
    bool wasInked = false;
    for (int x = 0; x < image.width(); ++x) {
        bool isInked = false;
        for (int y = 0; y < image.height() / 2; ++y) {
            isInked = isInked || image.pixelColor(x, y).alpha() > 0;
        }
        runs += isInked && !wasInked;
        wasInked = isInked;
    }
    return runs;
}

/// How many pixels of a column are fully inked, below the figure.
int fullPixels(const QImage& image, int x) {
    int count = 0;
    for (int y = image.height() * 2 / 3; y < image.height(); ++y) {
        count += image.pixelColor(x, y).alpha() == 255;
    }
    return count;
}

} // namespace

class GaugeImageTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void drawsTheGauges_data() {
        QTest::addColumn<GaugeValues>("values");
        QTest::addColumn<QPointF>("point"); // on the drawing's grid of 22
        QTest::addColumn<bool>("isInked");
        const auto row = [](const char* name, GaugeValues values, QPointF point, bool isInked) {
            QTest::newRow(name) << values << point << isInked;
        };
        row("stroke", {}, {11, 11}, true);
        row("stroke's lower end", {}, {5, 17}, true);
        row("stroke's round cap", {}, {17.6, 4.4}, true);
        row("beyond the cap", {}, {18, 4}, false);
        row("beside the stroke", {}, {12, 12}, false);
        row("ring", {}, codex + QPointF(0, -3.7), true);
        row("other ring", {}, claude + QPointF(3.7, 0), true);
        row("outside the ring", {}, codex + QPointF(0, -4.2), false);
        row("empty", {}, codex + QPointF(0.5, -0.5), false);
        row("nothing left", {.codex = 0}, codex + QPointF(0.1, -2.5), false);
        row("quarter: upper right", {.codex = 25}, codex + QPointF(1.5, -1.5), true);
        row("quarter: lower right", {.codex = 25}, codex + QPointF(1.5, 1.5), false);
        row("quarter: upper left", {.codex = 25}, codex + QPointF(-1.5, -1.5), false);
        row("three quarters: lower left", {.claude = 75}, claude + QPointF(-1.5, 1.5), true);
        row("three quarters: upper left", {.claude = 75}, claude + QPointF(-1.5, -1.5), false);
        row("each its own", {.claude = 75}, codex + QPointF(1.5, -1.5), false);
        row("full", {.codex = 100}, codex + QPointF(-0.3, -2.5), true);
        row("full: gap to the ring", {.codex = 100}, codex + QPointF(0, 3.17), false);
    }
    void drawsTheGauges() {
        QFETCH(const GaugeValues, values);
        QFETCH(const QPointF, point);
        const QImage image = ui::gaugeImage(values, 880, Qt::red);
        const QColor pixel = image.pixelColor((point * 40).toPoint());
        QFETCH(const bool, isInked);
        QCOMPARE(pixel, isInked ? QColor(Qt::red) : QColor(Qt::transparent));
    }

    void leavesSliversOut() {
        const QImage empty = ui::gaugeImage({}, 880, Qt::black);
        QCOMPARE(ui::gaugeImage({.codex = 0.1}, 880, Qt::black), empty);
        QVERIFY(ui::gaugeImage({.codex = 0.2}, 880, Qt::black) != empty);
    }

    void writesTheSameDrawingAsFills() {
        const GaugeValues values{.codex = 37, .claude = 80};
        const QByteArray svg = ui::symbolicSvg(values);
        QVERIFY(!svg.contains("stroke"));
        QSvgRenderer renderer(svg);
        QVERIFY(renderer.isValid());
        QImage drawn(220, 220, QImage::Format_ARGB32_Premultiplied);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        renderer.render(&painter);
        const QImage expected = ui::gaugeImage(values, 220, Qt::black);
        int differing = 0;
        for (int y = 0; y < drawn.height(); ++y) {
            for (int x = 0; x < drawn.width(); ++x) {
                differing += std::abs(qAlpha(drawn.pixel(x, y)) - qAlpha(expected.pixel(x, y))) > 8;
            }
        }
        QCOMPARE(differing, 0);
    }

    void showsTheFigure_data() {
        QTest::addColumn<int>("size");
        for (const int size : panelSizes) {
            QTest::addRow("%d pixels", size) << size;
        }
    }
    void showsTheFigure() {
        QFETCH(const int, size);
        QList<QImage> seen;
        for (int figure = 0; figure <= 100; ++figure) {
            const QImage image = ui::figureImage(figure, {}, size, Qt::black);
            QCOMPARE(image.size(), QSize(size, size));
            QVERIFY2(!seen.contains(image), "two figures look the same");
            QCOMPARE(inkedRuns(image), QString::number(figure).size());
            seen.append(image);
        }
        const QImage image = ui::figureImage(1, {.codex = 25, .claude = 100}, size, Qt::black);
        // Left of a quarter both bars are full, right of it Claude's alone.
        const int oneBar = fullPixels(image, size * 7 / 8);
        QVERIFY(oneBar > 0);
        QCOMPARE(fullPixels(image, size / 8), 2 * oneBar);
    }

    void ordersTheBytes() {
        QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
        image.setPixelColor(0, 0, QColor(255, 0, 0, 51));
        image.setPixelColor(1, 0, QColor(1, 2, 3));
        QCOMPARE(ui::networkPixels(image).toHex(), QByteArray("33ff0000ff010203"));
    }
};

TALLYVANE_TEST_MAIN(GaugeImageTest)
#include "gauge_image_test.moc"
