#include "fuzz/fuzz_target.h"
#include "providers/response_collector.h"
#include "support/readable.h"

#include <algorithm>

using tallyvane::providers::CommandReply;
using tallyvane::providers::ResponseCollector;

namespace {

/// Feeds `stream` to both outputs, in chunks of the given sizes, cyclically.
CommandReply collect(QByteArrayView stream, QByteArrayView sizes) {
    ResponseCollector collector;
    for (qsizetype turn = 0; !stream.isEmpty(); ++turn) {
        const auto size = static_cast<unsigned char>(sizes[turn % sizes.size()]);
        const QByteArrayView chunk = stream.first(std::min<qsizetype>(size + 1, stream.size()));
        collector.appendError(chunk);
        collector.appendOutput(chunk);
        stream = stream.sliced(chunk.size());
    }
    collector.timeoutFired();
    return collector.waitForResult().result();
}

} // namespace

/// Splitting a child's output differently must not change the result, and an error is readable.
void tallyvane::fuzz::check(const QByteArray& input) {
    constexpr qsizetype sizesLength = 4;
    if (input.size() > sizesLength) {
        const QByteArrayView stream = QByteArrayView(input).sliced(sizesLength);
        const QByteArrayView singly("\0", 1);
        const CommandReply reply = collect(stream, QByteArrayView(input).first(sizesLength));
        require(reply == collect(stream, singly));
        require(reply || tests::isReadable(reply.error().text));
    }
}
