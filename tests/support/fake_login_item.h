#pragma once

#include "platform/login_item.h"

namespace tallyvane::tests {

/// Registers, or refuses to.
struct FakeLoginItem final : platform::LoginItem {
    platform::LoginItemStatus state = platform::LoginItemStatus::notRegistered;
    bool isRefusing = false;

    [[nodiscard]] platform::LoginItemStatus status() const override { return state; }
    std::expected<void, QString> enable() override {
        return change(platform::LoginItemStatus::enabled);
    }
    std::expected<void, QString> disable() override {
        return change(platform::LoginItemStatus::notRegistered);
    }

private:
    std::expected<void, QString> change(platform::LoginItemStatus wanted) {
        if (isRefusing) {
            return std::unexpected(QStringLiteral("Refused"));
        }
        state = wanted;
        return {};
    }
};

} // namespace tallyvane::tests
