#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <cstdio>

namespace tallyvane::app {

/// The program's exit codes, documented in helpText().
enum class ExitCode { success = 0, failure = 1, usage = 2, providerFailed = 3, nothingStored = 4 };

[[nodiscard]] bool isTerminal(std::FILE* stream);

/// Whether what is printed may hold the control sequences of colours.
enum class Palette { plain, ansi };

/// Writes to standard output; to a terminal without what could control it. Reports an incomplete
/// write and returns false.
[[nodiscard]] bool print(const QString& text);

/// print() for text of which every foreign part went through readableText(), so that the control
/// sequences in it are meant.
[[nodiscard]] bool printStyled(const QString& text);

/// print() for JSON and a line feed, with every character that could control a terminal escaped.
[[nodiscard]] bool printJson(const QByteArray& json);

/// Writes "tallyvane: " and the message to standard error, without what could control a terminal.
/// Masks e-mail addresses unless that is a terminal: a journal would keep them.
void printError(const QString& message);

/// printError() for a command line that was not understood.
[[nodiscard]] ExitCode reportMisuse(const QString& complaint);

/// Writes what the user can do about the error before to standard error, indented.
void printAdvice(const QString& advice);

/// Flushes the output and exits without running destructors: those of Qt's host look-ups would wait
/// minutes for a silent resolver.
[[noreturn]] void endProgram(int exitCode);

/// A line on standard error that is erased on destruction; shown on a terminal only, and not if the
/// text is empty.
class ProgressLine {
public:
    explicit ProgressLine(const QString& text);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

private:
    bool m_isShown;
};

} // namespace tallyvane::app
