#include "model/foreign_text.h"
#include "support/test_main.h"

using namespace Qt::StringLiterals;
using namespace tallyvane::model;

class ForeignTextTest final : public tallyvane::tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void sanitises() {
        for (const QStringView text :
             {u"", u" two\nlines  \n", u"été نص می\u200Cخواهم क्\u200Dष 日本語",
              u"a\u200Eb\u200F\u061C", u"👩\u200D👩\u200D👧 ❤\uFE0F 🇫🇷", u"\u0601١٢"}) {
            QCOMPARE(readableText(text), text);
        }
        const std::pair<QString, QString> rows[] = {
            {u"a\tb\r\nc\rd\u2028e\u2029f\r"_s, u"a b\nc d\ne\nf "_s},
            {u"a\0b\ac\x7F!\u0085\u008Ae\v"_s, u"abc!e"_s},
            {u"a\u202Ab\u202Bc\u202Cd\u202De\u202Ef\u2066g\u2067h\u2068i\u2069j"_s,
             u"abcdefghij"_s},
            {u"a\u200Bb\u2060c\u00ADd\uFEFFe\uFFF9f\uFFFBg\uFFFCh\U000E0041\U000E0101"_s,
             u"abcdefgh"_s},
            {u"x\xD83Dy\xDE00z\xFFFF\xFDD0\xD83F\xDFFF"_s, u"xyz"_s},
            // Removing a sequence must not join the halves of a pair.
            {u"\xD83D\x1B[m\xDE00"_s, u""_s},
            {u"\x1B[1;38:5:9mbad\x1B[0m \u009B31mworse\u009Bm"_s, u"bad worse"_s},
            {u"a\x1B]0;title\ab\x1B]2;title\x1B\\c\u009D2;title\u009Cd"_s, u"abcd"_s},
            {u"a\x1BPq#1~\x1B\\b\x1BXs\x1B\\c\x1B^p\x1B\\d\x1B_g\x1B\\e\u0090q\u009Cf"_s,
             u"abcdef"_s},
            {u"a\u001B7b\u001Bcc\x1B(Bd\x1B=e\x1B#8f"_s, u"abcdef"_s},
            {u"a\x1B[1;\nb\x1B]0;c\nd\x1B"_s, u"a\nb0;c\nd"_s},
            {u"\x1B\x1B[31m[31ma\x1B[\x1B[31m31mb"_s, u"[31ma31mb"_s},
            // UTF-8 decoded as Latin-1
            {u"â\u0080\u009Cwords\u00E2\u0080\u009D no more"_s, u"âwordsâ no more"_s}};
        for (const auto& [foreign, expected] : rows) {
            QCOMPARE(readableText(foreign), expected);
            QCOMPARE(readableText(expected), expected);
        }
        QCOMPARE(readableLine(u"a\r\nb\tc\n"), u"a b c ");
    }

    void cuts() {
        const std::pair<QString, QString> rows[] = {
            {u"exactly sixteen!"_s, u"exactly sixteen!"_s},
            {u"seventeen letters"_s, u"seventee … (cut)"_s},
            {u"1234567😀90123456"_s, u"1234567 … (cut)"_s},
            {u"1234👩\u200D👩\u200D👧6789012"_s, u"1234 … (cut)"_s},
            {u'e' + QString(20, u'\u0301'), u" … (cut)"_s},
            {u"ab"_s + QString(1000, u'\u200B') + u"cd"_s, u"ab … (cut)"_s}};
        for (const auto& [foreign, expected] : rows) {
            QCOMPARE(readableText(foreign, 16), expected);
        }
        // Any scan to an end or back to a start at every character would make this quadratic.
        for (const QString& part :
             {u"x"_s, u"\x1B]"_s, u"\u009D"_s, u"\x1B["_s, u"e\u0301"_s, u"\u200B"_s}) {
            const QString readable = readableText(part.repeated(8'000'000 / part.size()));
            QVERIFY(readable.endsWith(u" … (cut)") && readable.size() <= 4096);
        }
    }

    void masksAddresses() {
        const std::pair<const char*, const char*> rows[] = {
            {"for john.doe+x@mail.example.com.", "for (e-mail address)."},
            {"a@b.c,d@e.f;<g@h.i>\n\"j@k\"",
             "(e-mail address),(e-mail address);<(e-mail address)>\n\"(e-mail address)\""},
            {"a@b\u2026c@d", "(e-mail address)(e-mail address)"},
            {"mailto:O'Brien@example.org?x", "mailto:(e-mail address)?x"},
            {"'jürgen@müller.example'", "'(e-mail address)'"},
            {"?user=a_b%40example.com&x", "?user=(e-mail address)&x"},
            {"https://me@host/path", "https://(e-mail address)/path"},
            {"@openai/codex@0.169.0 at @ home", "@openai/codex@0.169.0 at @ home"}};
        for (const auto& [text, expected] : rows) {
            QCOMPARE(maskedAddresses(QString::fromUtf8(text)), QString::fromUtf8(expected));
        }
    }
};

TALLYVANE_TEST(ForeignTextTest)
#include "foreign_text_test.moc"
