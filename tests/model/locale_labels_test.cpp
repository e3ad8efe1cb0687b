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
        const auto row = [](const char* locale, const QStringList& texts, Qt::DayOfWeek first) {
            QTest::newRow(locale) << QByteArray(locale) << texts << first;
        };
        const QStringList english{
            QStringLiteral("12K"),           QStringLiteral("1.2M"),
            QStringLiteral("0.25"),          QStringLiteral("Nov"),
            QStringLiteral("November 2026"), QStringLiteral("Nov 21"),
            QStringLiteral("Sat"),           QStringLiteral("Sat, Nov 21, 2026"),
            QStringLiteral("11:59 PM")};
        row("en_US.UTF-8", english, Qt::Sunday);
        row("no such locale", english, Qt::Sunday);
        row("de_DE.UTF-8",
            {QStringLiteral("12.345"), QStringLiteral("1,2\u00A0Mio."), QStringLiteral("0,25"),
             QStringLiteral("Nov"), QStringLiteral("November 2026"), QStringLiteral("21. Nov."),
             QStringLiteral("Sa"), QStringLiteral("Sa., 21. Nov. 2026"), QStringLiteral("23:59")},
            Qt::Monday);
    }

    void texts() {
        QFETCH(QByteArray, locale);
        QFETCH(QStringList, texts);
        QFETCH(Qt::DayOfWeek, firstWeekday);
        const LocaleLabels labels(locale.toStdString());
        const QDate day(2026, 11, 21);
        QCOMPARE(QStringList({labels.compactNumber(12'345), labels.compactNumber(1'234'567),
                              labels.number(0.25), labels.month(day), labels.monthAndYear(day),
                              labels.dayAndMonth(day), labels.weekday(day), labels.fullDay(day),
                              labels.timeOfDay(1439)}),
                 texts);
        QCOMPARE(labels.firstWeekday(), firstWeekday);
        QCOMPARE(labels.parseTimeOfDay(texts.back()), 1439);
    }

    void readsTimes() {
        const std::pair<const char*, std::optional<int>> rows[] = {{"00:00", 0},
                                                                   {" 9 ", 540},
                                                                   {"9:05", 545},
                                                                   {"0905", 545},
                                                                   {"14.30", 870},
                                                                   {"12 AM", 0},
                                                                   {"12:30pm", 750},
                                                                   {"1 p.m.", 780},
                                                                   {"24:00", {}},
                                                                   {"9:60", {}},
                                                                   {"13 pm", {}},
                                                                   {"0 am", {}},
                                                                   {"", {}},
                                                                   {"noon", {}},
                                                                   {"1:2:3", {}},
                                                                   {"99999999", {}},
                                                                   {"\u0669:\u0663\u0660", 570}};
        const LocaleLabels labels("en_US");
        for (const auto& [text, minutes] : rows) {
            QVERIFY2(labels.parseTimeOfDay(QString::fromUtf8(text)) == minutes, text);
        }
    }
};

TALLYVANE_TEST_MAIN(LocaleLabelsTest)
#include "locale_labels_test.moc"
