#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>

namespace tallyvane::tests {

/// The whole file; nothing when there is none.
inline QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Makes the file, which may be executed, and its folder.
inline void writeFile(const QString& path, const QByteArray& content) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)) {
        qFatal("could not write %s", qPrintable(path));
    }
}

} // namespace tallyvane::tests
