#include "core/fixtures.h"

#include "history/calendar_days.h"

namespace tallyvane::core {

using namespace std::chrono_literals;
using model::AIProvider;
using model::QuotaWindowSnapshot;

namespace {

constexpr auto age = 120s;

struct Figures {
    AIProvider provider;
    QLatin1StringView planName;
    double fiveHourPercent;
    std::chrono::minutes fiveHourReset;
    double weekPercent;
    int weekResetDays;
    int dailyQuota;
    std::int64_t dailyTokens;
};

constexpr std::array allFigures{
    Figures{AIProvider::codex, QLatin1StringView("Plus"), 42, 134min, 68, 2, 8, 120'000},
    Figures{AIProvider::claude, QLatin1StringView("Pro"), 81, 62min, 37, 3, 14, 84'000}};

} // namespace

model::QuotaSnapshot fixtureSnapshot(model::Timestamp now, const model::LocalZone& zone) {
    model::QuotaSnapshot snapshot{.updatedAt = now - age};
    for (const Figures& figures : allFigures) {
        const auto weekReset = history::addDays(now, figures.weekResetDays, zone);
        snapshot.providers.push_back(
            {.provider = figures.provider,
             .planName = figures.planName,
             .fiveHour = QuotaWindowSnapshot{.usedPercent = figures.fiveHourPercent,
                                             .resetsAt = now + figures.fiveHourReset},
             .week = QuotaWindowSnapshot{.usedPercent = figures.weekPercent, .resetsAt = weekReset},
             .syncedAt = now - age,
             .syncState = model::QuotaSyncState::current});
    }
    return snapshot;
}

history::UsageHistory fixtureHistory(model::Timestamp now, const model::LocalZone& zone) {
    history::UsageHistory history;
    for (int day = 0; day < 14; ++day) {
        for (const Figures& figures : allFigures) {
            history.points.push_back(
                {.date = history::addDays(now, -day, zone),
                 .provider = figures.provider,
                 .estimatedQuotaConsumed = (figures.dailyQuota + 7 * day) % 31 * 1.0,
                 .estimatedLocalTokens = (day + 1) * figures.dailyTokens});
        }
    }
    return history;
}

} // namespace tallyvane::core
