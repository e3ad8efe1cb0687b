#pragma once

#include "core/app_model.h"
#include "core/launch_context.h"
#include "platform/colour_preference.h"
#include "platform/login_item.h"
#include "platform/notification_centre.h"

#include <QtCore/QPoint>

#include <functional>
#include <memory>
#include <string>

namespace tallyvane::app {

/// What the windows work with; all of it outlives them.
struct WindowsContext {
    core::AppModel& model;
    model::DefaultsStore& defaults;
    platform::Clock& clock;
    platform::LoginItem& loginItem;
    platform::NotificationCentre& notificationCentre;
    core::LaunchContext launchContext;
    std::string timeLocale;
    model::LocalZone zone;
    std::function<void()> openNotificationSettings; ///< empty when the desktop has none to open
};

/// The panel and the main window. Main thread.
class Windows {
public:
    Windows() = default;
    virtual ~Windows() = default;
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    /// For a press on the status item at this place of the screen.
    virtual void togglePanel(QPoint itemPosition) = 0;
    /// Opens the main window, or brings the open one to the front.
    virtual void openMainWindow() = 0;
    /// What the desktop asks of all windows.
    virtual void setSystemLook(platform::ColourPreference scheme, bool isMotionReduced) = 0;
    /// Whether the desktop shows a status item; the main window says so when it does not.
    virtual void setStatusItemShown(bool isShown) = 0;
};

} // namespace tallyvane::app

/// What the library of the windows gives, which is loaded when the first of them opens: most of the
/// time there is none, and Qt Quick takes more time and memory than all the rest. The caller owns
/// the result.
extern "C" Q_DECL_EXPORT tallyvane::app::Windows*
tallyvaneMakeWindows(const tallyvane::app::WindowsContext& context);
