#pragma once

#include <QtCore/QString>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <string>

/// What the texts of this folder need of ICU.
namespace tallyvane::model {

/// The locale of a BCP 47 name or of a POSIX one, language[_TERRITORY][.codeset][@modifier]. Of the
/// modifiers those count that choose a script or a variant ICU knows, such as "latin". Instead of a
/// language that ICU has no texts in it is English, with the region's manners; plain English for
/// what is no name. Never the locale that the process runs in.
[[nodiscard]] icu::Locale icuLocale(const std::string& name);

/// ICU's text, with a plain space for the narrow one that it puts before "PM": many fonts, and so
/// many panels and terminals, lack that.
[[nodiscard]] QString plainText(icu::UnicodeString text);

} // namespace tallyvane::model
