#pragma once

#include "app/desktop/symbolic_icon_files.h"
#include "core/app_model.h"
#include "platform/clock.h"
#include "platform/linux/panel_colour_preference.h"
#include "platform/linux/status_item/status_item.h"
#include "platform/linux/system_appearance.h"

#include <filesystem>

namespace tallyvane::app {

/// Shows the model in the status item. Main thread.
class StatusArea : public QObject {
    Q_OBJECT

public:
    /// The references must outlive it. `iconFolder` holds icons for the desktop to read; if empty,
    /// there are none.
    StatusArea(platform::StatusItem& item, const core::AppModel& model,
               const platform::SystemAppearance& appearance, const platform::Clock& clock,
               const std::filesystem::path& iconFolder);

    /// The colours of the panel it is in.
    [[nodiscard]] const platform::PanelColourPreference& panelColours() const {
        return m_panelColours;
    }
    [[nodiscard]] bool isShown() const { return m_item.isHostAvailable(); }

Q_SIGNALS:
    void isShownChanged();
    /// `position` is nullopt where the host does not tell.
    void clicked(std::optional<QPoint> position, const QString& activationToken);
    // Menu commands.
    void openRequested();
    void refreshRequested();
    void usagePageRequested(tallyvane::model::AIProvider provider);
    void quitRequested();

private:
    void showSnapshot();
    void showToolTip();
    void showMenu();
    void choose(int entry);
    [[nodiscard]] QColor ink() const;

    platform::StatusItem& m_item;
    const core::AppModel& m_model;
    const platform::SystemAppearance& m_appearance;
    const platform::Clock& m_clock;
    platform::PanelColourPreference m_panelColours;
    SymbolicIconFiles m_iconFiles;
};

} // namespace tallyvane::app
