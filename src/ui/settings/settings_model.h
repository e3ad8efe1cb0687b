#pragma once

#include "core/app_model.h"
#include "core/program_setting.h"
#include "model/locale_labels.h"
#include "platform/login_item.h"
#include "platform/notification_centre.h"
#include "ui/style/record_list.h"

#include <QtQml/qqmlregistration.h>

#include <functional>

namespace tallyvane::ui {

/// One row of the list of times when notifications may appear.
class TimeWindow {
    Q_GADGET
    Q_PROPERTY(QString windowId MEMBER windowId)
    Q_PROPERTY(bool allDay MEMBER allDay)
    Q_PROPERTY(int startMinutes MEMBER startMinutes)
    Q_PROPERTY(int endMinutes MEMBER endMinutes)
    Q_PROPERTY(bool isOn MEMBER isOn)
    Q_PROPERTY(QString note MEMBER note)

public:
    QString windowId;
    bool allDay = false;
    int startMinutes = 0; ///< minutes after midnight, 0 to 1439
    int endMinutes = 0;   ///< likewise
    bool isOn = true;
    QString note; ///< why no notification can come in it; empty if any can

    bool operator==(const TimeWindow&) const = default;
};

/// What the settings page shows and what its controls do.
class SettingsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the main window")
    Q_PROPERTY(int appearance READ appearance WRITE setAppearance NOTIFY appearanceChanged)
    Q_PROPERTY(int providers READ providers WRITE setProviders NOTIFY providersChanged)
    Q_PROPERTY(bool showsCodex READ showsCodex NOTIFY providersChanged)
    Q_PROPERTY(bool launchesAtLogin READ launchesAtLogin NOTIFY launchesAtLoginChanged)
    Q_PROPERTY(QString codexPath READ codexPath NOTIFY codexChanged)
    Q_PROPERTY(QString codexState READ codexState NOTIFY codexChanged)
    Q_PROPERTY(bool isCodexFound READ isCodexFound NOTIFY codexChanged)
    Q_PROPERTY(bool notifies READ notifies WRITE setNotifies NOTIFY notificationSettingsChanged)
    Q_PROPERTY(bool warnsOfLowQuota READ warnsOfLowQuota WRITE setWarnsOfLowQuota NOTIFY
                   warnsOfLowQuotaChanged)
    Q_PROPERTY(QString windowsNote READ windowsNote NOTIFY windowsNoteChanged)
    Q_PROPERTY(bool isAuthorized READ isAuthorized NOTIFY isAuthorizedChanged)
    Q_PROPERTY(bool hasNotificationSettings READ hasNotificationSettings CONSTANT)
    Q_PROPERTY(QAbstractItemModel* windows READ windows CONSTANT)
    Q_PROPERTY(QString launchError READ launchError NOTIFY launchErrorChanged)
    Q_PROPERTY(QString historyMessage READ historyMessage NOTIFY historyMessageChanged)

public:
    /// The references must outlive it. `openNotificationSettings` opens the desktop's notification
    /// settings; it is empty on a desktop without any.
    SettingsModel(core::AppModel& model, platform::LoginItem& loginItem,
                  platform::NotificationCentre& notificationCentre,
                  const model::LocaleLabels& labels, core::ProgramSetting codexProgram,
                  std::function<void()> openNotificationSettings);

    /// A model::AppAppearance, as a picker's index.
    [[nodiscard]] int appearance() const { return static_cast<int>(m_model.appearance()); }
    void setAppearance(int appearance);

    /// As a picker's index: both, then the model::AIProvider that alone is shown.
    [[nodiscard]] int providers() const;
    void setProviders(int providers);
    [[nodiscard]] bool showsCodex() const {
        return m_model.onlyProvider() != model::AIProvider::claude;
    }

    [[nodiscard]] bool launchesAtLogin() const; ///< according to the desktop
    /// The path that the user chose, with "~" for the home directory; empty: automatic.
    [[nodiscard]] QString codexPath() const;
    /// Which program is in use and where it comes from, or why there is none.
    [[nodiscard]] QString codexState() const;
    [[nodiscard]] bool isCodexFound() const;
    [[nodiscard]] bool notifies() const { return m_model.notificationSettings().enabled; }
    void setNotifies(bool notifies);
    [[nodiscard]] bool warnsOfLowQuota() const { return m_model.warnsOfLowQuota(); }
    void setWarnsOfLowQuota(bool warns);
    /// Why no notification can come although they are on; empty if any can.
    [[nodiscard]] QString windowsNote() const;
    /// Whether the desktop shows this program's notifications; true until that is known.
    [[nodiscard]] bool isAuthorized() const { return m_isAuthorized; }
    [[nodiscard]] bool hasNotificationSettings() const { return !!m_openNotificationSettings; }
    [[nodiscard]] QAbstractItemModel* windows() { return &m_windows; }
    /// Why the last change of the login item failed; empty if it succeeded.
    [[nodiscard]] QString launchError() const { return m_launchError; }
    /// What became of the history; empty until it is cleared.
    [[nodiscard]] QString historyMessage() const { return m_historyMessage; }

    /// Call when the page is shown: rereads what other programs may have changed and clears the
    /// messages.
    Q_INVOKABLE void show();
    /// Call when the user may have changed the desktop's notification settings; a change of what
    /// shows the notifications is noticed without.
    Q_INVOKABLE void readAuthorization();
    Q_INVOKABLE void setLaunchesAtLogin(bool wanted);
    /// `path` may begin with "~/"; empty: automatic. A path that cannot be used changes nothing,
    /// and codexState() says why.
    Q_INVOKABLE void setCodexPath(const QString& path);
    Q_INVOKABLE void openNotificationSettings();
    Q_INVOKABLE void addWindow();
    Q_INVOKABLE void changeWindow(const QString& windowId, bool allDay, int startMinutes,
                                  int endMinutes);
    Q_INVOKABLE void turnWindowOn(const QString& windowId);
    Q_INVOKABLE void removeWindow(const QString& windowId);
    Q_INVOKABLE void clearHistory();

    /// A time of day in the locale's format.
    Q_INVOKABLE QString timeText(int minutes) const;
    /// Parses a time of day into minutes after midnight; `otherwise` if `text` is none.
    Q_INVOKABLE int minutesOf(const QString& text, int otherwise) const;
    /// `minutes` plus `steps` quarters of an hour, which may be negative; wraps at midnight.
    Q_INVOKABLE int stepped(int minutes, int steps) const;

Q_SIGNALS:
    void appearanceChanged();
    void providersChanged();
    void launchesAtLoginChanged();
    void codexChanged();
    void notificationSettingsChanged();
    void warnsOfLowQuotaChanged();
    void windowsNoteChanged();
    void isAuthorizedChanged();
    void launchErrorChanged();
    void historyMessageChanged();

private:
    void showWindows();
    /// Lets `change` change the window of that id, if there is one.
    template <typename Change>
    void changeWindow(const QString& windowId, Change change);

    core::AppModel& m_model;
    platform::LoginItem& m_loginItem;
    platform::NotificationCentre& m_notificationCentre;
    const model::LocaleLabels& m_labels;
    core::ProgramSetting m_codexProgram;
    QString m_refusal; ///< of the last path
    std::function<void()> m_openNotificationSettings;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SettingsModel, bool, m_isAuthorized, true,
                                         &SettingsModel::isAuthorizedChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SettingsModel, QString, m_launchError,
                               &SettingsModel::launchErrorChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SettingsModel, QString, m_historyMessage,
                               &SettingsModel::historyMessageChanged)
    RecordList<TimeWindow> m_windows;
};

} // namespace tallyvane::ui
