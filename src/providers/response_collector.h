#pragma once

#include "providers/process_runner_error.h"

#include <QtCore/QByteArray>
#include <QtCore/QFuture>
#include <QtCore/QJsonObject>
#include <QtCore/QPromise>

#include <expected>

namespace tallyvane::providers {

/// The reply object of one exchange.
using CommandReply = std::expected<QJsonObject, ProcessRunnerError>;

/// Finds the awaited reply in a child's output: the first line of its standard output that is a
/// JSON object whose "id" is the number 1. Only the first result counts. One object per exchange;
/// main thread only.
class ResponseCollector {
public:
    /// In bytes; a longer line ends the exchange like a time-out.
    static constexpr qsizetype maximumLineSize = 16 * 1024 * 1024;
    /// In bytes; the rest of standard error is dropped.
    static constexpr qsizetype maximumErrorSize = 1024 * 1024;

    ResponseCollector() { m_promise.start(); }

    /// Takes the next bytes of standard output, which may end anywhere.
    void appendOutput(QByteArrayView chunk);

    /// Takes the next bytes of standard error.
    void appendError(QByteArrayView chunk);

    /// Ends the exchange: with `failed` and the trimmed standard error, made readable, if that is
    /// UTF-8 and not blank, else with `timedOut`.
    void timeoutFired();

    /// Ends the exchange with `result` unless it has ended already.
    void finish(CommandReply result);

    /// The result, which may be available already.
    [[nodiscard]] QFuture<CommandReply> waitForResult() const { return m_promise.future(); }

private:
    void examineLine();

    QByteArray m_line; ///< an incomplete line
    QByteArray m_error;
    bool m_finished = false;
    QPromise<CommandReply> m_promise;
};

} // namespace tallyvane::providers
