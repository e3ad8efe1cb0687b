#pragma once

#include "model/quota_display.h"

#include <QtCore/QUrl>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>

namespace tallyvane::ui {

/// What the colour of a bar and its figure means.
// NOLINTBEGIN(readability-identifier-naming): names in QML begin with a capital
namespace QuotaLevel {
Q_NAMESPACE
QML_ELEMENT
enum Level {
    Unknown, ///< there is no figure, or it is not current
    Low,     ///< less than a quarter is left
    Ample,
};
Q_ENUM_NS(Level)
} // namespace QuotaLevel
// NOLINTEND(readability-identifier-naming)

/// One bar of a card, ready to display.
class QuotaRow {
    Q_GADGET
    QML_VALUE_TYPE(quotaRow)
    Q_PROPERTY(QString figure MEMBER figure)
    Q_PROPERTY(QString resetText MEMBER resetText)
    Q_PROPERTY(double fraction MEMBER fraction)
    Q_PROPERTY(double evenFraction MEMBER evenFraction)
    Q_PROPERTY(QString pace MEMBER pace)
    Q_PROPERTY(double opacity MEMBER opacity)
    Q_PROPERTY(tallyvane::ui::QuotaLevel::Level level MEMBER level)

public:
    QString figure; ///< the percentage left, such as "25%", or "--" if unknown
    QString resetText;
    double fraction = 0;      ///< the filled part of the bar, 0 to 1
    double evenFraction = -1; ///< what an even use would leave of the bar; negative if unknown
    QString pace;             ///< whether the quota lasts until its reset; empty if unknown
    double opacity = 1;
    QuotaLevel::Level level = QuotaLevel::Unknown;

    bool operator==(const QuotaRow&) const = default;
};

/// One provider's card, ready to display.
class ProviderCard {
    Q_GADGET
    QML_VALUE_TYPE(providerCard)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QString plan MEMBER plan)
    Q_PROPERTY(QColor accent MEMBER accent)
    Q_PROPERTY(bool isPending MEMBER isPending)
    Q_PROPERTY(QUrl usagePage MEMBER usagePage)
    Q_PROPERTY(QString age MEMBER age)
    Q_PROPERTY(QString trouble MEMBER trouble)
    Q_PROPERTY(tallyvane::ui::QuotaRow fiveHour MEMBER fiveHour)
    Q_PROPERTY(tallyvane::ui::QuotaRow week MEMBER week)

public:
    QString name; ///< "Codex"
    QString icon; ///< a symbol's name
    QString plan; ///< in upper case; empty if there is none
    QColor accent;
    bool isPending = false;
    QUrl usagePage;
    QString age;     ///< "From 2 hr ago"; empty if the figures are of the last refresh, or none
    QString trouble; ///< why the figures are not current and what to do; may be empty
    QuotaRow fiveHour;
    QuotaRow week;

    bool operator==(const ProviderCard&) const = default;
};

/// A card as a row of a list.
class ProviderCardRow {
    Q_GADGET
    Q_PROPERTY(tallyvane::ui::ProviderCard card MEMBER card)

public:
    ProviderCard card;

    bool operator==(const ProviderCardRow&) const = default;
};

[[nodiscard]] ProviderCard providerCard(const model::ProviderQuotaSnapshot& entry,
                                        model::Timestamp now,
                                        const model::WeekdayTimeFormat& weekdayTime,
                                        const model::RecentRates& recent = {});

} // namespace tallyvane::ui
