#pragma once

#include "model/quota_snapshot.h"
#include "notify/notification_settings.h"
#include "platform/notification_centre.h"

#include <map>
#include <utility>

namespace tallyvane::notify {

/// Posts a notification when a quota was reset, that is, when a used percentage falls from above 10
/// to at most 5. Main thread only.
class QuotaNotifier {
public:
    /// `centre` must outlive the notifier.
    explicit QuotaNotifier(platform::NotificationCentre& centre) : m_centre(centre) {}

    /// Processes the snapshot of a refresh and posts at most one notification per provider. A reset
    /// outside the allowed times is never announced. Ignores figures that are not current.
    void process(const model::QuotaSnapshot& snapshot, const NotificationSettings& settings,
                 model::Timestamp now, const model::LocalZone& zone);

private:
    bool sawReset(const model::ProviderQuotaSnapshot& entry);

    platform::NotificationCentre& m_centre;
    std::map<std::pair<model::AIProvider, model::QuotaPeriod>, double> m_lastUsed; ///< percent
};

} // namespace tallyvane::notify
