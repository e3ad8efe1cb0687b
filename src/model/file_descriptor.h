#pragma once

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tallyvane::model {

/// Owns an open file. When opening failed, get() is negative and errno says why.
class FileDescriptor {
public:
    /// Calls open(2); a file created by it is private to the user.
    FileDescriptor(const std::filesystem::path& path, int flags)
        : m_descriptor(::open(path.c_str(), flags | O_CLOEXEC, S_IRUSR | S_IWUSR)) {}
    /// Adopts the result of a system call.
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
