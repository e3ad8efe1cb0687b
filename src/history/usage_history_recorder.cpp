#include "history/usage_history_recorder.h"

#include "history/calendar_days.h"

#include <algorithm>

namespace tallyvane::history {

using model::AIProvider;
using model::QuotaSnapshot;

namespace {

constexpr int retentionDays = 90;

std::optional<double> weeklyUsedPercent(const std::optional<QuotaSnapshot>& snapshot,
                                        AIProvider provider) {
    if (!snapshot) {
        return std::nullopt;
    }
    const auto week = model::entryFor(*snapshot, provider).week;
    return week ? std::optional(week->usedPercent) : std::nullopt;
}

double quotaIncrement(const std::optional<QuotaSnapshot>& previous, const QuotaSnapshot& current,
                      AIProvider provider) {
    const std::optional<double> now = weeklyUsedPercent(current, provider);
    const std::optional<double> before = weeklyUsedPercent(previous, provider);
    return now && before ? std::max(*now - *before, 0.0) : 0.0;
}

} // namespace

std::expected<UsageHistory, model::FileError>
UsageHistoryRecorder::record(const std::optional<QuotaSnapshot>& previous,
                             const QuotaSnapshot& current, const TokenTotals& tokenTotals,
                             model::Timestamp now) {
    UsageHistory history = loadHistory(m_store).value_or(UsageHistory{});
    const QDate today = localDay(now, m_zone);

    for (const AIProvider provider : model::allCases<AIProvider>) {
        const auto total = tokenTotals.find(provider);
        const UsageHistoryPoint increment{
            .date = startOfDay(today, m_zone),
            .provider = provider,
            .estimatedQuotaConsumed = quotaIncrement(previous, current, provider),
            .estimatedLocalTokens =
                tokenDelta(provider, total != tokenTotals.end() ? total->second : 0)};
        const auto point = std::ranges::find_if(history.points, [&](const UsageHistoryPoint& p) {
            return p.provider == provider && localDay(p.date, m_zone) == today;
        });
        if (point == history.points.end()) {
            history.points.push_back(increment);
        } else {
            point->estimatedQuotaConsumed += increment.estimatedQuotaConsumed;
            point->estimatedLocalTokens =
                addTokens(point->estimatedLocalTokens, increment.estimatedLocalTokens);
        }
    }

    const model::Timestamp cutOff = startOfDay(today.addDays(-retentionDays), m_zone);
    std::erase_if(history.points,
                  [cutOff](const UsageHistoryPoint& point) { return point.date < cutOff; });

    if (const auto saved = saveHistory(m_store, history); !saved) {
        return std::unexpected(saved.error());
    }
    return history;
}

std::int64_t UsageHistoryRecorder::tokenDelta(AIProvider provider, std::int64_t total) {
    const QString key = QStringLiteral("token-baseline.") + model::rawValue(provider);
    const std::int64_t baseline = m_defaults.integer(key);
    m_defaults.setInteger(key, total);
    // The first total ever seen says nothing of when its tokens were used.
    return baseline < 1 ? 0 : std::max<std::int64_t>(total - baseline, 0);
}

} // namespace tallyvane::history
