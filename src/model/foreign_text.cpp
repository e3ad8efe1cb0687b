#include "model/foreign_text.h"

#include <QtCore/QRegularExpression>
#include <unicode/brkiter.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <memory>

namespace tallyvane::model {

namespace {

constexpr QStringView cutMark = u" … (cut)";

/// The number of input code units examined per output code unit.
constexpr qsizetype walkFactor = 16;

bool isControl(QChar c) {
    return c.category() == QChar::Other_Control;
}

bool isBetween(QStringView text, qsizetype at, char16_t first, char16_t last) {
    return at < text.size() && text[at] >= first && text[at] <= last;
}

qsizetype skipBetween(QStringView text, qsizetype at, char16_t first, char16_t last) {
    while (isBetween(text, at, first, last)) {
        ++at;
    }
    return at;
}

/// The end of the control sequence that starts with the control character at `at`.
qsizetype sequenceEnd(QStringView text, qsizetype at) {
    constexpr QChar escape = u'\x1B';
    constexpr char16_t introducer = 0x9B;
    constexpr char16_t stringTerminator = 0x9C;
    char16_t control = text[at].unicode();
    ++at;
    if (control == escape) {
        const qsizetype last = skipBetween(text, at, u' ', u'/');
        if (!isBetween(text, last, u'0', u'~')) {
            return at;
        }
        if (last > at || !isBetween(text, last, u'@', u'_')) {
            return last + 1;
        }
        control = static_cast<char16_t>(text[last].unicode() + 0x40); // its 8-bit form
        at = last + 1;
    }
    switch (control) {
    case introducer: {
        const qsizetype last = skipBetween(text, skipBetween(text, at, u'0', u'?'), u' ', u'/');
        return isBetween(text, last, u'@', u'~') ? last + 1 : last;
    }
    case 0x90: // DCS, SOS, OSC, PM, APC strings
    case 0x98:
    case 0x9D:
    case 0x9E:
    case 0x9F: {
        // Without a terminator it is damaged text, whose words are kept.
        const qsizetype end = std::find_if(text.begin() + at, text.end(), isControl) - text.begin();
        if (isBetween(text, end, u'\a', u'\a') ||
            isBetween(text, end, stringTerminator, stringTerminator)) {
            return end + 1;
        }
        return text.sliced(end).startsWith(u"\x1B\\") ? end + 2 : at;
    }
    default:
        return at;
    }
}

/// Whether the character is visible or affects how others are displayed.
bool isWanted(char32_t c) {
    const bool isLanguageMark = (c >= 0x200C && c <= 0x200F) || c == 0x061C || c == 0x180E;
    const bool isNumberSign = (c >= 0x0600 && c <= 0x0605) || c == 0x06DD || c == 0x070F ||
                              c == 0x0890 || c == 0x0891 || c == 0x08E2 || c == 0x110BD ||
                              c == 0x110CD;
    if (isLanguageMark || isNumberSign) {
        return true;
    }
    const bool isPlaceholder = c == 0xFFFC;
    const bool isHiddenPlane = c >= 0xE0000 && c < 0xF0000;
    return !isPlaceholder && !isHiddenPlane && !QChar::isNonCharacter(c) &&
           QChar::category(c) != QChar::Other_Format && !QChar::isSurrogate(c);
}

/// Cuts `text` to at most `length`, at the boundary of a user-perceived character. Qt 6.4's own
/// boundaries split surrogate pairs after letters of some scripts.
void cutAtCharacter(QString& text, qsizetype length) {
    const bool isWithinPair = length < text.size() && text[length].isLowSurrogate();
    auto end = static_cast<std::int32_t>(isWithinPair ? length - 1 : length);
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> characters(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    if (U_SUCCESS(status) != 0) {
        const icu::UnicodeString copy(reinterpret_cast<const char16_t*>(text.utf16()),
                                      static_cast<std::int32_t>(text.size()));
        characters->setText(copy); // keeps a reference
        end = characters->isBoundary(end) != 0 ? end : characters->preceding(end);
    }
    text.truncate(end);
}

} // namespace

QString readableText(QStringView foreign, qsizetype maximumLength) {
    Q_ASSERT(maximumLength >= cutMark.size());
    const QStringView walked = foreign.first(std::min(foreign.size(), walkFactor * maximumLength));
    QString text;
    qsizetype at = 0;
    while (at < walked.size() && text.size() <= maximumLength) {
        const QChar unit = walked[at];
        const bool isPair =
            unit.isHighSurrogate() && at + 1 < walked.size() && walked[at + 1].isLowSurrogate();
        const qsizetype length = isPair ? 2 : 1;
        const char32_t character =
            isPair ? QChar::surrogateToUcs4(unit, walked[at + 1]) : unit.unicode();
        if (unit == u'\n' || unit == QChar::LineSeparator || unit == QChar::ParagraphSeparator) {
            text += u'\n';
        } else if (unit == u'\t' || (unit == u'\r' && !walked.sliced(at).startsWith(u"\r\n"))) {
            text += u' ';
        } else if (isControl(unit)) {
            at = sequenceEnd(walked, at);
            continue;
        } else if (isWanted(character)) {
            text += walked.sliced(at, length);
        }
        at += length;
    }
    if (text.size() > maximumLength || at < foreign.size()) {
        cutAtCharacter(text, std::min(text.size(), maximumLength - cutMark.size()));
        text += cutMark;
    }
    return text;
}

QString readableLine(QStringView foreign, qsizetype maximumLength) {
    return readableText(foreign, maximumLength).replace(u'\n', u' ');
}

QString maskedAddresses(const QString& text) {
    // More than mail servers accept, but a domain needs a letter: "@1.2" is a package version.
    static const QRegularExpression address = [] {
        const QString around = QStringLiteral(R"(\s@%:;,/=?&"`<>()[\]{}|)");
        return QRegularExpression(
            QStringLiteral(
                R"((?:\G|(?<![^%1']))[^%1'][^%1]*+(?:@|%40)(?=[\w.-]*\pL)[\w-]+(?:\.[\w-]+)*)")
                .replace(QStringLiteral("%1"), around),
            QRegularExpression::UseUnicodePropertiesOption);
    }();
    return QString(text).replace(address, QStringLiteral("(e-mail address)"));
}

} // namespace tallyvane::model
