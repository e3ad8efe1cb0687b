#pragma once

#include <QtCore/QStringList>

class QLocale;
class QTranslator;

namespace tallyvane::ui {

/// Loads the catalogue of the first of `languages` that has one, and gives the language's locale.
/// Those are names such as "de_AT.UTF-8" or "zh_CN"; for "de_AT" that of "de" counts. Without a
/// catalogue the translator stays empty, so that texts are as in the source, and the locale is "C".
[[nodiscard]] QLocale loadTranslation(QTranslator& translator, const QStringList& languages);

} // namespace tallyvane::ui
