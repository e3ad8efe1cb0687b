#pragma once

#include "core/app_model.h"

namespace tallyvane::app {

/// A refresh as the command line prints it, done by this program or by the running one.
struct RefreshResult {
    core::RefreshReport report;
    model::QuotaSnapshot snapshot; ///< as published
};

/// The JSON form, one line; see docs/interfaces.md.
[[nodiscard]] QByteArray encodeRefreshResult(const RefreshResult& result);

/// Nothing unless `json` has that form.
[[nodiscard]] std::optional<RefreshResult> decodeRefreshResult(const QByteArray& json);

} // namespace tallyvane::app
