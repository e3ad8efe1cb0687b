#include "model/locale_labels.h"
#include "support/test_main.h"

using tallyvane::model::LocaleLabels;

class LocaleLabelsTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void texts_data() {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<Qt::DayOfWeek>("firstWeekday");
        QTest::addColumn<bool>("isTwelveHour");
        const auto row = [](const char* locale, const QStringList& texts, Qt::DayOfWeek first,
                            bool isTwelveHour) {
            QTest::newRow(locale) << QByteArray(locale) << texts << first << isTwelveHour;
        };
        const QStringList english{
            QStringLiteral("12K"),           QStringLiteral("1.2M"),
            QStringLiteral("0.25"),          QStringLiteral("Nov"),
            QStringLiteral("November 2026"), QStringLiteral("Nov 21"),
            QStringLiteral("Sat"),           QStringLiteral("Sat, Nov 21, 2026"),
            QStringLiteral("11:59 PM")};
        row("en_US.UTF-8", english, Qt::Sunday, true);
        row("no such locale", english, Qt::Sunday, true);
        row("de_DE.UTF-8",
            {QStringLiteral("12.345"), QStringLiteral("1,2\u00A0Mio."), QStringLiteral("0,25"),
             QStringLiteral("Nov"), QStringLiteral("November 2026"), QStringLiteral("21. Nov."),
             QStringLiteral("Sa"), QStringLiteral("Sa., 21. Nov. 2026"), QStringLiteral("23:59")},
            Qt::Monday, false);
    }

    void texts() {
        QFETCH(QByteArray, locale);
        QFETCH(QStringList, texts);
        QFETCH(Qt::DayOfWeek, firstWeekday);
        QFETCH(bool, isTwelveHour);
        const LocaleLabels labels(locale.toStdString());
        const QDate day(2026, 11, 21);
        QCOMPARE(QStringList({labels.compactNumber(12'345), labels.compactNumber(1'234'567),
                              labels.number(0.25), labels.month(day), labels.monthAndYear(day),
                              labels.dayAndMonth(day), labels.weekday(day), labels.fullDay(day),
                              labels.timeOfDay(1439)}),
                 texts);
        QCOMPARE(labels.firstWeekday(), firstWeekday);
        QCOMPARE(labels.hasTwelveHourClock(), isTwelveHour);
    }
};

TALLYVANE_TEST_MAIN(LocaleLabelsTest)
#include "locale_labels_test.moc"
