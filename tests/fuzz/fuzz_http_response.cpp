// How an answer is cut into pieces must not change what is read from it.

#include "providers/claude/http_response_parser.h"

#include <algorithm>
#include <cstdlib>

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
    // What is no answer can be seen sooner, or before it is cut off, in longer pieces.
    if (progress == HttpResponseParser::Progress::malformed ||
        (isCutOff && !parser.isCompleteAtEnd())) {
        return "none";
    }
    const HttpResponse response = parser.response();
    // The body of any other status counts for nothing.
    return QByteArray::number(response.status) + ' ' + response.retryAfter + ' ' +
           (response.status == 200 ? response.body : QByteArray());
}

} // namespace

/// The first byte is the size of the pieces.
extern "C" int LLVMFuzzerTestOneInput(const char* data, size_t size) {
    if (size > 1) {
        const qsizetype length = static_cast<unsigned char>(data[0]) + qsizetype{1};
        const QByteArrayView stream(data + 1, static_cast<qsizetype>(size - 1));
        const auto whole = HttpResponseParser::Answer::whole;
        if (outcome(whole, stream, length) != outcome(whole, stream, stream.size())) {
            std::abort();
        }
        (void)outcome(HttpResponseParser::Answer::header, stream, length);
    }
    return 0;
}
