#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <unicode/uchar.h>

#include <algorithm>

namespace tallyvane::tests {

/// Whether a text is safe to show: valid UTF-16 of limited length, without characters that control
/// a terminal or are invisible, according to ICU's classes.
inline bool isReadable(QStringView text, qsizetype maximumLength = 4096) {
    return text.size() <= maximumLength && text.isValidUtf16() &&
           std::ranges::none_of(text.toUcs4(), [](char32_t c) {
               const bool isDirection =
                   (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
               const bool isTag = c >= 0xE0000 && c <= 0xE007F;
               const auto isControl = u_isISOControl(static_cast<UChar32>(c)) != 0 && c != '\n';
               return isControl || isDirection || isTag || U_IS_UNICODE_NONCHAR(c);
           });
}

/// Whether a text isReadable() and is one line.
inline bool isReadableLine(QStringView text, qsizetype maximumLength) {
    return isReadable(text, maximumLength) && !text.contains(u'\n');
}

} // namespace tallyvane::tests
