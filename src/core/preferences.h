#pragma once

#include "model/defaults_store.h"
#include "model/quota_snapshot.h"

namespace tallyvane::core {

/// The appearance stored under "appearance"; that of the system if there is none.
[[nodiscard]] model::AppAppearance loadAppearance(const model::DefaultsStore& defaults);

std::expected<void, model::FileError> saveAppearance(model::DefaultsStore& defaults,
                                                     model::AppAppearance appearance);

} // namespace tallyvane::core
