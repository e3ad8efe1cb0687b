#pragma once

#include "model/quota_snapshot.h"
#include "notify/notification_settings.h"
#include "platform/notification_centre.h"

#include <map>
#include <utility>

namespace tallyvane::notify {

/// Tells the user when a quota was reset: the used percentage, above 10 when last seen, is now at
/// most 5. Main thread only.
class QuotaNotifier {
public:
    /// `centre` outlives the notifier.
    explicit QuotaNotifier(platform::NotificationCentre& centre) : m_centre(centre) {}

    /// Takes each refresh's new snapshot, and posts at most one notification per provider. A reset
    /// outside the allowed times is never told. Figures that are not current are passed over.
    void process(const model::QuotaSnapshot& snapshot, const NotificationSettings& settings,
                 model::Timestamp now, const model::LocalZone& zone);

private:
    bool sawReset(const model::ProviderQuotaSnapshot& entry);

    platform::NotificationCentre& m_centre;
    std::map<std::pair<model::AIProvider, model::QuotaPeriod>, double> m_lastUsed; ///< percent
};

} // namespace tallyvane::notify
