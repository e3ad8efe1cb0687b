// How a child's output is cut into chunks must not change what is read from it, and an error has a
// readable text.

#include "providers/response_collector.h"
#include "support/readable.h"

#include <algorithm>
#include <cstdlib>

using tallyvane::providers::CommandReply;
using tallyvane::providers::ResponseCollector;

namespace {

/// Feeds `stream` as both outputs, in chunks of the sizes given, over and over.
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

extern "C" int LLVMFuzzerTestOneInput(const char* data, size_t size) {
    constexpr qsizetype sizesLength = 4;
    const QByteArrayView input(data, static_cast<qsizetype>(size));
    if (input.size() > sizesLength) {
        const QByteArrayView stream = input.sliced(sizesLength);
        const QByteArrayView singly("\0", 1);
        const CommandReply reply = collect(stream, input.first(sizesLength));
        if (reply != collect(stream, singly) ||
            (!reply && !tallyvane::tests::isReadable(reply.error().text))) {
            std::abort();
        }
    }
    return 0;
}
