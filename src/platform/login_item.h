#pragma once

#include <QtCore/QString>

#include <expected>

namespace tallyvane::platform {

enum class LoginItemStatus {
    enabled,          ///< login starts the program
    notRegistered,    ///< nobody asked for it
    requiresApproval, ///< registered, but the user switched it off in the desktop's settings
    notFound,         ///< registered, but for a program that is not there
};

/// Whether the desktop starts the program when the user logs in. The error is a text for the user.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    /// Read anew by each call, as other programs may change it too.
    [[nodiscard]] virtual LoginItemStatus status() const = 0;
    [[nodiscard]] virtual std::expected<void, QString> enable() = 0;
    [[nodiscard]] virtual std::expected<void, QString> disable() = 0;
};

} // namespace tallyvane::platform
