#include "ui/translation/translation.h"

#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>
#include <QtCore/QTranslator>

namespace tallyvane::ui {

QLocale loadTranslation(QTranslator& translator, const QStringList& languages) {
    static const QRegularExpression nameParts(
        QStringLiteral("^([a-z]{2,3})(_[A-Z]{2})?([.@].*)?$"));
    for (const QString& name : languages) {
        const QRegularExpressionMatch parts = nameParts.match(name);
        const QString language = parts.captured(1);
        const QString locale = language + parts.captured(2);
        for (const QString& catalogue : {locale, language}) {
            if (parts.hasMatch() &&
                translator.load(QStringLiteral(":/translations/tallyvane_%1.qm").arg(catalogue))) {
                return QLocale(locale);
            }
        }
    }
    return QLocale::c();
}

} // namespace tallyvane::ui
