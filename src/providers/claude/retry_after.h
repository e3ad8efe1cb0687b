#pragma once

#include "model/timestamp.h"

#include <QtCore/QByteArray>

namespace tallyvane::providers {

/// The time from `now` until the moment that a Retry-After header tells (RFC 9110), as seconds or
/// as a date in the form "Wed, 21 Oct 2015 07:28:00 GMT"; at most a day, and none for a moment in
/// the past or a header of any other form.
[[nodiscard]] std::chrono::seconds retryAfter(const QByteArray& header, model::Timestamp now);

} // namespace tallyvane::providers
