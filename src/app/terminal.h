#pragma once

#include <QtCore/QString>

#include <cstdio>

namespace tallyvane::app {

/// The program's exit codes, documented in helpText().
enum class ExitCode { success = 0, failure = 1, usage = 2, providerFailed = 3, nothingStored = 4 };

[[nodiscard]] bool isTerminal(std::FILE* stream);

/// Writes to standard output. Reports an incomplete write and returns false.
[[nodiscard]] bool print(const QString& text);

/// Writes "tallyvane: " and the message to standard error. Masks e-mail addresses unless that is a
/// terminal: a journal would keep them.
void printError(const QString& message);

/// Writes what the user can do about the error before to standard error, indented.
void printAdvice(const QString& advice);

/// Flushes the output and exits without running destructors: those of Qt's host look-ups would wait
/// minutes for a silent resolver.
[[noreturn]] void endProgram(int exitCode);

/// A line on standard error that is erased on destruction; shown on a terminal only.
class ProgressLine {
public:
    explicit ProgressLine(const QString& text);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
};

} // namespace tallyvane::app
