// A session log counts the same by the fast way, cut into any blocks, as by the plain one, and
// that as by a JSON library of others.

#include "history/session_log_counter.h"
#include "support/library_line_tokens.h"
#include "support/plain_session_log.h"

#include <algorithm>
#include <cstdlib>

using namespace tallyvane;

namespace {

history::TokenSum checkedLineTokens(model::AIProvider provider, std::string_view line) {
    const history::TokenSum tokens = history::plainLineTokens(provider, line);
    if (tests::LibraryLineTokens::of(provider, line).value_or(tokens) != tokens) {
        std::abort();
    }
    return tokens;
}

} // namespace

/// The first byte tells the provider, the second the size of the blocks.
extern "C" int LLVMFuzzerTestOneInput(const char* data, size_t size) {
    if (size < 2) {
        return 0;
    }
    const auto provider = data[0] == 'x' ? model::AIProvider::codex : model::AIProvider::claude;
    const auto blockSize = static_cast<std::size_t>(static_cast<unsigned char>(data[1])) + 1;
    const std::string_view log(data + 2, size - 2);
    history::SessionLogCounter counter;
    counter.begin(provider);
    std::optional<history::TokenSum> sum = history::TokenSum{};
    for (std::size_t at = 0; at < log.size() && sum; at += blockSize) {
        const std::string_view block = log.substr(at, blockSize);
        std::ranges::copy(block, counter.space().begin());
        if (!counter.take(block.size())) {
            sum.reset();
        }
    }
    if ((sum ? counter.finish() : sum) != tests::plainLogTokens(provider, log, checkedLineTokens)) {
        std::abort();
    }
    return 0;
}
