#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QList>

namespace tallyvane::tests {

/// A process as /proc shows it; what it holds is empty once the process has ended.
struct Process {
    qint64 id = 0;

    [[nodiscard]] QByteArray read(const char* name) const {
        QFile file(QStringLiteral("/proc/%1/%2").arg(id).arg(QLatin1StringView(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// The number in a line "Name:   number" of its status, such as "VmRSS" in kB; -1 without one.
    [[nodiscard]] qint64 status(const QByteArray& name) const {
        const QByteArray text = '\n' + read("status");
        const qsizetype line = text.indexOf('\n' + name + ':');
        const QByteArray value = text.mid(line + name.size() + 2);
        return line < 0 ? -1 : value.first(value.indexOf('\n')).replace(" kB", "").toLongLong();
    }
};

/// All processes whose environment has a home directory at or below `home`.
inline QList<Process> processesIn(const QByteArray& home) {
    QList<Process> found;
    const QDir processes(QStringLiteral("/proc"));
    for (const QString& id : processes.entryList({QStringLiteral("[1-9]*")}, QDir::Dirs)) {
        const Process process{id.toLongLong()};
        if (('\0' + process.read("environ")).contains('\0' + ("HOME=" + home))) {
            found.append(process);
        }
    }
    return found;
}

} // namespace tallyvane::tests
