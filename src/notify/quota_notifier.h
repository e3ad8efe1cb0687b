#pragma once

#include "model/quota_snapshot.h"
#include "notify/notification_settings.h"

namespace tallyvane::notify {

/// Tells the user when a quota was reset. This version posts nothing yet.
class QuotaNotifier {
public:
    /// Takes each refresh's new snapshot, with the settings of the moment.
    void process(const model::QuotaSnapshot& snapshot, const NotificationSettings& settings);
};

} // namespace tallyvane::notify
