#include "history/usage_history_recorder.h"

#include "history/calendar_days.h"

#include <algorithm>

namespace tallyvane::history {

using model::AIProvider;
using model::QuotaSnapshot;

namespace {

QString key(AIProvider provider) {
    return QStringLiteral("token-baseline.") + model::rawValue(provider);
}

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

std::int64_t TokenBaselines::tokenDelta(AIProvider provider, std::int64_t total) const {
    const std::int64_t from = baseline(provider);
    return from < 1 || total < from ? 0 : total - from;
}

std::expected<void, model::FileError> TokenBaselines::move(const TokenTotals& totals) {
    std::map<QString, std::int64_t> values;
    for (const auto& [provider, total] : totals) {
        values[key(provider)] = total;
    }
    if (auto stored = m_defaults.setIntegers(values); !stored) {
        m_remembered.insert(totals.begin(), totals.end()); // keeps the known ones
        return stored;
    }
    for (const auto& [provider, total] : totals) {
        m_remembered[provider] = total;
    }
    return {};
}

std::int64_t TokenBaselines::baseline(AIProvider provider) const {
    const auto remembered = m_remembered.find(provider);
    // A stored total below 1 takes precedence too: another program has seen the logs disappear.
    const bool isStored = !m_defaults.text(key(provider)).isEmpty();
    return isStored || remembered == m_remembered.end() ? m_defaults.integer(key(provider))
                                                        : remembered->second;
}

std::expected<RecordedHistory, model::FileError>
UsageHistoryRecorder::record(const std::optional<QuotaSnapshot>& previous,
                             const QuotaSnapshot& current, const TokenTotals& tokenTotals,
                             model::Timestamp now) {
    RecordedHistory recorded{.history = loadHistory(m_store).value_or(UsageHistory{})};
    UsageHistory& history = recorded.history;
    const QDate today = localDay(now, m_zone);

    TokenTotals newTokens;
    for (const auto& [provider, total] : tokenTotals) {
        newTokens[provider] = m_baselines.tokenDelta(provider, total);
    }
    if (const auto moved = m_baselines.move(tokenTotals); !moved) {
        // Otherwise the next call would add them again.
        newTokens.clear();
        recorded.uncounted = moved.error().message;
    }
    for (const AIProvider provider : model::allCases<AIProvider>) {
        const UsageHistoryPoint increment{.date = startOfDay(today, m_zone),
                                          .provider = provider,
                                          .estimatedQuotaConsumed =
                                              quotaIncrement(previous, current, provider),
                                          .estimatedLocalTokens = newTokens[provider]};
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
    return recorded;
}

} // namespace tallyvane::history
