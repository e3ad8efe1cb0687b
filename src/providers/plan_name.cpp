#include "providers/plan_name.h"

#include "model/foreign_text.h"

namespace tallyvane::providers {

QString planName(const QString& identifier) {
    using model::readableLine;
    constexpr qsizetype length = model::maximumPlanNameLength;
    // Twice: a huge one takes long to change, and some letters are more in lower case.
    QString name = readableLine(readableLine(identifier, length).toLower(), length);
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
