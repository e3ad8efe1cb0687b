#include "fuzz/fuzz_target.h"
#include "history/usage_history.h"

/// Whatever decodes must encode, and decode to the same again.
void tallyvane::fuzz::check(const QByteArray& input) {
    if (const auto history = history::decodeHistory(input)) {
        const auto encoded = history::encodeHistory(*history);
        require(encoded && history::decodeHistory(*encoded) == *history);
    }
}
