#pragma once

#include "core/app_model.h"
#include "core/launch_context.h"
#include "core/program_setting.h"
#include "platform/colour_preference.h"
#include "platform/login_item.h"
#include "platform/notification_centre.h"

#include <QtCore/QPoint>

#include <functional>
#include <memory>
#include <string>

namespace tallyvane::app {

/// The windows' collaborators, which must outlive them.
struct WindowsContext {
    core::AppModel& model;
    model::DefaultsStore& defaults;
    platform::Clock& clock;
    platform::LoginItem& loginItem;
    platform::NotificationCentre& notificationCentre;
    core::ProgramSetting codexProgram;
    QString statusHostAdvice;
    QString dataFolder; ///< where figures and history are stored
    core::LaunchContext launchContext;
    std::string timeLocale;
    model::LocalZone zone;
    std::function<void()> openNotificationSettings; ///< empty when the desktop has none to open
};

/// The desktop-wide appearance settings.
struct SystemLook {
    platform::ColourPreference scheme = platform::ColourPreference::none;
    bool isMotionReduced = false;
    bool isHighContrast = false;
};

/// The panel and the main window. Main thread.
class Windows {
public:
    Windows() = default;
    virtual ~Windows() = default;
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    /// Opens or closes the panel for a click on the status item at this screen position, in pixels;
    /// nullopt: unknown.
    virtual void togglePanel(std::optional<QPoint> itemPosition) = 0;
    /// Opens the main window, or brings the open one to the front.
    virtual void openMainWindow() = 0;
    /// Applies the desktop-wide appearance settings.
    virtual void setSystemLook(const SystemLook& look) = 0;
    /// Without a status item the main window shows a notice.
    virtual void setStatusItemShown(bool isShown) = 0;
};

} // namespace tallyvane::app

/// Entry point of the windows library, loaded when the first window opens: usually none is open,
/// and Qt Quick costs more time and memory than all the rest. The caller owns the result.
extern "C" Q_DECL_EXPORT tallyvane::app::Windows*
tallyvaneMakeWindows(const tallyvane::app::WindowsContext& context);
