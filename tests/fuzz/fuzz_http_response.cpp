#include "fuzz/fuzz_target.h"
#include "providers/claude/http_response_parser.h"

#include <algorithm>

using namespace tallyvane::providers;

namespace {

QByteArray outcome(HttpResponseParser::Answer answer, QByteArrayView stream, qsizetype size) {
    HttpResponseParser parser(answer);
    auto progress = HttpResponseParser::Progress::needsMore;
    while (!stream.isEmpty() && progress == HttpResponseParser::Progress::needsMore) {
        const QByteArrayView piece = stream.first(std::min(size, stream.size()));
        progress = parser.take(piece.toByteArray());
        stream = stream.sliced(piece.size());
    }
    const bool isCutOff = progress == HttpResponseParser::Progress::needsMore;
    // Longer pieces can reveal earlier that an answer is malformed.
    if (progress == HttpResponseParser::Progress::malformed ||
        (isCutOff && !parser.isCompleteAtEnd())) {
        return "none";
    }
    const HttpResponse response = parser.response();
    // The body is only used with status 200.
    return QByteArray::number(response.status) + ' ' + response.retryAfter + ' ' +
           (response.status == 200 ? response.body : QByteArray());
}

} // namespace

/// Splitting an answer differently must not change the result. The first byte is the size of the
/// pieces.
void tallyvane::fuzz::check(const QByteArray& input) {
    if (input.size() > 1) {
        const qsizetype size = static_cast<unsigned char>(input[0]) + qsizetype{1};
        const QByteArrayView stream = QByteArrayView(input).sliced(1);
        const auto whole = HttpResponseParser::Answer::whole;
        require(outcome(whole, stream, size) == outcome(whole, stream, stream.size()));
        (void)outcome(HttpResponseParser::Answer::header, stream, size);
    }
}
