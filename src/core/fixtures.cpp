#include "core/fixtures.h"

#include "history/calendar_days.h"

namespace tallyvane::core {

using namespace std::chrono_literals;
using model::AIProvider;
using model::QuotaWindowSnapshot;

namespace {

constexpr auto age = 120s;

model::ProviderQuotaSnapshot fixtureEntry(AIProvider provider, model::Timestamp now,
                                          const model::LocalZone& zone) {
    const bool isCodex = provider == AIProvider::codex;
    return {.provider = provider,
            .planName = isCodex ? QStringLiteral("Plus") : QStringLiteral("Pro"),
            .fiveHour = QuotaWindowSnapshot{.usedPercent = isCodex ? 42.0 : 81.0,
                                            .resetsAt = now + (isCodex ? 134min : 62min)},
            .week = QuotaWindowSnapshot{.usedPercent = isCodex ? 68.0 : 37.0,
                                        .resetsAt = history::addDays(now, isCodex ? 2 : 3, zone)},
            .syncedAt = now - age,
            .syncState = model::QuotaSyncState::current};
}

} // namespace

model::QuotaSnapshot fixtureSnapshot(model::Timestamp now, const model::LocalZone& zone) {
    model::QuotaSnapshot snapshot{.updatedAt = now - age};
    for (const AIProvider provider : model::allCases<AIProvider>) {
        snapshot.providers.push_back(fixtureEntry(provider, now, zone));
    }
    return snapshot;
}

history::UsageHistory fixtureHistory(model::Timestamp now, const model::LocalZone& zone) {
    history::UsageHistory history;
    for (int day = 0; day < 14; ++day) {
        for (const AIProvider provider : model::allCases<AIProvider>) {
            const bool isCodex = provider == AIProvider::codex;
            history.points.push_back(
                {.date = history::addDays(now, -day, zone),
                 .provider = provider,
                 .estimatedQuotaConsumed = ((isCodex ? 8 : 14) + 7 * day) % 31 * 1.0,
                 .estimatedLocalTokens = (day + 1) * (isCodex ? 120'000 : 84'000)});
        }
    }
    return history;
}

} // namespace tallyvane::core
