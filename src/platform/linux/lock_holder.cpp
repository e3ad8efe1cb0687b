#include "platform/linux/lock_holder.h"

#include "model/file_io.h"
#include "model/foreign_text.h"

#include <QtCore/QByteArrayList>

#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace tallyvane::platform {

namespace {

namespace fs = std::filesystem;

constexpr qsizetype maximumProcFileSize = 4 * 1024 * 1024;

bool hasOpen(pid_t process, const struct stat& file) {
    std::error_code error;
    for (const fs::directory_entry& entry :
         fs::directory_iterator("/proc/" + std::to_string(process) + "/fd", error)) {
        struct stat open{};
        if (::stat(entry.path().c_str(), &open) == 0 && open.st_dev == file.st_dev &&
            open.st_ino == file.st_ino) {
            return true;
        }
    }
    return false;
}

} // namespace

QString processName(pid_t process) {
    const auto name =
        model::readFile("/proc/" + std::to_string(process) + "/comm", maximumProcFileSize);
    return model::readableLine(QString::fromUtf8(name.value_or(QByteArray()).trimmed()));
}

std::optional<LockHolder> lockHolder(const fs::path& file) {
    struct stat status{};
    if (::stat(file.c_str(), &status) != 0) {
        return std::nullopt;
    }
    // "1: FLOCK  ADVISORY  WRITE 4711 fe:01:1234567 0 EOF"
    const auto locks = model::readFile("/proc/locks", maximumProcFileSize);
    for (const QByteArray& line : locks.value_or(QByteArray()).split('\n')) {
        const QByteArrayList fields = line.simplified().split(' ');
        const QByteArrayList place = fields.value(5).split(':');
        if (fields.value(1) != "FLOCK" || place.value(2).toULongLong() != status.st_ino) {
            continue;
        }
        const pid_t process = fields[4].toInt();
        const bool isSameDevice = place[0].toUInt(nullptr, 16) == major(status.st_dev) &&
                                  place[1].toUInt(nullptr, 16) == minor(status.st_dev);
        // Some file systems show the kernel another device number than programs.
        if (isSameDevice || hasOpen(process, status)) {
            return LockHolder{.process = process, .name = processName(process)};
        }
    }
    return std::nullopt;
}

} // namespace tallyvane::platform
