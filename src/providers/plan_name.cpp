#include "providers/plan_name.h"

namespace tallyvane::providers {

QString planName(const QString& identifier) {
    QString name = identifier.toLower();
    name.replace(u'_', u' ');
    bool startsWord = true;
    for (QChar& c : name) {
        if (startsWord) {
            c = c.toUpper();
        }
        startsWord = c.isSpace();
    }
    return name;
}

} // namespace tallyvane::providers
