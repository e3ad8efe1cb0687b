#include "app/terminal.h"

#include "model/foreign_text.h"

#include <QtCore/QList>

#include <algorithm>
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

/// As long as it is.
QString readable(const QString& text) {
    constexpr qsizetype leastLimit = 4096;
    return model::readableText(text, std::max(text.size(), leastLimit));
}

/// In JSON, whose own control characters are line feeds alone.
bool controlsTerminal(char32_t c) {
    const auto category = QChar::category(c);
    return (category == QChar::Other_Control && c != U'\n') || category == QChar::Other_Format ||
           category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
}

QString jsonEscape(const QString& character) {
    QString text;
    for (const QChar unit : character) {
        text += QStringLiteral("\\u%1").arg(uint{unit.unicode()}, 4, 16, QChar(u'0'));
    }
    return text;
}

} // namespace

bool isTerminal(std::FILE* stream) {
    return ::isatty(::fileno(stream)) == 1;
}

bool print(const QString& text) {
    return printStyled(isTerminal(stdout) ? readable(text) : text);
}

bool printStyled(const QString& text) {
    if (write(stdout, text)) {
        return true;
    }
    printError(QStringLiteral("Could not write the output: %1.").arg(qt_error_string(errno)));
    return false;
}

bool printJson(const QByteArray& json) {
    QString text;
    for (const char32_t c : QString::fromUtf8(json).toUcs4()) {
        const QString character = QString::fromUcs4(&c, 1);
        text += controlsTerminal(c) ? jsonEscape(character) : character;
    }
    return printStyled(text + u'\n');
}

void printError(const QString& message) {
    const QString text = readable(message);
    write(stderr, QStringLiteral("tallyvane: %1\n")
                      .arg(isTerminal(stderr) ? text : model::maskedAddresses(text)));
}

ExitCode reportMisuse(const QString& complaint) {
    printError(QString(complaint).replace(u'\n', u' ') +
               QStringLiteral(" Try 'tallyvane --help'."));
    return ExitCode::usage;
}

void printAdvice(const QString& advice) {
    if (!advice.isEmpty()) {
        write(stderr, QStringLiteral("  %1\n").arg(readable(advice)));
    }
}

void endProgram(int exitCode) {
    std::fflush(nullptr);
    std::_Exit(exitCode);
}

ProgressLine::ProgressLine(const QString& text) : m_isShown(!text.isEmpty() && isTerminal(stderr)) {
    if (m_isShown) {
        write(stderr, text);
    }
}

ProgressLine::~ProgressLine() {
    if (m_isShown) {
        write(stderr, QStringLiteral("\r\033[K"));
    }
}

} // namespace tallyvane::app
