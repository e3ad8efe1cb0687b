#pragma once

#include <QtCore/QByteArray>

#include <memory>

namespace tallyvane::providers {

/// An answer of an HTTP server, as far as this program looks at it.
struct HttpResponse {
    int status = 0;
    QByteArray body;       ///< of status 200 alone
    QByteArray retryAfter; ///< that header; empty when there is none
};

/// Reads one answer of an HTTP/1 server in the pieces in which it arrives, and keeps no more of it
/// than 4 MiB: beyond that it is malformed. Answers that are not final, such as status 103, are
/// passed over.
class HttpResponseParser {
public:
    enum class Answer {
        whole,  ///< to a request; the body counts if the status is 200
        header, ///< to CONNECT: the connection is the server's behind the proxy from then on
    };
    enum class Progress { needsMore, complete, malformed };

    explicit HttpResponseParser(Answer answer);
    ~HttpResponseParser();
    HttpResponseParser(const HttpResponseParser&) = delete;
    HttpResponseParser& operator=(const HttpResponseParser&) = delete;

    /// Takes the next bytes; not to be called any more once it gave anything but `needsMore`.
    [[nodiscard]] Progress take(const QByteArray& bytes);

    /// Whether the answer is complete if no more bytes come, as one without a length is.
    [[nodiscard]] bool isCompleteAtEnd();

    /// The answer, once it is complete.
    [[nodiscard]] HttpResponse response() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace tallyvane::providers
