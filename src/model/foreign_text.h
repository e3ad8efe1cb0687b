#pragma once

#include <QtCore/QString>

/// Sanitising of text from servers, child processes and files.
namespace tallyvane::model {

/// Makes `foreign` safe to store, print and display: valid UTF-16 of at most `maximumLength` code
/// units, which must be 8 or more. Idempotent. The run time is bounded by `maximumLength`.
///
/// Removes terminal control sequences (ECMA-48, 7-bit and 8-bit), control characters except line
/// feeds, bidirectional embeddings, overrides and isolates, invisible characters, and lone
/// surrogates. Keeps joiners and direction marks, which languages and emoji need. Replaces tabs and
/// lone carriage returns by spaces. Cuts a text that is too long after a whole user-perceived
/// character and appends " … (cut)".
[[nodiscard]] QString readableText(QStringView foreign, qsizetype maximumLength = 4096);

/// readableText() with line feeds replaced by spaces.
[[nodiscard]] QString readableLine(QStringView foreign, qsizetype maximumLength = 4096);

/// The maximum length of a plan name.
inline constexpr qsizetype maximumPlanNameLength = 64;

/// Replaces each e-mail address by "(e-mail address)", for text that ends up in a log.
[[nodiscard]] QString maskedAddresses(const QString& text);

} // namespace tallyvane::model
