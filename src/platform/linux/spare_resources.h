#pragma once

#include <QtCore/QString>

#include <expected>

namespace tallyvane::platform {

/// What a library is about to take that ends the program, or hangs, when it does not get it.
struct SpareResources {
    int descriptors = 0;
    int threads = 0;
};

/// Takes that much and gives it back at once. The error is the system's reason for a refusal, such
/// as "Too many open files". Takes a fraction of a millisecond.
[[nodiscard]] std::expected<void, QString> trySpare(SpareResources wanted);

} // namespace tallyvane::platform
