#include "app/refresh_result.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace tallyvane::app {

namespace {

using Outcome = core::RefreshReport::Outcome;

void insertText(QJsonObject& object, const QString& key,
                const std::optional<model::Message>& text) {
    if (text) {
        object[key] = text->sourceText();
    }
}

std::optional<model::Message> text(const QJsonObject& object, const QString& key) {
    const QJsonValue value = object[key];
    return value.isString() ? std::optional(model::Message::foreign(value.toString()))
                            : std::nullopt;
}

QJsonObject encode(const providers::QuotaFailure& failure) {
    QJsonObject object{{QStringLiteral("text"), failure.text.sourceText()},
                       {QStringLiteral("advice"), failure.advice.sourceText()}};
    if (!failure.foundProgram.isEmpty()) {
        object[QStringLiteral("foundProgram")] = failure.foundProgram;
    }
    return object;
}

} // namespace

QByteArray encodeRefreshResult(const RefreshResult& result) {
    QJsonObject failures;
    for (const auto& [provider, failure] : result.report.failures) {
        failures[model::rawValue(provider)] = encode(failure);
    }
    // What was published can be encoded.
    const QByteArray snapshot = model::encodeSnapshot(result.snapshot).value_or(QByteArray());
    QJsonObject object{{QStringLiteral("stored"), result.report.outcome == Outcome::published},
                       {QStringLiteral("failures"), failures},
                       {QStringLiteral("snapshot"), QJsonDocument::fromJson(snapshot).object()}};
    insertText(object, QStringLiteral("notStored"), result.report.notSaved);
    insertText(object, QStringLiteral("notCounted"), result.report.uncounted);
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<RefreshResult> decodeRefreshResult(const QByteArray& json) {
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const auto snapshot = model::decodeSnapshot(
        QJsonDocument(object[QStringLiteral("snapshot")].toObject()).toJson());
    if (!snapshot) {
        return std::nullopt;
    }
    RefreshResult result{.snapshot = *snapshot};
    result.report.outcome =
        object[QStringLiteral("stored")].toBool() ? Outcome::published : Outcome::notSaved;
    result.report.notSaved = text(object, QStringLiteral("notStored"));
    result.report.uncounted = text(object, QStringLiteral("notCounted"));
    const QJsonObject failures = object[QStringLiteral("failures")].toObject();
    for (const model::AIProvider provider : model::allCases<model::AIProvider>) {
        const QJsonObject failure = failures[model::rawValue(provider)].toObject();
        if (!failure.isEmpty()) {
            result.report.failures[provider] = {
                .text = model::Message::foreign(failure[QStringLiteral("text")].toString()),
                .advice = model::Message::foreign(failure[QStringLiteral("advice")].toString()),
                .foundProgram = failure[QStringLiteral("foundProgram")].toString()};
        }
    }
    return result;
}

} // namespace tallyvane::app
