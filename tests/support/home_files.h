#pragma once

#include "history/usage_history.h"

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

/// Whether the program's files below its data folder, if they are there, can be read whole.
inline bool areFilesWhole(const QString& dataHome) {
    const auto isWhole = [&dataHome](const char* name, auto decode) {
        const QString path = dataHome + QStringLiteral("/Gaugewell/") + QLatin1StringView(name);
        return !QFile::exists(path) || decode(readFile(path)).has_value();
    };
    return isWhole("quota-snapshot.json", model::decodeSnapshot) &&
           isWhole("usage-history.json", history::decodeHistory);
}

} // namespace tallyvane::tests
