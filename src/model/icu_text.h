#pragma once

#include <QtCore/QString>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <string>

namespace tallyvane::model {

/// The ICU locale for a BCP 47 name or a POSIX name, language[_TERRITORY][.codeset][@modifier].
/// Honours modifiers that select a script or variant known to ICU, such as "latin". English with
/// the conventions of the region if ICU has no texts in the language, and plain English for
/// malformed names. Never the locale of the process.
[[nodiscard]] icu::Locale icuLocale(const std::string& name);

/// Replaces the narrow space that ICU puts before "PM" by a plain one, as many fonts lack it.
[[nodiscard]] QString plainText(icu::UnicodeString text);

} // namespace tallyvane::model
