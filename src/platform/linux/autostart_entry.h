#pragma once

#include "platform/login_item.h"

#include <QtCore/QStringList>

#include <filesystem>
#include <vector>

namespace tallyvane::platform {

/// Where the login item is stored and what it starts.
struct AutostartPlaces {
    std::filesystem::path userDirectory; ///< $XDG_CONFIG_HOME/autostart
    /// The folder autostart in each of $XDG_CONFIG_DIRS, in that order.
    std::vector<std::filesystem::path> systemDirectories;
    std::filesystem::path program; ///< absolute
    QStringList searchPath;        ///< the folders of $PATH
};

/// org.corvelle.Tallyvane.desktop as in the Desktop Application Autostart Specification: the user's
/// file overrides the system's, and an earlier system directory a later one.
class AutostartEntry final : public LoginItem {
public:
    explicit AutostartEntry(AutostartPlaces places);

    [[nodiscard]] LoginItemStatus status() const override;
    /// Writes the user's file, which names the program by a path that outlives its updates: never
    /// one of a store such as Nix's; there, without a link in $PATH, by its bare name.
    [[nodiscard]] std::expected<void, QString> enable() override;
    /// Removes the user's file, or makes it hide the system's file if there is one.
    [[nodiscard]] std::expected<void, QString> disable() override;

private:
    [[nodiscard]] std::expected<void, QString> write(const QString& lastLines) const;

    AutostartPlaces m_places;
    std::filesystem::path m_file;
};

} // namespace tallyvane::platform
