#pragma once

#include "model/message.h"
#include "model/quota_snapshot.h"

#include <QCoro/QCoroTask>

#include <expected>
#include <optional>

namespace tallyvane::providers {

/// Who requested the figures.
enum class AskedBy {
    user,
    timer, ///< may be denied while the service asks for a pause
};

/// Why a provider gave no figures, and how to tell the user.
struct QuotaFailure {
    enum class Place {
        errorLine,     ///< the program's error line
        besideFigures, ///< the status message beside the provider's old figures
    };

    model::Message text;   ///< one sentence; may name the user's account, so never stored
    model::Message advice; ///< one sentence: what the user can do
    Place shownAt = Place::errorLine;
    /// For `Place::besideFigures` only: the status message, which is stored, or nullopt for none.
    std::optional<QString> shortText;
    /// A program that would help, at this absolute path; not to be started before the user agreed.
    /// Empty if there is none.
    QString foundProgram;

    /// Text and advice, translated.
    [[nodiscard]] QString sentences() const { return text.text() + u' ' + advice.text(); }
    bool operator==(const QuotaFailure&) const = default;
};

using QuotaResult = std::expected<model::ProviderQuotaSnapshot, QuotaFailure>;

/// Asks one provider for its quotas. Main thread only; must outlive its tasks.
class QuotaClient {
public:
    virtual ~QuotaClient() = default;

    [[nodiscard]] virtual model::AIProvider provider() const = 0;

    /// The provider's current entry. Completes within a minute, whatever the other side does.
    [[nodiscard]] virtual QCoro::Task<QuotaResult> fetch(AskedBy askedBy) = 0;
};

} // namespace tallyvane::providers
