#include "notify/quota_notifier.h"

#include "model/quota_display.h"

#include <QtCore/QCoreApplication>

namespace tallyvane::notify {

namespace {

class Notification {
    Q_DECLARE_TR_FUNCTIONS(Notification)
};

constexpr double highPercent = 10;
constexpr double lowPercent = 5;

} // namespace

void QuotaNotifier::process(const model::QuotaSnapshot& snapshot,
                            const NotificationSettings& settings, model::Timestamp now,
                            const model::LocalZone& zone) {
    const bool isAllowed = allows(settings, now, zone);
    for (const model::AIProvider provider : model::allCases<model::AIProvider>) {
        const model::ProviderQuotaSnapshot entry = model::entryFor(snapshot, provider);
        if (entry.syncState != model::QuotaSyncState::current) {
            continue;
        }
        if (sawReset(entry) && isAllowed) {
            m_centre.post(
                {.identifier = QStringLiteral("reset-%1-%2")
                                   .arg(model::rawValue(provider), model::unixSecondsText(now)),
                 .title = QStringLiteral("Tallyvane"),
                 .body = Notification::tr("您的 %1 token 已经重置了。")
                             .arg(model::displayName(provider))});
        }
    }
}

bool QuotaNotifier::sawReset(const model::ProviderQuotaSnapshot& entry) {
    bool isReset = false;
    for (const model::QuotaPeriod period : model::allCases<model::QuotaPeriod>) {
        const auto& window = model::window(entry, period);
        if (!window) {
            continue;
        }
        const double used = window->usedPercent;
        double& last = m_lastUsed.try_emplace({entry.provider, period}, used).first->second;
        isReset |= last > highPercent && used <= lowPercent;
        last = used;
    }
    return isReset;
}

} // namespace tallyvane::notify
