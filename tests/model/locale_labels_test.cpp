#include "model/locale_labels.h"
#include "support/home_files.h"
#include "support/test_main.h"

#include <unicode/locid.h>

using tallyvane::model::LocaleLabels;

class LocaleLabelsTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

    static QStringList texts(const LocaleLabels& labels) {
        const QDate day(2026, 11, 21);
        const auto time = std::chrono::local_days{std::chrono::year{2026} / 11 / 21};
        return {labels.compactNumber(12'345),
                labels.compactNumber(1'234'567),
                labels.number(0.25),
                labels.month(day),
                labels.monthAndYear(day),
                labels.dayAndMonth(day),
                labels.weekday(day),
                labels.fullDay(day),
                labels.weekdayAndTime(time + std::chrono::hours{23}),
                labels.timeOfDay(1439)};
    }

private Q_SLOTS:
    /// ICU must not fall back to this locale.
    void initTestCase() {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale::setDefault(icu::Locale::getGermany(), status);
    }

    void formats() {
        const auto check = [](const char* locale, const char* expected, Qt::DayOfWeek first) {
            const LocaleLabels labels(locale);
            QCOMPARE(texts(labels).join(u'|'), QString::fromUtf8(expected));
            QCOMPARE(labels.firstWeekday(), first);
            QCOMPARE(labels.parseTimeOfDay(texts(labels).back()), 1439);
        };
        for (const char* english :
             {"en_US.UTF-8", "no such locale", "", ".UTF-8", "@latin", "_DE", "/../de", "\xff"}) {
            check(english,
                  "12K|1.2M|0.25|Nov|November 2026|Nov 21|Sat|Sat, Nov 21, 2026|Sat 11:00 PM|"
                  "11:59 PM",
                  Qt::Sunday);
        }
        for (const char* unknown : {"C", "POSIX", "C.UTF-8", "xx", "zz_ZZ@euro", "tlh"}) {
            check(unknown,
                  "12K|1.2M|0.25|Nov|November 2026|Nov 21|Sat|Sat, Nov 21, 2026|Sat 23:00|23:59",
                  Qt::Monday);
        }
        check("de_DE.UTF-8",
              "12.345|1,2\u00A0Mio.|0,25|Nov|November 2026|21. Nov.|Sa|Sa., 21. Nov. 2026|"
              "Sa., 23:00|23:59",
              Qt::Monday);
    }

    void modifiers() {
        const std::pair<const char*, const char*> rows[] = {
            {"sr_RS.UTF-8", "суб 23:00"},
            {"sr_RS@latin", "sub 23:00"},
            {"uz_UZ@cyrillic", "шан, 23:00"},
            {"sd_IN@devanagari", "छंछ 11:00"}, // ICU 78 has another word for the afternoon
            {"de@numbers=xyz;calendar=buddhist", "Sa., 23:00"},
            {"aa_ER@saaho", "Sat 11:00 pm"}};
        for (const auto& [name, text] : rows) {
            const QString label = texts(LocaleLabels(name))[8];
            QVERIFY2(label.startsWith(QString::fromUtf8(text)), qUtf8Printable(label));
        }
    }

    /// The C library's locales, and malformed names.
    void supportsEveryName() {
        QList<QByteArray> names =
            tallyvane::tests::readFile(QStringLiteral(TALLYVANE_TEST_DATA "/locale-names"))
                .split('\n');
        QCOMPARE(names.size(), 501);
        names << "de_DE@" + QByteArray(10'000, 'x') << QByteArray("de_").repeated(40)
              << QByteArray("de\0y", 4);
        for (const QByteArray& name : std::as_const(names)) {
            const LocaleLabels labels(name.toStdString());
            const Qt::DayOfWeek first = labels.firstWeekday();
            QVERIFY2(first >= Qt::Monday && first <= Qt::Sunday, name);
            QVERIFY2(!texts(labels).contains(QString()), name);
            for (const int minutes : {0, 719, 720, 1439}) {
                QVERIFY2(labels.parseTimeOfDay(labels.timeOfDay(minutes)) == minutes, name);
            }
        }
    }

    void readsTimes() {
        const std::pair<const char*, std::optional<int>> rows[] = {{"00:00", 0},
                                                                   {" 9 ", 540},
                                                                   {"14.30", 870},
                                                                   {"0905", 545},
                                                                   {"12 AM", 0},
                                                                   {"12:30pm", 750},
                                                                   {"1 p.m.", 780},
                                                                   {"24:00", {}},
                                                                   {"9:60", {}},
                                                                   {"9:99999999999", {}},
                                                                   {"13 pm", {}},
                                                                   {"0 am", {}},
                                                                   {"", {}},
                                                                   {"1:2:3", {}},
                                                                   {"\u0669:\u0663\u0660", 570}};
        const LocaleLabels labels("en_US");
        for (const auto& [text, minutes] : rows) {
            QVERIFY2(labels.parseTimeOfDay(QString::fromUtf8(text)) == minutes, text);
        }
    }
};

TALLYVANE_TEST(LocaleLabelsTest)
#include "locale_labels_test.moc"
