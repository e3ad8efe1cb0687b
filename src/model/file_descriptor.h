#pragma once

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tallyvane::model {

/// An open file, or none: get() is negative then, and errno tells why.
class FileDescriptor {
public:
    /// Opens `path` by open(2); a file that it makes is for this user alone.
    FileDescriptor(const std::filesystem::path& path, int flags)
        : m_descriptor(::open(path.c_str(), flags | O_CLOEXEC, S_IRUSR | S_IWUSR)) {}
    /// Takes over what a system call returned.
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    ~FileDescriptor() {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }

    [[nodiscard]] int get() const { return m_descriptor; }

private:
    int m_descriptor;
};

} // namespace tallyvane::model
