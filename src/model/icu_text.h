#pragma once

#include <QtCore/QString>
#include <unicode/locid.h>
#include <unicode/unistr.h>
#include <unicode/utypes.h>

#include <string>

/// What the formats of this folder need of ICU.
namespace tallyvane::model {

/// The locale of a POSIX or BCP 47 name; English for what is no name of one.
[[nodiscard]] icu::Locale icuLocale(const std::string& name);

/// Ends the program when a call of ICU failed, which takes a broken installation.
void requireSuccess(UErrorCode status);

/// ICU's text, with a plain space for the narrow one that it puts before "PM": many fonts, and so
/// many panels and terminals, lack that.
[[nodiscard]] QString plainText(icu::UnicodeString text);

} // namespace tallyvane::model
