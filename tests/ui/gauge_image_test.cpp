#include "model/quota_display.h"
#include "support/test_main.h"
#include "ui/item/gauge_image.h"

#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

using namespace tallyvane;
using model::AIProvider;
using model::ProviderQuotaSnapshot;
using model::QuotaSyncState;
using ui::GaugeValues;

namespace {

constexpr QPointF codexCentre(6.6, 6.6);
constexpr QPointF claudeCentre(15.4, 15.4);

/// How many pixels of a column, from row `top` to `end`, are at least as opaque as `alpha`.
int inked(const QImage& image, int x, int top, int end, int alpha) {
    int count = 0;
    for (int y = top; y < end; ++y) {
        count += image.pixelColor(x, y).alpha() >= alpha;
    }
    return count;
}

/// The number of runs of inked columns in the upper half.
int inkedRuns(const QImage& image) {
    int runs = 0;
    bool wasInked = false;
    for (int x = 0; x < image.width(); ++x) {
        const bool isInked = inked(image, x, 0, image.height() / 2, 1) > 0;
        runs += isInked && !wasInked;
        wasInked = isInked;
    }
    return runs;
}

/// The number of opaque pixels of a column below the figure.
int barPixels(const QImage& image, int x) {
    return inked(image, x, image.height() * 2 / 3, image.height(), 255);
}

QImage gaugeImage(double codexLeft) {
    return ui::paint(ui::gaugeDrawing({.codex = codexLeft}), 880, Qt::black);
}

QImage figureImage(int figure, const GaugeValues& values, int size) {
    return ui::paint(ui::figureDrawing(figure, values, size), size, Qt::black);
}

ProviderQuotaSnapshot entry(AIProvider provider, std::optional<double> fiveHour,
                            std::optional<double> week,
                            QuotaSyncState state = QuotaSyncState::current) {
    const auto window = [](std::optional<double> used) {
        return used ? std::optional(model::QuotaWindowSnapshot{.usedPercent = *used})
                    : std::nullopt;
    };
    return {.provider = provider,
            .fiveHour = window(fiveHour),
            .week = window(week),
            .syncState = state};
}

} // namespace

class GaugeImageTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void drawsTheGauges() {
        const struct {
            const char* name;
            GaugeValues values;
            QPointF point; ///< on the drawing's grid of 22
            bool isInked;
        } rows[] = {
            {"stroke", {}, {11, 11}, true},
            {"stroke's lower end", {}, {5, 17}, true},
            {"stroke's round cap", {}, {17.6, 4.4}, true},
            {"beyond the cap", {}, {18, 4}, false},
            {"beside the stroke", {}, {12, 12}, false},
            {"ring", {}, codexCentre + QPointF(0, -3.7), true},
            {"other ring", {}, claudeCentre + QPointF(3.7, 0), true},
            {"outside the ring", {}, codexCentre + QPointF(0, -4.2), false},
            {"empty", {}, codexCentre + QPointF(0.5, -0.5), false},
            {"nothing left", {.codex = 0}, codexCentre + QPointF(0.1, -2.5), false},
            {"quarter: upper right", {.codex = 25}, codexCentre + QPointF(1.5, -1.5), true},
            {"quarter: lower right", {.codex = 25}, codexCentre + QPointF(1.5, 1.5), false},
            {"three quarters: lower left", {.claude = 75}, claudeCentre + QPointF(-1.5, 1.5), true},
            {"three quarters: upper left",
             {.claude = 75},
             claudeCentre + QPointF(-1.5, -1.5),
             false},
            {"each its own", {.claude = 75}, codexCentre + QPointF(1.5, -1.5), false},
            {"full", {.codex = 100}, codexCentre + QPointF(-0.3, -2.5), true},
            {"full: gap to the ring", {.codex = 100}, codexCentre + QPointF(0, 3.17), false}};
        for (const auto& row : rows) {
            const QImage image = ui::paint(ui::gaugeDrawing(row.values), 880, Qt::red);
            const QColor pixel = image.pixelColor((row.point * 40).toPoint());
            QVERIFY2(pixel == QColor(row.isInked ? Qt::red : Qt::transparent), row.name);
        }
        QCOMPARE(gaugeImage(0.1), gaugeImage(0)); // a sliver is left out
        QVERIFY(gaugeImage(0.2) != gaugeImage(0));
    }

    void writesTheSameDrawingAsFills() {
        const GaugeValues values{.codex = 37, .claude = 80};
        for (const auto& drawing : {ui::gaugeDrawing(values), ui::figureDrawing(38, values, 22)}) {
            const QByteArray svg = ui::symbolicSvg(drawing);
            QVERIFY(!svg.contains("stroke"));
            QSvgRenderer renderer(svg);
            QVERIFY(renderer.isValid());
            QImage drawn(220, 220, QImage::Format_ARGB32_Premultiplied);
            drawn.fill(Qt::transparent);
            QPainter painter(&drawn);
            renderer.render(&painter);
            const QImage expected = ui::paint(drawing, 220, Qt::black);
            int differing = 0;
            for (int y = 0; y < drawn.height(); ++y) {
                for (int x = 0; x < drawn.width(); ++x) {
                    differing +=
                        std::abs(qAlpha(drawn.pixel(x, y)) - qAlpha(expected.pixel(x, y))) > 8;
                }
            }
            QCOMPARE(differing, 0);
        }
    }

    void showsTheFigure() {
        for (const int size : {16, 22, 24, 32, 48}) {
            QList<QImage> seen;
            for (int figure = 0; figure <= 100; ++figure) {
                const QImage image = figureImage(figure, {}, size);
                QCOMPARE(image.size(), QSize(size, size));
                QVERIFY2(!seen.contains(image), "two figures look the same");
                QCOMPARE(inkedRuns(image), QString::number(figure).size());
                seen.append(image);
            }
            const QImage image = figureImage(1, {.codex = 25, .claude = 100}, size);
            // Left of a quarter both bars are full, right of it only Claude's.
            const int oneBar = barPixels(image, size * 7 / 8);
            QVERIFY(oneBar > 0);
            QCOMPARE(barPixels(image, size / 8), 2 * oneBar);
        }
    }

    void summarises() {
        const auto check = [](const std::vector<ProviderQuotaSnapshot>& entries,
                              const GaugeValues& gauges, const char* tooltip) {
            const model::QuotaSnapshot snapshot{.providers = entries};
            QVERIFY2(ui::gaugeValues(snapshot) == gauges, tooltip);
            QCOMPARE(ui::tooltipLines(snapshot).join(u'|'), QString::fromUtf8(tooltip));
        };
        const auto codex = AIProvider::codex;
        const auto claude = AIProvider::claude;
        check({}, {}, "Tallyvane|Codex: 5H 0%  ·  WK 0%|Claude: 5H 0%  ·  WK 0%");
        check({entry(codex, 99.5, {})}, {.codex = 0.5},
              "Tallyvane: 1%|Codex: 5H 0%  ·  WK 0%|Claude: 5H 0%  ·  WK 0%");
        check({entry(codex, {}, 25)}, {.codex = 75},
              "Tallyvane|Codex: 5H 0%  ·  WK 75%|Claude: 5H 0%  ·  WK 0%");
        check({entry(codex, -5, {}), entry(claude, 130, {})}, {.codex = 100, .claude = 0},
              "Tallyvane: 0%|Codex: 5H 100%  ·  WK 0%|Claude: 5H 0%  ·  WK 0%");
        check({entry(claude, 80.4, 0.0), entry(codex, 12.5, 36.5)},
              {.codex = 87.5, .claude = 100 - 80.4},
              "Tallyvane: 20%|Codex: 5H 87%  ·  WK 63%|Claude: 5H 19%  ·  WK 100%");
        check({entry(claude, 60, {}, QuotaSyncState::pending)}, {.claude = 40},
              "Tallyvane: 40%|Codex: 5H 0%  ·  WK 0%|Claude: Sync pending");
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
