#pragma once

#include "history/session_log_counter.h"

#include <algorithm>
#include <functional>

namespace tallyvane::tests {

using LineTokens = std::function<history::TokenSum(model::AIProvider, std::string_view line)>;

/// What one session log counts, the slow and plain way that SessionLogCounter must agree with.
inline std::optional<history::TokenSum>
plainLogTokens(model::AIProvider provider, const QByteArray& log,
               const LineTokens& lineTokens = history::plainLineTokens) {
    if (!log.isValidUtf8()) {
        return std::nullopt;
    }
    history::TokenSum sum;
    for (qsizetype start = 0, end = 0; start < log.size(); start = end + 1) {
        end = log.indexOf('\n', start);
        while (end > 0 && log[end - 1] == '\r') {
            end = log.indexOf('\n', end + 1);
        }
        end = end < 0 ? log.size() : end;
        const auto line =
            lineTokens(provider, std::string_view(log.begin() + start, log.begin() + end));
        if (provider == model::AIProvider::claude) {
            sum.add(line);
        } else {
            sum = {std::max(sum.value, line.value), sum.isOverflown || line.isOverflown};
        }
    }
    return sum;
}

/// What `counter` makes of the log in blocks of at most `blockSize` bytes.
inline std::optional<history::TokenSum> tokensInBlocks(history::SessionLogCounter& counter,
                                                       model::AIProvider provider,
                                                       QByteArrayView log, qsizetype blockSize) {
    counter.begin(provider);
    while (!log.isEmpty()) {
        const std::span<char> space = counter.space();
        const qsizetype size = std::min<qsizetype>({blockSize, std::ssize(space), log.size()});
        std::ranges::copy(log.first(size), space.begin());
        log = log.sliced(size);
        if (!counter.take(static_cast<std::size_t>(size))) {
            return std::nullopt;
        }
    }
    return counter.finish();
}

} // namespace tallyvane::tests
