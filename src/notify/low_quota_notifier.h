#pragma once

#include "model/defaults_store.h"
#include "model/quota_pace.h"
#include "notify/notification_settings.h"
#include "platform/notification_centre.h"

#include <map>
#include <string>

namespace tallyvane::notify {

/// Posts a notification when 25 % or less, and again when 10 % or less of a quota is left, and when
/// it is going to run out a tenth of its window or more before its reset: each once per window,
/// also across restarts. Main thread only.
class LowQuotaNotifier {
public:
    /// The references must outlive the notifier. `locale` is a name as LocaleLabels takes it.
    LowQuotaNotifier(platform::NotificationCentre& centre, model::DefaultsStore& defaults,
                     std::string locale);

    /// Processes the snapshot of a refresh and posts at most one notification, with a line for each
    /// thing to say. What comes up while warnings are not wanted or outside the times of
    /// `settings`, whose switch is about resets, is never announced. Ignores figures that are not
    /// current and windows whose reset has passed.
    void process(const model::QuotaSnapshot& snapshot, bool isWanted,
                 const NotificationSettings& settings, model::Timestamp now,
                 const model::LocalZone& zone, const model::RecentRates& recent = {});

private:
    /// What need not be said again of a window.
    struct Said {
        model::QuotaWindowSnapshot window; ///< when something was last said
        int left = 100;                    ///< the lowest threshold reached, in percent
        bool runsOut = false;
    };

    /// What is to be said of a window that was not.
    struct News {
        std::optional<int> left; ///< percent
        std::optional<model::Timestamp> runsOutAt;
    };

    /// Takes note of it, too.
    [[nodiscard]] News news(const model::ProviderQuotaSnapshot& entry, model::QuotaPeriod period,
                            model::Timestamp now, const model::RecentRates& recent);
    [[nodiscard]] QStringList texts(const News& news, model::AIProvider provider,
                                    model::QuotaPeriod period, model::Timestamp now,
                                    const model::LocalZone& zone) const;
    void load();
    void save();

    platform::NotificationCentre& m_centre;
    model::DefaultsStore& m_defaults;
    std::string m_locale;
    std::map<model::QuotaKey, Said> m_said;
    QByteArray m_stored; ///< `m_said` as it was last read or written
};

} // namespace tallyvane::notify
