#pragma once

#include "providers/process_runner_error.h"

#include <QtCore/QByteArray>
#include <QtCore/QFuture>
#include <QtCore/QJsonObject>
#include <QtCore/QPromise>

#include <expected>

namespace tallyvane::providers {

/// The reply object of one exchange, or why there is none.
using CommandReply = std::expected<QJsonObject, ProcessRunnerError>;

/// Finds the one awaited reply in what a child writes: the first line of its standard output that
/// is a JSON object whose "id" is the number 1. Every other line is skipped. The first result
/// wins, what comes after it is dropped. One object serves one exchange; main thread only.
class ResponseCollector {
public:
    /// A longer line ends the exchange as a time-out does.
    static constexpr qsizetype maximumLineSize = 16 * 1024 * 1024;
    /// Of standard error only the beginning is kept.
    static constexpr qsizetype maximumErrorSize = 1024 * 1024;

    ResponseCollector() { m_promise.start(); }

    /// Takes the next bytes of standard output, cut anywhere.
    void appendOutput(QByteArrayView chunk);

    /// Takes the next bytes of standard error.
    void appendError(QByteArrayView chunk);

    /// Ends the exchange: with `failed` and the trimmed standard error, made readable, if that is
    /// UTF-8 text in which something can be read, else with `timedOut`.
    void timeoutFired();

    /// Ends the exchange with `result`, unless it has ended.
    void finish(CommandReply result);

    /// The result, which may be there already.
    [[nodiscard]] QFuture<CommandReply> waitForResult() const { return m_promise.future(); }

private:
    void examineLine();

    QByteArray m_line; ///< the beginning of a line whose newline has not come
    QByteArray m_error;
    bool m_finished = false;
    QPromise<CommandReply> m_promise;
};

} // namespace tallyvane::providers
