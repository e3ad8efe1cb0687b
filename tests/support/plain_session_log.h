#pragma once

#include "history/log_tokens.h"

#include <QtCore/QByteArrayView>

#include <functional>
#include <optional>
#include <string_view>

namespace tallyvane::tests {

using LineTokens = std::function<history::TokenSum(model::AIProvider, std::string_view line)>;

/// What one session log counts, the slow and plain way that SessionLogCounter must agree with.
inline std::optional<history::TokenSum>
plainLogTokens(model::AIProvider provider, std::string_view log,
               const LineTokens& lineTokens = history::plainLineTokens) {
    if (!QByteArrayView(log.data(), static_cast<qsizetype>(log.size())).isValidUtf8()) {
        return std::nullopt;
    }
    history::TokenSum sum;
    for (std::size_t start = 0, end = 0; start < log.size(); start = end + 1) {
        end = log.find('\n', start);
        while (end != std::string_view::npos && end > 0 && log[end - 1] == '\r') {
            end = log.find('\n', end + 1);
        }
        end = std::min(end, log.size());
        const auto line = lineTokens(provider, log.substr(start, end - start));
        if (provider == model::AIProvider::claude) {
            sum.add(line);
        } else {
            sum = {std::max(sum.value, line.value), sum.isOverflown || line.isOverflown};
        }
    }
    return sum;
}

} // namespace tallyvane::tests
