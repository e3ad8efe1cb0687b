#include "app/desktop/symbolic_icon_files.h"

#include "model/file_io.h"

#include <QtCore/QCryptographicHash>

namespace tallyvane::app {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view nameStart = "gauges-";
constexpr std::string_view nameEnd = "-symbolic.svg";

bool isOurs(const fs::path& file) {
    constexpr std::size_t hashSize = 32;
    const std::string name = file.filename().string();
    return name.starts_with(nameStart) && name.ends_with(nameEnd) &&
           name.size() == nameStart.size() + hashSize + nameEnd.size();
}

} // namespace

SymbolicIconFiles::SymbolicIconFiles(fs::path folder) : m_folder(std::move(folder)) {
    if (!m_folder.empty()) {
        std::error_code ignored; // add() reports failure
        fs::create_directory(m_folder, ignored);
        removeAllBut({}, {});
    }
}

SymbolicIconFiles::~SymbolicIconFiles() {
    removeAllBut({}, {});
}

QString SymbolicIconFiles::add(const QByteArray& svg) {
    if (m_folder.empty()) {
        return {};
    }
    const QByteArray hash = QCryptographicHash::hash(svg, QCryptographicHash::Md5).toHex();
    const fs::path path =
        m_folder / std::string(nameStart).append(hash.toStdString()).append(nameEnd);
    if (path != m_last) {
        if (!model::writeFile(path, svg)) {
            return {};
        }
        removeAllBut(path, m_last);
        m_last = path;
    }
    return QString::fromStdString(path.string());
}

void SymbolicIconFiles::removeAllBut(const fs::path& one, const fs::path& other) const {
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(m_folder, error)) {
        if (isOurs(entry.path()) && entry.path() != one && entry.path() != other) {
            fs::remove(entry.path(), error);
        }
    }
}

} // namespace tallyvane::app
