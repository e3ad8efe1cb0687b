#pragma once

#include <QtCore/QString>

#include <cstdio>

namespace tallyvane::app {

/// The program's exit codes; helpText() tells them to the user.
enum class ExitCode { success = 0, failure = 1, usage = 2, providerFailed = 3, nothingStored = 4 };

[[nodiscard]] bool isTerminal(std::FILE* stream);

/// Writes to standard output; false, after a message, when the text could not be written whole.
[[nodiscard]] bool print(const QString& text);

/// Writes "tallyvane: " and the message to standard error; with e-mail addresses masked when that
/// is no terminal but, say, the journal, which keeps what it gets.
void printError(const QString& message);

/// Ends the program with nothing but its output flushed. The usual end would wait for the name of a
/// server that is being looked up, which no one can break off, and a silent resolver takes minutes.
[[noreturn]] void endProgram(int exitCode);

/// A line on standard error that is wiped away at the end of its life; nothing when standard error
/// is no terminal.
class ProgressLine {
public:
    explicit ProgressLine(const QString& text);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
};

} // namespace tallyvane::app
