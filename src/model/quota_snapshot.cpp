#include "model/quota_snapshot.h"

#include "model/foreign_text.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include <algorithm>

namespace tallyvane::model {

namespace {

/// The message has to fit on one line beside a bar.
constexpr qsizetype maximumStatusMessageLength = 256;

QJsonValue toJson(const QString& text) {
    return text;
}

QJsonValue toJson(Timestamp timestamp) {
    return formatTimestamp(timestamp);
}

QJsonValue toJson(const QuotaWindowSnapshot& window);

/// Undefined, which omits the member, when there is no value.
template <typename T>
QJsonValue toJson(const std::optional<T>& value) {
    return value ? toJson(*value) : QJsonValue(QJsonValue::Undefined);
}

QJsonValue toJson(const QuotaWindowSnapshot& window) {
    return QJsonObject{{QStringLiteral("usedPercent"), window.usedPercent},
                       {QStringLiteral("resetsAt"), toJson(window.resetsAt)}};
}

QJsonValue toJson(const ProviderQuotaSnapshot& entry) {
    return QJsonObject{{QStringLiteral("provider"), rawValue(entry.provider)},
                       {QStringLiteral("planName"), toJson(entry.planName)},
                       {QStringLiteral("fiveHour"), toJson(entry.fiveHour)},
                       {QStringLiteral("week"), toJson(entry.week)},
                       {QStringLiteral("syncedAt"), toJson(entry.syncedAt)},
                       {QStringLiteral("syncState"), rawValue(entry.syncState)},
                       {QStringLiteral("statusMessage"), toJson(entry.statusMessage)}};
}

std::optional<QuotaWindowSnapshot> readWindow(const JsonReader& entry, QLatin1StringView key) {
    const std::optional<JsonReader> window = entry.optionalObject(key);
    if (!window) {
        return std::nullopt;
    }
    return QuotaWindowSnapshot{.usedPercent = window->number(QLatin1StringView{"usedPercent"}),
                               .resetsAt =
                                   window->optionalTimestamp(QLatin1StringView{"resetsAt"})};
}

/// Sanitises the text, since any program may have written the file.
std::optional<QString> readLine(const JsonReader& entry, QLatin1StringView key,
                                qsizetype maximumLength) {
    const std::optional<QString> text = entry.optionalText(key);
    return text ? std::optional(readableLine(*text, maximumLength)) : std::nullopt;
}

ProviderQuotaSnapshot readEntry(const JsonReader& entry) {
    return {
        .provider = entry.enumeration<AIProvider>(QLatin1StringView{"provider"}),
        .planName = readLine(entry, QLatin1StringView{"planName"}, maximumPlanNameLength),
        .fiveHour = readWindow(entry, QLatin1StringView{"fiveHour"}),
        .week = readWindow(entry, QLatin1StringView{"week"}),
        .syncedAt = entry.optionalTimestamp(QLatin1StringView{"syncedAt"}),
        .syncState = entry.enumeration<QuotaSyncState>(QLatin1StringView{"syncState"}),
        .statusMessage =
            readLine(entry, QLatin1StringView{"statusMessage"}, maximumStatusMessageLength),
    };
}

} // namespace

const std::optional<QuotaWindowSnapshot>& window(const ProviderQuotaSnapshot& entry,
                                                 QuotaPeriod period) {
    return period == QuotaPeriod::fiveHour ? entry.fiveHour : entry.week;
}

ProviderQuotaSnapshot entryFor(const QuotaSnapshot& snapshot, AIProvider provider) {
    const auto found =
        std::ranges::find(snapshot.providers, provider, &ProviderQuotaSnapshot::provider);
    if (found == snapshot.providers.end()) {
        return {.provider = provider};
    }
    return *found;
}

QuotaSnapshot withProviders(const QuotaSnapshot& snapshot,
                            const std::vector<AIProvider>& providers) {
    QuotaSnapshot chosen{.schemaVersion = snapshot.schemaVersion, .updatedAt = snapshot.updatedAt};
    for (const AIProvider provider : providers) {
        chosen.providers.push_back(entryFor(snapshot, provider));
    }
    return chosen;
}

QuotaSnapshot placeholderSnapshot(Timestamp now) {
    QuotaSnapshot snapshot{.updatedAt = now};
    for (const AIProvider provider : allCases<AIProvider>) {
        snapshot.providers.push_back({.provider = provider});
    }
    return snapshot;
}

std::expected<QByteArray, FileError> encodeSnapshot(const QuotaSnapshot& snapshot) {
    QJsonArray providers;
    for (const ProviderQuotaSnapshot& entry : snapshot.providers) {
        providers.append(toJson(entry));
    }
    return encodeJson({{QStringLiteral("schemaVersion"), qint64{snapshot.schemaVersion}},
                       {QStringLiteral("providers"), providers},
                       {QStringLiteral("updatedAt"), formatTimestamp(snapshot.updatedAt)}});
}

std::expected<QuotaSnapshot, DecodeError> decodeSnapshot(const QByteArray& json) {
    return decodeJson<QuotaSnapshot>(json, [](const JsonReader& reader) {
        return QuotaSnapshot{
            .schemaVersion = reader.integer(QLatin1StringView{"schemaVersion"}),
            .providers =
                reader.list<ProviderQuotaSnapshot>(QLatin1StringView{"providers"}, readEntry),
            .updatedAt = reader.timestamp(QLatin1StringView{"updatedAt"}),
        };
    });
}

} // namespace tallyvane::model
