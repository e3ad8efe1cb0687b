#include "model/quota_snapshot.h"

#include "model/foreign_text.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include <algorithm>

namespace tallyvane::model {

namespace {

/// A status message stands in one line beside a bar.
constexpr qsizetype maximumStatusMessageLength = 256;

QJsonObject toJson(const QuotaWindowSnapshot& window) {
    QJsonObject json{{QStringLiteral("usedPercent"), window.usedPercent}};
    if (window.resetsAt) {
        json.insert(QStringLiteral("resetsAt"), formatTimestamp(*window.resetsAt));
    }
    return json;
}

QJsonObject toJson(const ProviderQuotaSnapshot& entry) {
    QJsonObject json{{QStringLiteral("provider"), rawValue(entry.provider)},
                     {QStringLiteral("syncState"), rawValue(entry.syncState)}};
    if (entry.planName) {
        json.insert(QStringLiteral("planName"), *entry.planName);
    }
    if (entry.fiveHour) {
        json.insert(QStringLiteral("fiveHour"), toJson(*entry.fiveHour));
    }
    if (entry.week) {
        json.insert(QStringLiteral("week"), toJson(*entry.week));
    }
    if (entry.syncedAt) {
        json.insert(QStringLiteral("syncedAt"), formatTimestamp(*entry.syncedAt));
    }
    if (entry.statusMessage) {
        json.insert(QStringLiteral("statusMessage"), *entry.statusMessage);
    }
    return json;
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

/// Any program may have written the file.
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

QuotaSnapshot placeholderSnapshot(Timestamp now) {
    QuotaSnapshot snapshot{.updatedAt = now};
    for (const AIProvider provider : allCases<AIProvider>) {
        snapshot.providers.push_back({.provider = provider});
    }
    return snapshot;
}

std::expected<QByteArray, EncodeError> encodeSnapshot(const QuotaSnapshot& snapshot) {
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
