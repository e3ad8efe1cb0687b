#include "model/icu_text.h"

#include <unicode/localebuilder.h>
#include <unicode/ures.h>

#include <algorithm>
#include <array>

namespace tallyvane::model {

namespace {

/// The modifiers of C library locales that affect texts, unlike "euro" and others.
struct Modifier {
    std::string_view name;
    const char* script;
    const char* variant;
};
constexpr std::array modifiers{
    Modifier{.name = "cyrillic", .script = "Cyrl", .variant = ""},
    Modifier{.name = "devanagari", .script = "Deva", .variant = ""},
    Modifier{.name = "iqtelif", .script = "Latn", .variant = ""},
    Modifier{.name = "latin", .script = "Latn", .variant = ""},
    Modifier{.name = "valencia", .script = "", .variant = "valencia"},
};

icu::Locale withModifier(const icu::Locale& locale, std::string_view name) {
    const auto* const modifier = std::ranges::find(modifiers, name, &Modifier::name);
    if (modifier == modifiers.end()) {
        return locale;
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale modified = icu::LocaleBuilder()
                               .setLocale(locale)
                               .setScript(modifier->script)
                               .setVariant(modifier->variant)
                               .build(status);
    return U_SUCCESS(status) != 0 ? modified : locale;
}

/// Otherwise ICU would fall back to the locale of the process.
bool hasTexts(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    ures_close(ures_open(nullptr, locale.getName(), &status));
    return U_SUCCESS(status) != 0 && status != U_USING_DEFAULT_WARNING;
}

bool isPartOfName(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-';
}

} // namespace

icu::Locale icuLocale(const std::string& name) {
    const std::size_t at = name.find('@');
    const std::string base = name.substr(0, std::min(name.find('.'), at));
    // ICU would look for files of that name, and does not report names beyond its own limit.
    constexpr std::size_t longest = 80;
    const bool isName = base.size() <= longest && std::ranges::all_of(base, isPartOfName);
    const icu::Locale parsed(isName ? base.c_str() : "");
    if (parsed.isBogus() != 0 || *parsed.getLanguage() == 0) {
        return icu::Locale::getEnglish();
    }
    // Without BCP 47 extensions, which may request things that ICU lacks.
    icu::Locale locale(parsed.getBaseName());
    if (at != std::string::npos) {
        icu::Locale modified = withModifier(locale, std::string_view(name).substr(at + 1));
        if (hasTexts(modified)) {
            return modified;
        }
    }
    if (hasTexts(locale)) {
        return locale;
    }
    const char* unknownRegion = "ZZ"; // which has the 24-hour clock
    const char* region = locale.getCountry();
    return {"en", *region != 0 ? region : unknownRegion};
}

QString plainText(icu::UnicodeString text) {
    text.findAndReplace(icu::UnicodeString(u'\u202F'), icu::UnicodeString(u' '));
    return QString::fromUtf16(text.getBuffer(), text.length());
}

} // namespace tallyvane::model
