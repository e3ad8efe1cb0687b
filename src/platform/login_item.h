#pragma once

#include <QtCore/QString>

#include <expected>

namespace tallyvane::platform {

enum class LoginItemStatus {
    enabled,          ///< login starts the program
    notRegistered,    ///< never asked for
    requiresApproval, ///< registered, but the user switched it off in the desktop's settings
    notFound,         ///< registered, but the program is missing
};

/// Whether the desktop starts the program when the user logs in. The error is a text for the user.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    /// Never cached: other programs change it too.
    [[nodiscard]] virtual LoginItemStatus status() const = 0;
    [[nodiscard]] virtual std::expected<void, QString> enable() = 0;
    [[nodiscard]] virtual std::expected<void, QString> disable() = 0;
};

} // namespace tallyvane::platform
