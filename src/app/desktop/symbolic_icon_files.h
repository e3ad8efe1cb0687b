#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <filesystem>

namespace tallyvane::app {

/// Symbolic icons as files for the desktop to read. Each drawing has a file name of its own, since
/// desktops keep what they have read under a name.
class SymbolicIconFiles {
public:
    /// Files lie in `folder`, which is made; files of an earlier run in it go. Without
    /// a folder there are no files.
    explicit SymbolicIconFiles(std::filesystem::path folder);
    ~SymbolicIconFiles();
    SymbolicIconFiles(const SymbolicIconFiles&) = delete;
    SymbolicIconFiles& operator=(const SymbolicIconFiles&) = delete;

    /// The absolute path of a file that holds `svg`; empty when it cannot be written. The file of
    /// the call before stays, as the desktop may be about to read it; older ones go.
    [[nodiscard]] QString add(const QByteArray& svg);

private:
    void removeAllBut(const std::filesystem::path& one, const std::filesystem::path& other) const;

    std::filesystem::path m_folder;
    std::filesystem::path m_last;
};

} // namespace tallyvane::app
