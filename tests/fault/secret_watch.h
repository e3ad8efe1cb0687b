#pragma once

#include "support/processes.h"
#include "support/running_program.h"

#include <QtCore/QSet>
#include <QtCore/QTimer>

#include <algorithm>
#include <chrono>

namespace tallyvane::tests {

/// Looks for a secret where the program must not put it: as long as the event loop runs in the
/// arguments and environments of all processes of this test's home, and at the end in its files.
class SecretWatch {
public:
    explicit SecretWatch(QByteArray secret) : m_secret(std::move(secret)) {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            for (const Process& process : processesIn(qgetenv("HOME"))) {
                m_seen.insert(process.read("cmdline") + process.read("environ"));
            }
        });
        m_timer.start(std::chrono::milliseconds{50});
    }

    /// Whether a process had this text in its arguments or environment.
    [[nodiscard]] bool hasSeen(const QByteArray& text) const {
        return std::ranges::any_of(m_seen, [&](const auto& seen) { return seen.contains(text); });
    }

    /// Where the secret was found: "a process", and the files, but for the user's own of Claude
    /// Code.
    [[nodiscard]] QByteArray leaks() const {
        const QByteArray process = hasSeen(m_secret) ? "a process\n" : ""; // before grep is one
        return process +
               output("grep -rlF -D skip --exclude=.credentials.json " + m_secret + " \"$HOME\"");
    }

private:
    QByteArray m_secret;
    QSet<QByteArray> m_seen;
    QTimer m_timer;
};

} // namespace tallyvane::tests
