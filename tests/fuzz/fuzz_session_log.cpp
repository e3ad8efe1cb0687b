#include "fuzz/fuzz_target.h"
#include "support/library_line_tokens.h"
#include "support/plain_session_log.h"

using namespace tallyvane;

/// The fast count, in blocks of any size, agrees with the plain one, and that with an independent
/// JSON library. The first byte selects the provider, the second the size of the blocks.
void tallyvane::fuzz::check(const QByteArray& input) {
    if (input.size() < 2) {
        return;
    }
    const auto checkedTokens = [](model::AIProvider provider, std::string_view line) {
        const history::TokenSum tokens = history::plainLineTokens(provider, line);
        require(tests::libraryLineTokens(provider, line).value_or(tokens) == tokens);
        return tokens;
    };
    const auto provider = input[0] == 'x' ? model::AIProvider::codex : model::AIProvider::claude;
    const qsizetype blockSize = static_cast<unsigned char>(input[1]) + qsizetype{1};
    const QByteArray log = input.sliced(2);
    history::SessionLogCounter counter;
    require(tests::tokensInBlocks(counter, provider, log, blockSize) ==
            tests::plainLogTokens(provider, log, checkedTokens));
}
