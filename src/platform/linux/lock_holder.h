#pragma once

#include <QtCore/QString>

#include <filesystem>
#include <optional>
#include <sys/types.h>

namespace tallyvane::platform {

struct LockHolder {
    pid_t process = 0;
    QString name; ///< of its program, cut to 15 bytes by the kernel; empty if it cannot be seen
};

/// Who holds the flock(2) lock of the file, according to /proc/locks, without touching the lock.
/// Nothing if nobody does, or if the holder is in another container.
[[nodiscard]] std::optional<LockHolder> lockHolder(const std::filesystem::path& file);

/// The name of a process's program, as above.
[[nodiscard]] QString processName(pid_t process);

} // namespace tallyvane::platform
