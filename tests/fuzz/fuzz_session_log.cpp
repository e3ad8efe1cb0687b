#include "fuzz/fuzz_target.h"
#include "history/session_log_counter.h"
#include "support/library_line_tokens.h"
#include "support/plain_session_log.h"

#include <algorithm>

using namespace tallyvane;

namespace {

history::TokenSum checkedLineTokens(model::AIProvider provider, std::string_view line) {
    const history::TokenSum tokens = history::plainLineTokens(provider, line);
    fuzz::require(tests::LibraryLineTokens::of(provider, line).value_or(tokens) == tokens);
    return tokens;
}

} // namespace

/// The fast count, in blocks of any size, agrees with the plain one, and that with an independent
/// JSON library. The first byte selects the provider, the second the size of the blocks.
void tallyvane::fuzz::check(const QByteArray& input) {
    if (input.size() < 2) {
        return;
    }
    const auto provider = input[0] == 'x' ? model::AIProvider::codex : model::AIProvider::claude;
    const auto blockSize = static_cast<std::size_t>(static_cast<unsigned char>(input[1])) + 1;
    const std::string_view log(input.data() + 2, static_cast<std::size_t>(input.size()) - 2);
    history::SessionLogCounter counter;
    counter.begin(provider);
    bool isUtf8 = true;
    for (std::size_t at = 0; at < log.size() && isUtf8; at += blockSize) {
        const std::string_view block = log.substr(at, blockSize);
        std::ranges::copy(block, counter.space().begin());
        isUtf8 = counter.take(block.size());
    }
    const auto sum = isUtf8 ? counter.finish() : std::nullopt;
    require(sum == tests::plainLogTokens(provider, log, checkedLineTokens));
}
