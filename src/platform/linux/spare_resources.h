#pragma once

#include <QtCore/QString>

#include <expected>

namespace tallyvane::platform {

/// Resources without which a library would abort the program or hang.
struct SpareResources {
    int descriptors = 0;
    int threads = 0;
};

/// Checks that the resources are available by acquiring and releasing them, which takes a fraction
/// of a millisecond. The error is the system's reason, such as "Too many open files".
[[nodiscard]] std::expected<void, QString> trySpare(SpareResources wanted);

} // namespace tallyvane::platform
