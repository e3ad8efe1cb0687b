#pragma once

#include "support/processes.h"

#include <QtCore/QDirIterator>
#include <QtCore/QSet>
#include <QtCore/QTimer>

#include <algorithm>
#include <chrono>

namespace tallyvane::tests {

/// Looks for a secret where the program must not put it, as long as the event loop runs: in the
/// arguments and environments of all processes of a home, and at the end in its files.
class SecretWatch {
public:
    /// `origin` is the name of the files that may hold the secret.
    SecretWatch(QByteArray secret, QString origin)
        : m_secret(std::move(secret)), m_origin(std::move(origin)) {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { look(); });
        m_timer.start(std::chrono::milliseconds{50});
    }

    /// Where the secret was found, and any program among `expected` that was never seen at work.
    [[nodiscard]] QStringList findings(const QByteArrayList& expected) const {
        QStringList found = m_leaks;
        for (const QByteArray& program : expected) {
            if (std::ranges::none_of(m_commands, [&program](const QByteArray& command) {
                    return command.contains(program);
                })) {
                found += QStringLiteral("not seen: ") + QString::fromUtf8(program);
            }
        }
        const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System;
        QDirIterator files(QDir::homePath(), everything | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            const bool isPlain = files.fileInfo().isFile() && !files.fileInfo().isSymLink();
            if (isPlain && files.fileName() != m_origin &&
                (!file.open(QIODevice::ReadOnly) || file.readAll().contains(m_secret))) {
                found += file.fileName();
            }
        }
        return found;
    }

private:
    void look() {
        for (const Process& process : processesIn(QDir::homePath().toUtf8())) {
            const QByteArray command = process.read("cmdline");
            m_commands.insert(command);
            if ((command + process.read("environ")).contains(m_secret)) {
                m_leaks += QString::fromUtf8(command);
            }
        }
    }

    QByteArray m_secret;
    QString m_origin;
    QSet<QByteArray> m_commands;
    QStringList m_leaks;
    QTimer m_timer;
};

} // namespace tallyvane::tests
