#include "app/terminal.h"

#include "model/foreign_text.h"

#include <cerrno>
#include <cstdlib>
#include <unistd.h>

namespace tallyvane::app {

namespace {

bool write(std::FILE* stream, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    const auto size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stream) == size && std::fflush(stream) == 0;
}

} // namespace

bool isTerminal(std::FILE* stream) {
    return ::isatty(::fileno(stream)) == 1;
}

bool print(const QString& text) {
    if (write(stdout, text)) {
        return true;
    }
    printError(QStringLiteral("Could not write the output: %1.").arg(qt_error_string(errno)));
    return false;
}

void printError(const QString& message) {
    const QString text = isTerminal(stderr) ? message : model::maskedAddresses(message);
    write(stderr, QStringLiteral("tallyvane: %1\n").arg(text));
}

void printAdvice(const QString& advice) {
    if (!advice.isEmpty()) {
        write(stderr, QStringLiteral("  %1\n").arg(advice));
    }
}

void endProgram(int exitCode) {
    std::fflush(nullptr);
    std::_Exit(exitCode);
}

ProgressLine::ProgressLine(const QString& text) {
    if (isTerminal(stderr)) {
        write(stderr, text);
    }
}

ProgressLine::~ProgressLine() {
    if (isTerminal(stderr)) {
        write(stderr, QStringLiteral("\r\033[K"));
    }
}

} // namespace tallyvane::app
