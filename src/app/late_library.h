#pragma once

#include "model/file_descriptor.h"

#include <QtCore/QString>

#include <expected>
#include <string>

namespace tallyvane::app {

/// A part of the program that is loaded when it is first needed. The file is opened at once: an
/// update may replace it while the program runs, and a part of another version would not fit. It
/// stays open: the loader knows it by the number of its descriptor, and would take the next file of
/// that number for the same one. So an object must outlive all later ones.
class LateLibrary {
public:
    /// `file` is its name, beside this program or in libexec.
    explicit LateLibrary(const char* file);

    /// A function of the library, which is loaded permanently. The error is the system's reason.
    [[nodiscard]] std::expected<void*, QString> function(const char* name) const;

private:
    std::string m_path;
    model::FileDescriptor m_file{-1};
};

} // namespace tallyvane::app
