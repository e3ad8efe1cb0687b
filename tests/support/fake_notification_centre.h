#pragma once

#include "platform/notification_centre.h"

#include <QtCore/QList>

namespace tallyvane::tests {

/// Keeps what is posted.
class FakeNotificationCentre final : public platform::NotificationCentre {
public:
    QList<platform::Notification> posts;
    bool isOn = true;

    void post(const platform::Notification& notification) override { posts << notification; }
    QCoro::Task<bool> isAuthorized() override { co_return isOn; }
};

} // namespace tallyvane::tests
