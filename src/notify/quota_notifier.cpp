#include "notify/quota_notifier.h"

namespace tallyvane::notify {

void QuotaNotifier::process(const model::QuotaSnapshot& /*snapshot*/,
                            const NotificationSettings& /*settings*/) {}

} // namespace tallyvane::notify
