#pragma once

#include "support/home_files.h"
#include "support/running_program.h"

namespace tallyvane::tests {

/// Lets `codex` answer with this five-hour figure, after running `before`.
inline void installCodex(double usedPercent, const QByteArray& before = {}) {
    writeFile(inHome(".local/bin/codex"),
              "#!/bin/sh\n" + before +
                  "\necho '{\"id\":1,\"result\":{\"rateLimits\":{\"planType\":\"plus\","
                  "\"primary\":{\"usedPercent\":" +
                  QByteArray::number(usedPercent) +
                  "},\"secondary\":{\"usedPercent\":17}}}}'\ncat\n");
}

/// The program, as users and their desktop start it.
struct TallyvaneProgram : RunningProgram {
    explicit TallyvaneProgram(const char* arguments = "",
                              const QString& program = QStringLiteral(TALLYVANE_PROGRAM)) {
        start(program, QString::fromLatin1(arguments).split(u' ', Qt::SkipEmptyParts));
    }
};

} // namespace tallyvane::tests
