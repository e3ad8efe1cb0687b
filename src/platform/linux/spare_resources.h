#pragma once

#include <QtCore/QString>

#include <expected>
#include <filesystem>

namespace tallyvane::platform {

/// Resources without which a library would abort the program or hang.
struct SpareResources {
    int descriptors = 0;
    int threads = 0;
};

/// Checks that the resources are available by acquiring and releasing them; threads only if the
/// limits are near. The error is the system's reason, such as "Too many open files".
[[nodiscard]] std::expected<void, QString> trySpare(SpareResources wanted);

/// Whether no limit can stop `threads` more, as far as the limits of this process and those of its
/// control groups tell (cgroups(7)), which are read from the files below `root`. To start that many
/// and await their ends would be a twelfth of the start of the desktop program.
[[nodiscard]] bool hasAmpleRoom(int threads, const std::filesystem::path& root = "/");

} // namespace tallyvane::platform
