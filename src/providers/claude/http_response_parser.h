#pragma once

#include <QtCore/QByteArray>

#include <memory>

namespace tallyvane::providers {

/// The parts of an HTTP response that this program uses.
struct HttpResponse {
    int status = 0;
    QByteArray body;       ///< only with status 200
    QByteArray retryAfter; ///< the header, or empty
};

/// Parses one HTTP/1 response as it arrives. More than 4 MiB is malformed. Skips interim responses,
/// such as status 103.
class HttpResponseParser {
public:
    enum class Answer {
        whole,  ///< to a GET request; the body is read if the status is 200
        header, ///< to CONNECT; more bytes than the header are malformed
    };
    enum class Progress { needsMore, complete, malformed };

    explicit HttpResponseParser(Answer answer);
    ~HttpResponseParser();
    HttpResponseParser(const HttpResponseParser&) = delete;
    HttpResponseParser& operator=(const HttpResponseParser&) = delete;

    /// Takes the next bytes. Must not be called again after it returned anything but `needsMore`.
    [[nodiscard]] Progress take(const QByteArray& bytes);

    /// Whether the response is complete if the connection ends now, as one without a length is.
    [[nodiscard]] bool isCompleteAtEnd();

    /// The response, once it is complete.
    [[nodiscard]] HttpResponse response() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace tallyvane::providers
