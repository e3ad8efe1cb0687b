#pragma once

#include "model/defaults_store.h"
#include "model/quota_snapshot.h"

#include <QtCore/QSize>

#include <optional>
#include <vector>

namespace tallyvane::core {

/// The appearance stored under "appearance"; that of the system if there is none.
[[nodiscard]] model::AppAppearance loadAppearance(const model::DefaultsStore& defaults);

std::expected<void, model::FileError> saveAppearance(model::DefaultsStore& defaults,
                                                     model::AppAppearance appearance);

/// The provider that alone is shown, stored under "onlyProvider"; nothing if all are.
[[nodiscard]] std::optional<model::AIProvider>
loadOnlyProvider(const model::DefaultsStore& defaults);

std::expected<void, model::FileError> saveOnlyProvider(model::DefaultsStore& defaults,
                                                       std::optional<model::AIProvider> only);

/// Whether to notify when a quota runs low, stored under "warnsOfLowQuota"; not at first.
[[nodiscard]] bool loadWarnsOfLowQuota(const model::DefaultsStore& defaults);

std::expected<void, model::FileError> saveWarnsOfLowQuota(model::DefaultsStore& defaults,
                                                          bool warns);

/// The providers to show when `only` is stored; never none. Those that are not are hidden
/// everywhere: nothing is asked of them, and what is stored of them stays.
[[nodiscard]] std::vector<model::AIProvider> shownProviders(std::optional<model::AIProvider> only);

/// The main window as the user left it, stored under "windowSize" and "windowMaximized".
struct WindowShape {
    QSize size; ///< in device-independent pixels, while not maximised; empty if unknown
    bool isMaximized = false;

    bool operator==(const WindowShape&) const = default;
};

[[nodiscard]] WindowShape loadWindowShape(const model::DefaultsStore& defaults);
/// Errors are ignored.
void saveWindowShape(model::DefaultsStore& defaults, const WindowShape& shape);

/// Whether the user wants no notice where no status item can be seen, stored as
/// "hidesStatusHostNotice".
[[nodiscard]] bool hidesStatusHostNotice(const model::DefaultsStore& defaults);
void hideStatusHostNotice(model::DefaultsStore& defaults);

} // namespace tallyvane::core
