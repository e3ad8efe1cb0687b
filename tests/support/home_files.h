#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>

namespace tallyvane::tests {

/// The absolute path of a file in the test's home.
inline QString inHome(const char* name) {
    return QDir::home().filePath(QString::fromUtf8(name));
}

/// The whole file; empty when there is none.
inline QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Makes the file, executable, and its folder.
inline void writeFile(const QString& path, const QByteArray& content) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)) {
        qFatal("could not write %s", qPrintable(path));
    }
}

/// Empties the test's home.
inline void clearHome() {
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QFileInfo& entry : QDir::home().entryInfoList(everything)) {
        if (entry.isDir() && !entry.isSymLink()) {
            QDir(entry.filePath()).removeRecursively();
        } else {
            QFile::remove(entry.filePath());
        }
    }
}

} // namespace tallyvane::tests
