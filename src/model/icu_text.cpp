#include "model/icu_text.h"

namespace tallyvane::model {

icu::Locale icuLocale(const std::string& name) {
    const icu::Locale locale(name.c_str());
    // ICU crashes on a locale that it could not parse.
    return locale.isBogus() != 0 ? icu::Locale::getEnglish() : locale;
}

void requireSuccess(UErrorCode status) {
    if (U_FAILURE(status) != 0) {
        qFatal("ICU cannot write this locale: %s", u_errorName(status));
    }
}

QString plainText(icu::UnicodeString text) {
    text.findAndReplace(icu::UnicodeString(u'\u202F'), icu::UnicodeString(u' '));
    return QString::fromUtf16(text.getBuffer(), text.length());
}

} // namespace tallyvane::model
