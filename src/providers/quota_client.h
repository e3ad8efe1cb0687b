#pragma once

#include "model/quota_snapshot.h"

#include <QCoro/QCoroTask>

#include <expected>
#include <optional>

namespace tallyvane::providers {

/// Who wants the figures.
enum class AskedBy {
    user,
    timer, ///< held back while the service wants it so
};

/// Why a provider gave no figures, in the user's words.
struct QuotaFailure {
    enum class Place {
        errorLine,     ///< the program's one line for errors
        besideFigures, ///< the status message of the provider's own, older figures
    };

    QString text; ///< one sentence; may name the user's account, so it is never stored
    Place shownAt = Place::errorLine;
    /// Of `Place::besideFigures` alone: what is shown there, and stored; nothing to show nothing.
    std::optional<QString> shortText;

    bool operator==(const QuotaFailure&) const = default;
};

using QuotaResult = std::expected<model::ProviderQuotaSnapshot, QuotaFailure>;

/// Asks one provider for its quotas. Main thread only; outlives its tasks.
class QuotaClient {
public:
    virtual ~QuotaClient() = default;

    [[nodiscard]] virtual model::AIProvider provider() const = 0;

    /// The provider's entry as of now. Ends within a minute, whatever the other side does.
    [[nodiscard]] virtual QCoro::Task<QuotaResult> fetch(AskedBy askedBy) = 0;
};

} // namespace tallyvane::providers
