#include "model/quota_display.h"
#include "support/test_main.h"
#include "ui/item/gauge_image.h"

#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

using namespace tallyvane;
using model::ProviderQuotaSnapshot;
using model::QuotaSyncState;
using ui::GaugeValues;

namespace {

constexpr QPointF codexCentre(6.6, 6.6);
constexpr QPointF claudeCentre(15.4, 15.4);

/// The alpha values of a part of a column, from the top down.
QList<int> alphas(const QImage& image, int x, int top, int end) {
    QList<int> values;
    for (int y = top; y < end; ++y) {
        values << image.pixelColor(x, y).alpha();
    }
    return values;
}

/// The number of runs of inked columns in the upper half.
int inkedRuns(const QImage& image) {
    QString columns;
    for (int x = 0; x < image.width(); ++x) {
        const auto column = alphas(image, x, 0, image.height() / 2);
        columns += column.count(0) == column.size() ? u' ' : u'x';
    }
    return static_cast<int>(columns.split(u' ', Qt::SkipEmptyParts).size());
}

std::optional<model::QuotaWindowSnapshot> used(double percent) {
    return model::QuotaWindowSnapshot{.usedPercent = percent};
}

} // namespace

class GaugeImageTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void drawsTheGauges() {
        const auto image = [](const GaugeValues& values) {
            return ui::paint(ui::gaugeDrawing(values), 880, Qt::red);
        };
        const auto check = [&](const GaugeValues& values, QPointF point, Qt::GlobalColor expected) {
            QCOMPARE(image(values).pixelColor((point * 40).toPoint()), QColor(expected));
        };
        check({}, {11, 11}, Qt::red); // the stroke, its lower end and its round cap
        check({}, {5, 17}, Qt::red);
        check({}, {17.6, 4.4}, Qt::red);
        check({}, {18, 4}, Qt::transparent);
        check({}, {12, 12}, Qt::transparent);
        check({}, codexCentre + QPointF(0, -3.7), Qt::red); // the rings
        check({}, claudeCentre + QPointF(3.7, 0), Qt::red);
        check({}, codexCentre + QPointF(0, -4.2), Qt::transparent);
        check({}, codexCentre + QPointF(0.5, -0.5), Qt::transparent); // the sectors
        check({.codex = 25}, codexCentre + QPointF(1.5, -1.5), Qt::red);
        check({.codex = 25}, codexCentre + QPointF(1.5, 1.5), Qt::transparent);
        check({.claude = 75}, claudeCentre + QPointF(-1.5, 1.5), Qt::red);
        check({.claude = 75}, claudeCentre + QPointF(-1.5, -1.5), Qt::transparent);
        check({.claude = 75}, codexCentre + QPointF(1.5, -1.5), Qt::transparent);
        check({.codex = 100}, codexCentre + QPointF(-0.3, -2.5), Qt::red);
        check({.codex = 100}, codexCentre + QPointF(0, 3.17), Qt::transparent);
        QCOMPARE(image({.codex = 0.1}), image({})); // a sliver is left out
        QVERIFY(image({.codex = 0.2}) != image({}));
    }

    void writesTheSameDrawingAsFills() {
        const GaugeValues values{.codex = 37, .claude = 80};
        for (const auto& drawing : {ui::gaugeDrawing(values), ui::figureDrawing(38, values, 22)}) {
            const QByteArray svg = ui::symbolicSvg(drawing);
            QVERIFY(!svg.contains("stroke"));
            QImage drawn(220, 220, QImage::Format_ARGB32_Premultiplied);
            drawn.fill(Qt::transparent);
            QPainter painter(&drawn);
            QSvgRenderer(svg).render(&painter);
            const QImage expected = ui::paint(drawing, 220, Qt::black);
            for (int i = 0; i < 220 * 220; ++i) {
                const QPoint place(i % 220, i / 220);
                QVERIFY(std::abs(qAlpha(drawn.pixel(place)) - qAlpha(expected.pixel(place))) <= 8);
            }
        }
    }

    void showsTheFigure() {
        for (const int size : {16, 22, 24, 32, 48}) {
            const auto paint = [size](int figure, const GaugeValues& values) {
                return ui::paint(ui::figureDrawing(figure, values, size), size, Qt::black);
            };
            QList<QImage> seen;
            for (int figure = 0; figure <= 100; ++figure) {
                const QImage image = paint(figure, {});
                QCOMPARE(image.size(), QSize(size, size));
                QVERIFY2(!seen.contains(image), "two figures look the same");
                QCOMPARE(inkedRuns(image), QString::number(figure).size());
                seen.append(image);
            }
            const QImage image = paint(1, {.codex = 25, .claude = 100});
            // Left of a quarter both bars are full, right of it only Claude's.
            const auto oneBar = alphas(image, size * 7 / 8, size * 2 / 3, size).count(255);
            QVERIFY(oneBar > 0);
            QCOMPARE(alphas(image, size / 8, size * 2 / 3, size).count(255), 2 * oneBar);
        }
    }

    void summarises() {
        const auto check = [](const std::vector<ProviderQuotaSnapshot>& entries,
                              const GaugeValues& gauges, const char* tooltip) {
            const model::QuotaSnapshot snapshot{.providers = entries};
            QVERIFY2(ui::gaugeValues(snapshot) == gauges, tooltip);
            QCOMPARE(ui::tooltipLines(snapshot).join(u'|'), QString::fromUtf8(tooltip));
        };
        using enum model::AIProvider;
        check({{.provider = codex, .fiveHour = used(99.5)}}, {.codex = 0.5},
              "Tallyvane: 1%|Codex: 5H 0%  ·  WK 0%|Claude: 5H 0%  ·  WK 0%");
        check({{.provider = codex, .week = used(25), .syncState = QuotaSyncState::current}},
              {.codex = 75}, "Tallyvane|Codex: 5H 0%  ·  WK 75%|Claude: 5H 0%  ·  WK 0%");
        check({{.provider = claude, .fiveHour = used(80.4), .week = used(0)},
               {.provider = codex, .fiveHour = used(12.5), .week = used(36.5)}},
              {.codex = 87.5, .claude = 100 - 80.4},
              "Tallyvane: 20%|Codex: 5H 87%  ·  WK 63%|Claude: 5H 19%  ·  WK 100%");
        check({{.provider = claude, .fiveHour = used(60), .syncState = QuotaSyncState::pending}},
              {.claude = 40}, "Tallyvane: 40%|Codex: 5H 0%  ·  WK 0%|Claude: Sync pending");
    }

    void ordersTheBytes() {
        QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
        image.setPixelColor(0, 0, QColor(255, 0, 0, 51));
        image.setPixelColor(1, 0, QColor(1, 2, 3));
        QCOMPARE(ui::networkPixels(image).toHex(), QByteArray("33ff0000ff010203"));
    }
};

TALLYVANE_TEST(GaugeImageTest)
#include "gauge_image_test.moc"
