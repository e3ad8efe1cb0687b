#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <filesystem>

namespace tallyvane::app {

/// Symbolic icons as files for the desktop to read. Each drawing gets its own file name, because
/// desktops cache icons by name.
class SymbolicIconFiles {
public:
    /// Creates `folder` and removes an earlier run's files from it. An empty path disables files.
    explicit SymbolicIconFiles(std::filesystem::path folder);
    ~SymbolicIconFiles();
    SymbolicIconFiles(const SymbolicIconFiles&) = delete;
    SymbolicIconFiles& operator=(const SymbolicIconFiles&) = delete;

    /// Returns the absolute path of a file with `svg`, or an empty string if it cannot be written.
    /// Keeps the previous call's file, which the desktop may be about to read, and removes older
    /// ones.
    [[nodiscard]] QString add(const QByteArray& svg);

private:
    void removeAllBut(const std::filesystem::path& one, const std::filesystem::path& other) const;

    std::filesystem::path m_folder;
    std::filesystem::path m_last;
};

} // namespace tallyvane::app
