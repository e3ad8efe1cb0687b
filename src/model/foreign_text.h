#pragma once

#include <QtCore/QString>

/// Texts that others wrote: servers, child programs, files that anyone may have changed.
namespace tallyvane::model {

/// `foreign` as it may be stored, printed, shown and announced: valid UTF-16 of at most
/// `maximumLength` code units, which must be 8 or more. The same text when it is readable already.
///
/// Dropped are the control sequences of terminals (ECMA-48, 7-bit and 8-bit), control characters
/// except line feeds, embeddings, overrides and isolates of the text's direction, characters that
/// are never seen, and halves of surrogate pairs. Joiners and direction marks stay, because
/// languages and emoji need them. A tab or a lone carriage return becomes a space. What is too long
/// ends in " … (cut)" after a whole user-perceived character. Takes no longer for a huge text.
[[nodiscard]] QString readableText(QStringView foreign, qsizetype maximumLength = 4096);

/// readableText() in one line: with spaces for line feeds.
[[nodiscard]] QString readableLine(QStringView foreign, qsizetype maximumLength = 4096);

/// How long the name of a subscription may be.
inline constexpr qsizetype maximumPlanNameLength = 64;

/// `text` with "(e-mail address)" in place of each e-mail address, for what is kept in a log.
[[nodiscard]] QString maskedAddresses(const QString& text);

} // namespace tallyvane::model
