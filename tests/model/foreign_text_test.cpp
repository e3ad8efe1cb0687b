#include "model/foreign_text.h"
#include "support/test_main.h"

using namespace tallyvane;

class ForeignTextTest final : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void sanitises() {
        for (const QStringView text :
             {u"", u" two\nlines  \n", u"été نص می\u200Cخواهم क्\u200Dष 日本語",
              u"a\u200Eb\u200F\u061C", u"👩\u200D👩\u200D👧 ❤\uFE0F 🇫🇷", u"\u0601١٢"}) {
            QCOMPARE(model::readableText(text), text.toString());
        }
        const std::pair<QStringView, QStringView> rows[] = {
            {u"a\tb\r\nc\rd\u2028e\u2029f\r", u"a b\nc d\ne\nf "},
            {QStringView(u"a\0b\ac\x7F"
                         u"d\u0085\u008Ae\v",
                         11),
             u"abcde"},
            {u"a\u202Ab\u202Bc\u202Cd\u202De\u202Ef\u2066g\u2067h\u2068i\u2069j", u"abcdefghij"},
            {u"a\u200Bb\u2060c\u00ADd\uFEFFe\uFFF9f\uFFFBg\uFFFCh\U000E0041\U000E0101",
             u"abcdefgh"},
            {QStringView(u"a\xD83D"
                         u"b\xDE00"
                         u"c\xFFFF\xFDD0\xD83F\xDFFF",
                         9),
             u"abc"},
            // Removing a sequence must not join the halves of a pair.
            {QStringView(u"\xD83D\x1B[m\xDE00", 5), u""},
            {u"\x1B[1;38:5:9mbad\x1B[0m \u009B31mworse\u009Bm", u"bad worse"},
            {u"a\x1B[2J\x1B[1;1H\x1B[?25l\x1B[!pb", u"ab"},
            {u"a\x1B]0;title\ab\x1B]2;title\x1B\\c\u009D2;title\u009Cd", u"abcd"},
            {u"\x1B]8;;https://x.example\x1B\\text\x1B]8;;\x1B\\", u"text"},
            {u"a\x1BPq#1~\x1B\\b\x1BXs\x1B\\c\x1B^p\x1B\\d\x1B_g\x1B\\e\u0090q\u009Cf", u"abcdef"},
            {u"a\x1B"
             u"7b\x1B"
             u"cc\x1B(Bd\x1B=e\x1B#8f",
             u"abcdef"},
            {u"a\x1B[1;\nb\x1B]0;c\nd\x1B", u"a\nb0;c\nd"},
            {u"\x1B\x1B[31m[31ma\x1B[\x1B[31m31mb", u"[31ma31mb"},
            // UTF-8 decoded as Latin-1
            {u"â\u0080\u009Cwords\u00E2\u0080\u009D no more", u"âwordsâ no more"}};
        for (const auto& [foreign, expected] : rows) {
            QCOMPARE(model::readableText(foreign), expected.toString());
            QCOMPARE(model::readableText(expected), expected.toString());
        }
        QCOMPARE(model::readableLine(u"a\r\nb\tc\n"), QStringLiteral("a b c "));
    }

    void cuts() {
        const std::pair<QString, const char16_t*> rows[] = {
            {QStringLiteral("exactly sixteen!"), u"exactly sixteen!"},
            {QStringLiteral("seventeen letters"), u"seventee … (cut)"},
            {QStringLiteral("1234567😀90123456"), u"1234567 … (cut)"},
            {QStringLiteral("123456\u0D1C😀90123456"), u"123456\u0D1C … (cut)"},
            {QStringLiteral("1234567e\u0301\u0301 0123456"), u"1234567 … (cut)"},
            {QStringLiteral("1234👩\u200D👩\u200D👧6789012"), u"1234 … (cut)"},
            {QStringLiteral("e") + QString(20, QChar(0x301)), u" … (cut)"},
            {QStringLiteral("ab") + QString(1000, QChar(0x200B)) + QStringLiteral("cd"),
             u"ab … (cut)"}};
        for (const auto& [foreign, expected] : rows) {
            QCOMPARE(model::readableText(foreign, 16), QString::fromUtf16(expected));
        }
    }

    /// Any scan to an end or back to a start at every character would make this quadratic.
    void readsLittleOfAHugeText() {
        const QString mark = QStringLiteral(" … (cut)");
        for (const QString& part :
             {QStringLiteral("x"), QStringLiteral("\x1B]"), QStringLiteral("\u009D"),
              QStringLiteral("\x1B["), QStringLiteral("e\u0301"), QStringLiteral("\u200B")}) {
            const QString readable = model::readableText(part.repeated(8'000'000 / part.size()));
            QVERIFY(readable.endsWith(mark));
            QVERIFY(readable.size() <= 4096);
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
            QCOMPARE(model::maskedAddresses(QString::fromUtf8(text)), QString::fromUtf8(expected));
        }
    }
};

TALLYVANE_TEST(ForeignTextTest)
#include "foreign_text_test.moc"
