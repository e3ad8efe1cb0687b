#include "core/fixtures.h"
#include "model/message.h"
#include "model/quota_display.h"
#include "support/test_main.h"
#include "ui/translation/translation.h"

#include <QtCore/QLocale>
#include <QtCore/QTranslator>

using namespace tallyvane;
using namespace Qt::StringLiterals;

namespace {

/// Shows texts in the language that the user asks for by these names.
class Spoken {
public:
    explicit Spoken(const QStringList& languages)
        : locale(ui::loadTranslation(m_translator, languages)) {
        QLocale::setDefault(locale);
        QCoreApplication::installTranslator(&m_translator);
    }
    ~Spoken() { QLocale::setDefault(QLocale::c()); }

private:
    QTranslator m_translator;

public:
    const QLocale locale;
};

} // namespace

class TranslationTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void finds() {
        const auto check = [](const QStringList& languages, const char* locale, const char* text) {
            const Spoken spoken(languages);
            QCOMPARE(spoken.locale.name(), QLatin1StringView(locale));
            QCOMPARE(model::translated(u"Network error"_s), QString::fromUtf8(text));
        };
        check({}, "C", "Network error");
        check({u"he_IL.UTF-8"_s, u"zh_TW"_s, u"../de"_s, u"de/../de"_s, u""_s}, "C",
              "Network error");
        check({u"xx"_s, u"de_AT.UTF-8@euro"_s, u"fr"_s}, "de_AT", "Netzwerkfehler");
        check({u"fr"_s}, "fr_FR", "Erreur réseau");
        check({u"zh_CN.GB18030"_s}, "zh_CN", "网络错误");
    }

    void fillsIn() {
        const model::Message message("Could not save %1: %2.", {u"%2%L1"_s, u"it is locked"_s});
        QCOMPARE(message.text(), u"Could not save %2%L1: it is locked."_s);
        const model::Message minutes("It is asked again in about %1 minutes.", {u"12"_s});
        const Spoken german({u"de"_s});
        QVERIFY2(message.text().contains(u"%2%L1") && !message.text().contains(u"locked"),
                 qPrintable(message.text()));
        QCOMPARE(message.sourceText(), u"Could not save %2%L1: it is locked."_s);
        QCOMPARE(model::percentText(37), u"37\u00A0%"_s);
        const Spoken arabic({u"ar_EG.UTF-8"_s});
        QCOMPARE(model::percentText(37), u"٣٧٪"_s);
        QVERIFY2(minutes.text().contains(u"١٢"), qPrintable(minutes.text()));
        QVERIFY(minutes.sourceText().contains(u"12 minutes"));
        QCOMPARE(arabic.locale.textDirection(), Qt::RightToLeft);
    }

    /// Whatever the figures, no text on a card or in the menu mixes digits of two scripts.
    void writesOneScript() {
        const Spoken arabic({u"ar_EG"_s});
        const model::Timestamp now{std::chrono::hours(1000)};
        QStringList texts{model::ageText(now - std::chrono::minutes(7), now),
                          model::ageText(now - std::chrono::hours(7), now),
                          model::ageText(now - std::chrono::days(700), now),
                          model::countdownText(std::chrono::minutes(7)),
                          model::countdownText(std::chrono::hours(7)),
                          model::countdownText(std::chrono::days(7))};
        texts +=
            model::summaryLines(core::fixtureSnapshot(now, model::LocalZone(QTimeZone::utc())));
        for (const QString& text : texts) {
            QVERIFY2(!text.contains(QRegularExpression(u"[0-9]"_s)), qPrintable(text));
        }
    }
};

TALLYVANE_TEST(TranslationTest)

#include "translation_test.moc"
