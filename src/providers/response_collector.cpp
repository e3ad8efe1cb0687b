#include "providers/response_collector.h"

#include "model/foreign_text.h"
#include "providers/reply_reading.h"

#include <QtCore/QStringDecoder>

#include <algorithm>

namespace tallyvane::providers {

void ResponseCollector::appendOutput(QByteArrayView chunk) {
    // Searching only the new bytes keeps a flood without newlines linear.
    while (!m_finished && !chunk.isEmpty()) {
        const qsizetype newline = chunk.indexOf('\n');
        const QByteArrayView part = newline < 0 ? chunk : chunk.first(newline);
        if (part.size() > maximumLineSize - m_line.size()) {
            timeoutFired();
            return;
        }
        m_line.append(part);
        if (newline < 0) {
            return;
        }
        examineLine();
        m_line.clear();
        chunk = chunk.sliced(newline + 1);
    }
}

void ResponseCollector::examineLine() {
    const std::optional<QJsonObject> message = parseObject(m_line);
    if (message && numberMember(*message, QLatin1StringView{"id"}) == 1.0) {
        finish(*message);
    }
}

void ResponseCollector::appendError(QByteArrayView chunk) {
    m_error.append(chunk.first(std::min(chunk.size(), maximumErrorSize - m_error.size())));
}

void ResponseCollector::timeoutFired() {
    // A stateful decoder: a character cut off at the end is not an error.
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(m_error);
    const QStringView words = decoder.hasError() ? QStringView() : QStringView(text).trimmed();
    const QString message = model::readableText(words).trimmed();
    using Kind = ProcessRunnerError::Kind;
    finish(std::unexpected(
        ProcessRunnerError{message.isEmpty() ? Kind::timedOut : Kind::failed, message}));
}

void ResponseCollector::finish(CommandReply result) {
    if (m_finished) {
        return;
    }
    m_finished = true;
    m_promise.addResult(std::move(result));
    m_promise.finish();
}

} // namespace tallyvane::providers
