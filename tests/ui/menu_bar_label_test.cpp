#include "model/quota_display.h"
#include "support/test_main.h"
#include "ui/item/menu_bar_label.h"

using namespace tallyvane;
using model::AIProvider;
using model::ProviderQuotaSnapshot;
using model::QuotaSyncState;
using model::QuotaWindowSnapshot;
using ui::GaugeValues;

namespace {

ProviderQuotaSnapshot entry(AIProvider provider, std::optional<double> fiveHour,
                            std::optional<double> week,
                            QuotaSyncState state = QuotaSyncState::current) {
    ProviderQuotaSnapshot entry{.provider = provider, .syncState = state};
    if (fiveHour) {
        entry.fiveHour = QuotaWindowSnapshot{.usedPercent = *fiveHour};
    }
    if (week) {
        entry.week = QuotaWindowSnapshot{.usedPercent = *week};
    }
    return entry;
}

} // namespace

class MenuBarLabelTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void tellsTheFigures_data() {
        using Entries = std::vector<ProviderQuotaSnapshot>;
        QTest::addColumn<Entries>("entries");
        QTest::addColumn<QString>("label");
        QTest::addColumn<GaugeValues>("gauges");
        QTest::addColumn<QStringList>("tooltip");
        const auto row = [](const char* name, const Entries& entries, const char* label,
                            const GaugeValues& gauges, const QStringList& tooltip) {
            QTest::newRow(name) << entries << QString::fromLatin1(label) << gauges << tooltip;
        };
        constexpr auto codex = AIProvider::codex;
        constexpr auto claude = AIProvider::claude;
        const QString nothing = QStringLiteral("5H 0%  \u00B7  WK 0%");
        row("nothing", {}, "", {},
            {QStringLiteral("Tallyvane"), QStringLiteral("Codex: ") + nothing,
             QStringLiteral("Claude: ") + nothing});
        row("rounded and truncated, in the fixed order",
            {entry(claude, 80.4, 0.0), entry(codex, 12.5, 36.5)}, "20%",
            {.codex = 87.5, .claude = 100 - 80.4},
            {QStringLiteral("Tallyvane: 20%"), QStringLiteral("Codex: 5H 87%  \u00B7  WK 63%"),
             QStringLiteral("Claude: 5H 19%  \u00B7  WK 100%")});
        row("half rounds up", {entry(codex, 99.5, {})}, "1%", {.codex = 0.5},
            {QStringLiteral("Tallyvane: 1%"), QStringLiteral("Codex: 5H 0%  \u00B7  WK 0%"),
             QStringLiteral("Claude: ") + nothing});
        row("beyond the ends", {entry(codex, -5, {}), entry(claude, 130, {})}, "0%",
            {.codex = 100, .claude = 0},
            {QStringLiteral("Tallyvane: 0%"), QStringLiteral("Codex: 5H 100%  \u00B7  WK 0%"),
             QStringLiteral("Claude: ") + nothing});
        row("a week alone fills a gauge, not the label", {entry(codex, {}, 25)}, "", {.codex = 75},
            {QStringLiteral("Tallyvane"), QStringLiteral("Codex: 5H 0%  \u00B7  WK 75%"),
             QStringLiteral("Claude: ") + nothing});
        row("a pending figure still counts", {entry(claude, 60, {}, QuotaSyncState::pending)},
            "40%", {.claude = 40},
            {QStringLiteral("Tallyvane: 40%"), QStringLiteral("Codex: ") + nothing,
             QStringLiteral("Claude: Sync pending")});
    }
    void tellsTheFigures() {
        QFETCH(const std::vector<ProviderQuotaSnapshot>, entries);
        QFETCH(const GaugeValues, gauges);
        const model::QuotaSnapshot snapshot{.providers = entries};
        QTEST(model::labelText(snapshot), "label");
        QVERIFY(ui::gaugeValues(snapshot) == gauges);
        QTEST(ui::tooltipLines(snapshot), "tooltip");
    }
};

TALLYVANE_TEST_MAIN(MenuBarLabelTest)
#include "menu_bar_label_test.moc"
