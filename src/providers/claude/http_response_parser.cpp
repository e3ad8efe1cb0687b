#include "providers/claude/http_response_parser.h"

#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/string_body.hpp>

namespace tallyvane::providers {

namespace {

namespace http = boost::beast::http;
using Parser = http::response_parser<http::string_body>;

constexpr std::uint32_t maximumHeaderSize = 60 * 1024; // Beast supports less than 64 KiB
constexpr std::uint64_t maximumSize = 4 * 1024 * 1024;

QByteArray toBytes(boost::beast::string_view text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

} // namespace

struct HttpResponseParser::State {
    explicit State(Answer kind) : answer(kind) { begin(); }

    void begin() {
        parser = std::make_unique<Parser>();
        parser->eager(true);
        parser->header_limit(maximumHeaderSize);
        parser->body_limit(maximumSize);
        parser->skip(answer == Answer::header);
    }

    int status() const { return static_cast<int>(parser->get().result_int()); }

    Answer answer;
    std::unique_ptr<Parser> parser; // a new one for each response
    QByteArray unread;
    std::uint64_t received = 0;
};

HttpResponseParser::HttpResponseParser(Answer answer) : m_state(std::make_unique<State>(answer)) {}

HttpResponseParser::~HttpResponseParser() = default;

HttpResponseParser::Progress HttpResponseParser::take(const QByteArray& bytes) {
    State& state = *m_state;
    state.received += static_cast<std::uint64_t>(bytes.size());
    state.unread += bytes;
    while (state.received <= maximumSize) {
        boost::system::error_code error;
        const auto consumed =
            state.parser->put(boost::asio::buffer(state.unread.constData(),
                                                  static_cast<std::size_t>(state.unread.size())),
                              error);
        state.unread.remove(0, static_cast<qsizetype>(consumed));
        // The status counts even if the body's length is over the limit.
        const bool hasHeader = state.parser->is_header_done() || error == http::error::body_limit;
        const int status = hasHeader ? state.status() : 0;
        if (status / 100 == 1 && status != 101) {
            state.begin();
        } else if (hasHeader && status != 200) {
            return Progress::complete;
        } else if (error && error != http::error::need_more) {
            return Progress::malformed;
        } else if (!state.parser->is_done()) {
            return Progress::needsMore;
        } else {
            const bool isAllowed = state.answer == Answer::whole || state.unread.isEmpty();
            return isAllowed ? Progress::complete : Progress::malformed;
        }
    }
    return Progress::malformed;
}

bool HttpResponseParser::isCompleteAtEnd() {
    boost::system::error_code error;
    if (m_state->parser->is_header_done()) {
        m_state->parser->put_eof(error);
    }
    return !error && m_state->parser->is_done();
}

HttpResponse HttpResponseParser::response() const {
    const auto& message = m_state->parser->get();
    return {.status = m_state->status(),
            .body = toBytes(message.body()),
            .retryAfter = toBytes(message[http::field::retry_after])};
}

} // namespace tallyvane::providers
