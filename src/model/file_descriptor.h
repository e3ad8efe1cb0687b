#pragma once

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace tallyvane::model {

/// An open file, or none: get() is negative then, and errno tells why.
class FileDescriptor {
public:
    /// Opens `path` by open(2); a file that it makes is for this user alone.
    FileDescriptor(const std::filesystem::path& path, int flags)
        : m_descriptor(::open(path.c_str(), flags | O_CLOEXEC, S_IRUSR | S_IWUSR)) {}
    ~FileDescriptor() {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    [[nodiscard]] int get() const { return m_descriptor; }

private:
    int m_descriptor;
};

} // namespace tallyvane::model
