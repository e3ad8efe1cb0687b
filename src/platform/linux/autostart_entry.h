#pragma once

#include "platform/login_item.h"

#include <QtCore/QStringList>

#include <filesystem>
#include <vector>

namespace tallyvane::platform {

/// Where the login item lies and what it starts.
struct AutostartPlaces {
    std::filesystem::path userDirectory; ///< $XDG_CONFIG_HOME/autostart
    /// The folder autostart of each of $XDG_CONFIG_DIRS, the most important first.
    std::vector<std::filesystem::path> systemDirectories;
    std::filesystem::path program; ///< absolute
    QStringList searchPath;        ///< the folders of $PATH
};

/// A file org.corvelle.Tallyvane.desktop after the Desktop Application Autostart Specification.
/// Of several, the user's own counts, and else the first of the system's.
class AutostartEntry final : public LoginItem {
public:
    explicit AutostartEntry(AutostartPlaces places);

    [[nodiscard]] LoginItemStatus status() const override;
    [[nodiscard]] std::expected<void, QString> enable() override;
    /// Removes the user's file, or lets it hide the one that the system has.
    [[nodiscard]] std::expected<void, QString> disable() override;

private:
    [[nodiscard]] std::expected<void, QString> write(const QString& lastLines) const;

    AutostartPlaces m_places;
    std::filesystem::path m_file;
};

} // namespace tallyvane::platform
