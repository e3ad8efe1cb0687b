#include "history/usage_history.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <limits>

namespace tallyvane::history {

using model::JsonReader;

UsageHistory withProviders(UsageHistory history, const std::vector<model::AIProvider>& providers) {
    std::erase_if(history.points, [&](const UsageHistoryPoint& point) {
        return std::ranges::find(providers, point.provider) == providers.end();
    });
    return history;
}

std::expected<QByteArray, model::FileError> encodeHistory(const UsageHistory& history) {
    QJsonArray points;
    for (const UsageHistoryPoint& point : history.points) {
        points.append(QJsonObject{
            {QStringLiteral("date"), model::formatTimestamp(point.date)},
            {QStringLiteral("provider"), model::rawValue(point.provider)},
            {QStringLiteral("estimatedQuotaConsumed"), point.estimatedQuotaConsumed},
            {QStringLiteral("estimatedLocalTokens"), qint64{point.estimatedLocalTokens}}});
    }
    return model::encodeJson({{QStringLiteral("schemaVersion"), qint64{history.schemaVersion}},
                              {QStringLiteral("points"), points}});
}

std::expected<UsageHistory, model::DecodeError> decodeHistory(const QByteArray& json) {
    const auto readPoint = [](const JsonReader& point) {
        return UsageHistoryPoint{
            .date = point.timestamp(QLatin1StringView{"date"}),
            .provider = point.enumeration<model::AIProvider>(QLatin1StringView{"provider"}),
            .estimatedQuotaConsumed = point.number(QLatin1StringView{"estimatedQuotaConsumed"}),
            .estimatedLocalTokens = point.integer(QLatin1StringView{"estimatedLocalTokens"}),
        };
    };
    return model::decodeJson<UsageHistory>(json, [&](const JsonReader& reader) {
        return UsageHistory{
            .schemaVersion = reader.integer(QLatin1StringView{"schemaVersion"}),
            .points = reader.list<UsageHistoryPoint>(QLatin1StringView{"points"}, readPoint),
        };
    });
}

std::int64_t addTokens(std::int64_t sum, std::int64_t tokens) {
    using Limits = std::numeric_limits<std::int64_t>;
    if (__builtin_add_overflow(sum, tokens, &sum)) {
        return tokens > 0 ? Limits::max() : Limits::min();
    }
    return sum;
}

QString id(const UsageHistoryPoint& point) {
    return model::rawValue(point.provider) + QLatin1Char('-') + model::unixSecondsText(point.date);
}

std::optional<UsageHistory> loadHistory(const model::SharedStore& store) {
    const std::optional<QByteArray> json = store.loadHistory();
    if (!json) {
        return std::nullopt;
    }
    const auto history = decodeHistory(*json);
    return history ? std::optional(*history) : std::nullopt;
}

std::expected<void, model::FileError> saveHistory(const model::SharedStore& store,
                                                  const UsageHistory& history) {
    const auto json = encodeHistory(history);
    if (!json) {
        return std::unexpected(json.error());
    }
    return store.saveHistory(*json);
}

} // namespace tallyvane::history
