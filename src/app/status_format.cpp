#include "app/status_format.h"

#include "app/pace_report.h"
#include "model/quota_display.h"

#include <algorithm>

namespace tallyvane::app {

using model::ProviderQuotaSnapshot;

namespace {

/// nullopt: not known.
using FieldValue = std::optional<QString>;

/// Bars run commands and change colours at signs such as "%{", "#[" and "<".
QString withoutMarkup(QString text) {
    text.removeIf([](QChar c) {
        return c.unicode() < 0x80 && !c.isLetterOrNumber() && !QStringView(u" .+-").contains(c);
    });
    return text;
}

QString resetValue(const model::QuotaWindowSnapshot& window, ProviderQuotaSnapshot entry,
                   model::Timestamp now, const model::WeekdayTimeFormat& weekdayTime) {
    // Of pending figures resetText() says why they are pending instead.
    entry.syncState = model::QuotaSyncState::current;
    return model::resetText(window.resetsAt, entry, now, weekdayTime);
}

/// Of a quota window.
enum class Detail { left, reset, pace, runsOut };

/// By what follows the second word of a field.
std::optional<Detail> detailOf(QStringView rest) {
    constexpr std::pair<QStringView, Detail> known[] = {{u"", Detail::left},
                                                        {u".reset", Detail::reset},
                                                        {u".pace", Detail::pace},
                                                        {u".runsOut", Detail::runsOut}};
    const auto* found = std::ranges::find(known, rest, &std::pair<QStringView, Detail>::first);
    return found == std::end(known) ? std::nullopt : std::optional(found->second);
}

FieldValue windowValue(const ProviderQuotaSnapshot& entry, model::QuotaPeriod period, Detail detail,
                       model::Timestamp now, const model::WeekdayTimeFormat& weekdayTime) {
    const auto& window = model::window(entry, period);
    if (!window) {
        return std::nullopt;
    }
    const auto pace = model::pace(entry, period, now);
    switch (detail) {
    case Detail::left:
        return QString::number(static_cast<int>(model::remainingPercent(*window)));
    case Detail::reset:
        return window->resetsAt && *window->resetsAt > now
                   ? FieldValue(resetValue(*window, entry, now, weekdayTime))
                   : std::nullopt;
    case Detail::pace:
        return pace ? FieldValue(aheadText(pace->aheadPercent)) : std::nullopt;
    case Detail::runsOut:
        break;
    }
    return pace && pace->runsOutAt ? FieldValue(model::countdownText(*pace->runsOutAt - now))
                                   : std::nullopt;
}

FieldValue planValue(const ProviderQuotaSnapshot& entry) {
    const QString name = withoutMarkup(entry.planName.value_or(QString()));
    return name.isEmpty() ? FieldValue() : name;
}

/// nullopt if there is no such field.
std::optional<FieldValue> fieldValue(const QString& field, const model::QuotaSnapshot& snapshot,
                                     model::Timestamp now,
                                     const model::WeekdayTimeFormat& weekdayTime) {
    if (field == u"lowest") {
        const auto lowest = model::lowestRemainingPercent(snapshot);
        return lowest ? FieldValue(QString::number(*lowest)) : FieldValue();
    }
    const auto isSynced = [](const ProviderQuotaSnapshot& entry) {
        return entry.syncedAt.has_value();
    };
    if (field == u"updated") {
        return std::ranges::any_of(snapshot.providers, isSynced)
                   ? FieldValue(model::ageText(snapshot.updatedAt, now))
                   : FieldValue();
    }
    const QStringList words = field.split(u'.');
    const auto provider = model::fromRawValue<model::AIProvider>(words[0]);
    const auto period = model::fromRawValue<model::QuotaPeriod>(words.value(1));
    const auto detail = detailOf(field.sliced(words.mid(0, 2).join(u'.').size()));
    const bool ofPlan = words.size() == 2 && words[1] == u"plan";
    const bool ofState = words.size() == 2 && words[1] == u"state";
    if (!provider || !(period ? detail.has_value() : ofPlan || ofState)) {
        return std::nullopt;
    }
    const auto entry =
        std::ranges::find(snapshot.providers, *provider, &ProviderQuotaSnapshot::provider);
    if (entry == snapshot.providers.end()) {
        return FieldValue();
    }
    if (period && detail) {
        return windowValue(*entry, *period, *detail, now, weekdayTime);
    }
    return ofPlan ? planValue(*entry) : FieldValue(model::rawValue(entry->syncState));
}

} // namespace

std::expected<QString, QString> formattedStatus(const QString& format,
                                                const model::QuotaSnapshot& snapshot,
                                                model::Timestamp now,
                                                const model::WeekdayTimeFormat& weekdayTime) {
    QString text;
    qsizetype at = 0;
    while (at < format.size()) {
        const QChar c = format[at];
        if (c != u'{' && c != u'}') {
            text += c;
            ++at;
            continue;
        }
        if (at + 1 < format.size() && format[at + 1] == c) {
            text += c;
            at += 2;
            continue;
        }
        const qsizetype end = c == u'{' ? format.indexOf(u'}', at) : -1;
        if (end < 0) {
            return std::unexpected(
                QStringLiteral("A '%1' alone in the format; '%1%1' stands for a brace.").arg(c));
        }
        const QString field = format.sliced(at + 1, end - at - 1);
        const auto value = fieldValue(field, snapshot, now, weekdayTime);
        if (!value) {
            return std::unexpected(
                QStringLiteral("Unknown field '{%1}' in the format.").arg(field));
        }
        text += value->value_or(QStringLiteral("-"));
        at = end + 1;
    }
    return text;
}

} // namespace tallyvane::app
