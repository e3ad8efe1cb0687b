#include "history/token_baselines.h"

namespace tallyvane::history {

using model::AIProvider;

namespace {

QString key(AIProvider provider) {
    return QStringLiteral("token-baseline.") + model::rawValue(provider);
}

} // namespace

std::int64_t TokenBaselines::tokenDelta(AIProvider provider, std::int64_t total) const {
    const std::int64_t from = baseline(provider);
    return from < 1 || total < from ? 0 : total - from;
}

std::expected<void, model::FileError> TokenBaselines::move(const TokenTotals& totals) {
    std::map<QString, std::int64_t> values;
    for (const auto& [provider, total] : totals) {
        values[key(provider)] = total;
    }
    if (auto stored = m_defaults.setIntegers(values); !stored) {
        m_remembered.insert(totals.begin(), totals.end()); // none that is known already
        return stored;
    }
    for (const auto& [provider, total] : totals) {
        m_remembered[provider] = total;
    }
    return {};
}

std::int64_t TokenBaselines::baseline(AIProvider provider) const {
    const auto remembered = m_remembered.find(provider);
    // Not where a total below 1 is stored: another program knows better then.
    const bool isStored = !m_defaults.text(key(provider)).isEmpty();
    return isStored || remembered == m_remembered.end() ? m_defaults.integer(key(provider))
                                                        : remembered->second;
}

} // namespace tallyvane::history
