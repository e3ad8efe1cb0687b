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
    /// What ICU would write in where it has no texts of a language.
    void initTestCase() {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale::setDefault(icu::Locale::getGermany(), status);
    }

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
            QStringLiteral("Sat 11:00 PM"),  QStringLiteral("11:59 PM")};
        row("en_US.UTF-8", english, Qt::Sunday);
        for (const char* noName :
             {"no such locale", "", ".UTF-8", "@latin", "_DE", "/../de", "\xff"}) {
            row(noName, english, Qt::Sunday);
        }
        QStringList withoutHalves = english;
        withoutHalves[8] = QStringLiteral("Sat 23:00");
        withoutHalves[9] = QStringLiteral("23:59");
        for (const char* unknown : {"C", "POSIX", "C.UTF-8", "xx", "zz_ZZ@euro", "tlh"}) {
            row(unknown, withoutHalves, Qt::Monday);
        }
        row("de_DE.UTF-8",
            {QStringLiteral("12.345"), QStringLiteral("1,2\u00A0Mio."), QStringLiteral("0,25"),
             QStringLiteral("Nov"), QStringLiteral("November 2026"), QStringLiteral("21. Nov."),
             QStringLiteral("Sa"), QStringLiteral("Sa., 21. Nov. 2026"),
             QStringLiteral("Sa., 23:00"), QStringLiteral("23:59")},
            Qt::Monday);
    }

    void texts() {
        QFETCH(QByteArray, locale);
        QFETCH(QStringList, texts);
        QFETCH(Qt::DayOfWeek, firstWeekday);
        const LocaleLabels labels(locale.toStdString());
        QCOMPARE(LocaleLabelsTest::texts(labels), texts);
        QCOMPARE(labels.firstWeekday(), firstWeekday);
        QCOMPARE(labels.parseTimeOfDay(texts.back()), 1439);
    }

    void modifiers() {
        const std::pair<const char*, const char*> rows[] = {
            {"sr_RS.UTF-8", "суб 23:00"},
            {"sr_RS@latin", "sub 23:00"},
            {"uz_UZ@cyrillic", "шан, 23:00"},
            {"sd_IN@devanagari", "छंछ 11:00 शाम जा"},
            {"be_BY@latin", "сб 23:00"},
            {"ca_ES@valencia", "ds. 23:00"},
            {"de_DE@euro", "Sa., 23:00"},
            {"de_DE.UTF-8@@", "Sa., 23:00"},
            {"de@numbers=xyz;calendar=buddhist", "Sa., 23:00"},
            {"de-DE-u-nu-xyz-ca-buddhist", "Sa., 23:00"},
            {"aa_ER@saaho", "Sat 11:00 pm"},
            {"wa_BE@euro", "Sat 23:00"}};
        for (const auto& [name, text] : rows) {
            QCOMPARE(std::pair(name, texts(LocaleLabels(name))[8]),
                     std::pair(name, QString::fromUtf8(text)));
        }
    }

    /// Those of the C library, and odd ones.
    void writesInEvery() {
        QList<QByteArray> names =
            tallyvane::tests::readFile(QStringLiteral(TALLYVANE_TEST_DATA "/locale-names"))
                .split('\n');
        QCOMPARE(names.size(), 501);
        for (const char* start : {"", "de", "de_", "de_DE_", "de_DE.", "de_DE@", "a_b@", "\xc3"}) {
            names << start + QByteArray(10'000, 'x') << start + QByteArray(80, '_')
                  << start + QByteArray("a_").repeated(40) << start + QByteArray("\0y", 2);
        }
        QStringList misread;
        for (const QByteArray& name : std::as_const(names)) {
            const LocaleLabels labels(name.toStdString());
            QVERIFY2(!texts(labels).contains(QString()), name);
            QVERIFY2(labels.firstWeekday() >= Qt::Monday && labels.firstWeekday() <= Qt::Sunday,
                     name);
            for (const int minutes : {0, 719, 720, 1439}) {
                if (labels.parseTimeOfDay(labels.timeOfDay(minutes)) != minutes) {
                    misread << QString::fromUtf8(name) + u' ' + labels.timeOfDay(minutes);
                }
            }
        }
        QVERIFY2(misread.isEmpty(), qPrintable(misread.join(u'\n')));
    }

    void readsTimes() {
        const std::pair<const char*, std::optional<int>> rows[] = {
            {"00:00", 0},          {" 9 ", 540},
            {"9:05", 545},         {"0905", 545},
            {"14.30", 870},        {"12 AM", 0},
            {"12:30pm", 750},      {"1 p.m.", 780},
            {"24:00", {}},         {"9:60", {}},
            {"9:99999999999", {}}, {"13 pm", {}},
            {"0 am", {}},          {"", {}},
            {"noon", {}},          {"1:2:3", {}},
            {"99999999", {}},      {"\u0669:\u0663\u0660", 570}};
        const LocaleLabels labels("en_US");
        for (const auto& [text, minutes] : rows) {
            QVERIFY2(labels.parseTimeOfDay(QString::fromUtf8(text)) == minutes, text);
        }
    }
};

TALLYVANE_TEST_MAIN(LocaleLabelsTest)
#include "locale_labels_test.moc"
