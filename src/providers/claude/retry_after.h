#pragma once

#include "model/timestamp.h"

#include <QtCore/QByteArray>

namespace tallyvane::providers {

/// How long to wait according to a Retry-After header (RFC 9110), which holds seconds or a date in
/// the form "Wed, 21 Oct 2015 07:28:00 GMT". At most an hour; 0 for a date in the past and for any
/// other text.
[[nodiscard]] std::chrono::seconds retryAfter(const QByteArray& header, model::Timestamp now);

} // namespace tallyvane::providers
