#include "model/quota_display.h"
#include "support/test_main.h"
#include "ui/item/gauge_image.h"

#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace tallyvane;
using model::ProviderQuotaSnapshot;
using model::QuotaSyncState;
using ui::GaugeValues;

namespace {

constexpr QPointF codexCentre(6.6, 6.6);
constexpr QPointF claudeCentre(15.4, 15.4);

std::optional<model::QuotaWindowSnapshot>
used(double percent, std::optional<model::Timestamp> resetsAt = std::nullopt) {
    return model::QuotaWindowSnapshot{.usedPercent = percent, .resetsAt = resetsAt};
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
        check({{}, {}}, {5, 17}, Qt::red); // the stroke
        check({{}, {}}, {12, 12}, Qt::transparent);
        check({{}, {}}, codexCentre + QPointF(0, -3.7), Qt::red); // the rings
        check({{}, {}}, claudeCentre + QPointF(3.7, 0), Qt::red);
        check({25, {}}, codexCentre + QPointF(1.5, -1.5), Qt::red); // the sectors
        check({25, {}}, codexCentre + QPointF(1.5, 1.5), Qt::transparent);
        check({{}, 75}, claudeCentre + QPointF(-1.5, 1.5), Qt::red);
        check({{}, 75}, claudeCentre + QPointF(-1.5, -1.5), Qt::transparent);
        const QPointF middle(11, 11); // of the only one
        check({75}, middle, Qt::red);
        check({75}, middle + QPointF(-3, 3), Qt::red);
        check({75}, middle + QPointF(-3, -3), Qt::transparent);
        check({75}, middle + QPointF(8.1, 0), Qt::red);
        check({100, {}}, codexCentre + QPointF(-0.3, -2.5), Qt::red);
    }

    void writesTheSameDrawingAsFills() {
        const GaugeValues values{37, 80};
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
        const auto paint = [](int size, int figure, const GaugeValues& values) {
            return ui::paint(ui::figureDrawing(figure, values, size), size, Qt::black);
        };
        for (const int size : {16, 22, 24, 32, 48}) {
            QList<QImage> seen;
            for (int figure = 0; figure <= 100; ++figure) {
                seen.append(paint(size, figure, {}));
                QVERIFY2(seen.indexOf(seen.last()) == figure, "two figures look the same");
            }
        }
        const QImage image = paint(22, 1, {25, 100});
        const auto bar = [&image](int y) { // its opacity left and right of a quarter
            return std::pair(image.pixelColor(2, y).alpha(), image.pixelColor(10, y).alpha());
        };
        QVERIFY(bar(18) == std::pair(255, 89));
        QVERIFY(bar(21) == std::pair(255, 255));
        QCOMPARE(paint(22, 8, {50}).pixelColor(10, 21).alpha(), 255);
        QVERIFY(paint(22, 8, {50}).pixelColor(10, 18).alpha() != 255);
    }

    void summarises() {
        using enum model::AIProvider;
        const model::Timestamp now{1000h};
        const auto check = [&](const std::vector<ProviderQuotaSnapshot>& entries,
                               const GaugeValues& gauges, const char* tooltip) {
            const model::QuotaSnapshot snapshot =
                model::withProviders({.providers = entries}, {codex, claude});
            QVERIFY2(ui::gaugeValues(snapshot) == gauges, tooltip);
            QCOMPARE(ui::tooltipLines(snapshot, {}, now).join(u'|'), QString::fromUtf8(tooltip));
        };
        check({{.provider = codex, .fiveHour = used(99.5)}}, {0.5, {}},
              "Tallyvane: 1%|Codex: 5H 0%  ·  WK 0%|Claude: 5H 0%  ·  WK 0%");
        check({{.provider = codex, .week = used(25), .syncState = QuotaSyncState::current}},
              {75, {}}, "Tallyvane|Codex: 5H 0%  ·  WK 75%|Claude: 5H 0%  ·  WK 0%");
        check({{.provider = claude, .fiveHour = used(80.4), .week = used(0)},
               {.provider = codex, .fiveHour = used(12.5), .week = used(36.5)}},
              {87.5, 100 - 80.4},
              "Tallyvane: 20%|Codex: 5H 87%  ·  WK 63%|Claude: 5H 19%  ·  WK 100%");
        check({{.provider = claude, .fiveHour = used(60), .syncState = QuotaSyncState::pending}},
              {{}, 40}, "Tallyvane: 40%|Codex: 5H 0%  ·  WK 0%|Claude: Sync pending");
        check({{.provider = codex,
                .fiveHour = used(10, now + 134min),
                .week = used(20, now + 50h),
                .syncedAt = now - 14min,
                .syncState = QuotaSyncState::current},
               {.provider = claude,
                .fiveHour = used(60, now - 1s),
                .week = used(30, now + 2min),
                .syncedAt = now - 15min,
                .syncState = QuotaSyncState::current}},
              {90, 40},
              "Tallyvane: 40%|Codex: 5H 90%  ·  WK 80%| 5H resets in 2h 14m  ·  WK in 2d 2h|"
              "Claude: 5H 40%  ·  WK 70% (last updated 15 min ago)| WK resets in 2m");
        check({{.provider = claude,
                .fiveHour = used(60, now + 1h),
                .syncedAt = now - 5min,
                .syncState = QuotaSyncState::pending}},
              {{}, 40},
              "Tallyvane: 40%|Codex: 5H 0%  ·  WK 0%|"
              "Claude: Sync pending (last updated 5 min ago)");
        check({{.provider = codex,
                .fiveHour = used(80, now + 150min),
                .week = used(60, now + 84h),
                .syncedAt = now,
                .syncState = QuotaSyncState::current}},
              {20, {}},
              "Tallyvane: 20%|Codex: 5H 20%  ·  WK 40%| 5H resets in 2h 30m  ·  WK in 3d 12h|"
              " 5H runs out in 37m  ·  WK in 2d 8h|Claude: 5H 0%  ·  WK 0%");
        const core::Failures failures{
            {codex, {.text = model::Message("No."), .advice = model::Message("Do.")}}};
        QCOMPARE(ui::tooltipLines({}, failures, now).last(), u"No. Do."_s);
        const model::QuotaSnapshot alone{.providers = {{.provider = claude, .week = used(30)}}};
        QVERIFY(ui::gaugeValues(alone) == GaugeValues{70});
        QCOMPARE(ui::tooltipLines(alone, {}, now).join(u'|'),
                 u"Tallyvane|Claude: 5H 0%  ·  WK 70%");
    }
};

TALLYVANE_TEST(GaugeImageTest)
#include "gauge_image_test.moc"
