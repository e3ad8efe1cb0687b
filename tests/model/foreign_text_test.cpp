#include "model/foreign_text.h"
#include "support/test_main.h"

using namespace tallyvane;

class ForeignTextTest final : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void isMadeReadable_data() {
        QTest::addColumn<QString>("foreign");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, QStringView foreign, QStringView expected) {
            QTest::newRow(name) << foreign.toString() << expected.toString();
        };
        const auto stays = [&](const char* name, QStringView text) { row(name, text, text); };

        stays("empty", u"");
        stays("lines", u" two\nlines  \n");
        stays("languages", u"été نص می\u200Cخواهم क्\u200Dष 日本語");
        stays("direction marks", u"a\u200Eb\u200F\u061C");
        stays("emoji", u"👩\u200D👩\u200D👧 ❤\uFE0F 🇫🇷");
        stays("signs before numbers", u"\u0601١٢");

        row("tabs and line ends", u"a\tb\r\nc\rd\u2028e\u2029f\r", u"a b\nc d\ne\nf ");
        row("control characters",
            QStringView(u"a\0b\ac\x7F"
                        u"d\u0085\u008Ae\v",
                        11),
            u"abcde");
        row("directions", u"a\u202Ab\u202Bc\u202Cd\u202De\u202Ef\u2066g\u2067h\u2068i\u2069j",
            u"abcdefghij");
        row("never seen", u"a\u200Bb\u2060c\u00ADd\uFEFFe\uFFF9f\uFFFBg\uFFFCh\U000E0041\U000E0101",
            u"abcdefgh");
        row("no characters",
            QStringView(u"a\xD83D"
                        u"b\xDE00"
                        u"c\xFFFF\xFDD0\xD83F\xDFFF",
                        9),
            u"abc");
        row("halves do not find each other", QStringView(u"\xD83D\x1B[m\xDE00", 5), u"");

        row("colours", u"\x1B[1;38:5:9mbad\x1B[0m \u009B31mworse\u009Bm", u"bad worse");
        row("cursor", u"a\x1B[2J\x1B[1;1H\x1B[?25l\x1B[!pb", u"ab");
        row("title", u"a\x1B]0;title\ab\x1B]2;title\x1B\\c\u009D2;title\u009Cd", u"abcd");
        row("link", u"\x1B]8;;https://x.example\x1B\\text\x1B]8;;\x1B\\", u"text");
        row("strings", u"a\x1BPq#1~\x1B\\b\x1BXs\x1B\\c\x1B^p\x1B\\d\x1B_g\x1B\\e\u0090q\u009Cf",
            u"abcdef");
        row("two bytes",
            u"a\x1B"
            u"7b\x1B"
            u"cc\x1B(Bd\x1B=e\x1B#8f",
            u"abcdef");
        row("broken off", u"a\x1B[1;\nb\x1B]0;c\nd\x1B", u"a\nb0;c\nd");
        row("within each other", u"\x1B\x1B[31m[31ma\x1B[\x1B[31m31mb", u"[31ma31mb");
        row("read as Latin-1", u"â\u0080\u009Cwords\u00E2\u0080\u009D no more", u"âwordsâ no more");
    }

    void isMadeReadable() {
        QFETCH(QString, foreign);
        const QString readable = model::readableText(foreign);
        QTEST(readable, "expected");
        QCOMPARE(model::readableText(readable), readable);
    }

    void isCut_data() {
        QTest::addColumn<QString>("foreign");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, const QString& foreign, const char16_t* expected) {
            QTest::newRow(name) << foreign << QString::fromUtf16(expected);
        };
        row("as long as may be", QStringLiteral("exactly sixteen!"), u"exactly sixteen!");
        row("too long", QStringLiteral("seventeen letters"), u"seventee … (cut)");
        row("within a pair", QStringLiteral("1234567😀90123456"), u"1234567 … (cut)");
        row("within a pair after Malayalam", QStringLiteral("123456\u0D1C😀90123456"),
            u"123456\u0D1C … (cut)");
        row("within an accent", QStringLiteral("1234567e\u0301\u0301 0123456"), u"1234567 … (cut)");
        row("within a family", QStringLiteral("1234👩\u200D👩\u200D👧6789012"), u"1234 … (cut)");
        row("one endless character", QStringLiteral("e") + QString(20, QChar(0x301)), u" … (cut)");
        row("little to see",
            QStringLiteral("ab") + QString(1000, QChar(0x200B)) + QStringLiteral("cd"),
            u"ab … (cut)");
    }

    void isCut() {
        QFETCH(QString, foreign);
        QTEST(model::readableText(foreign, 16), "expected");
    }

    /// Each of these is a trap for what walks back, or on to an end, at every character.
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

    void isOneLine() { QCOMPARE(model::readableLine(u"a\r\nb\tc\n"), QStringLiteral("a b c ")); }

    void masksAddresses_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* text, const char* expected) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(expected);
        };
        row("for john.doe+x@mail.example.com.", "for (e-mail address).");
        row("a@b.c,d@e.f;<g@h.i>\n\"j@k\"",
            "(e-mail address),(e-mail address);<(e-mail address)>\n\"(e-mail address)\"");
        row("a@b\u2026c@d", "(e-mail address)(e-mail address)");
        row("mailto:O'Brien@example.org?x", "mailto:(e-mail address)?x");
        row("'jürgen@müller.example'", "'(e-mail address)'");
        row("?user=a_b%40example.com&x", "?user=(e-mail address)&x");
        row("https://me@host/path", "https://(e-mail address)/path");
        row("@openai/codex@0.169.0 at @ home", "@openai/codex@0.169.0 at @ home");
    }

    void masksAddresses() {
        QFETCH(QString, text);
        QTEST(model::maskedAddresses(text), "expected");
    }
};

TALLYVANE_TEST_MAIN(ForeignTextTest)
#include "foreign_text_test.moc"
