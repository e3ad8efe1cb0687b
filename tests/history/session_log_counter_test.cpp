#include "history/candidate_search.h"
#include "support/plain_session_log.h"
#include "support/test_main.h"

#include <QtCore/QRandomGenerator>

using namespace tallyvane;
using history::TokenSum;
using model::AIProvider;

namespace {

constexpr qint64 greatest = std::numeric_limits<qint64>::max();

QByteArray codexLine(const QByteArray& usage) {
    return R"({"type":"event_msg","payload":{"type":"token_count","info":{"total_token_usage":)" +
           usage + "}}}";
}

QByteArray total(const QByteArray& tokens) {
    return codexLine("{\"total_tokens\":" + tokens + "}");
}

QByteArray claudeLine(const QByteArray& tokens) {
    return R"({"message":{"usage":{"input_tokens":)" + tokens + R"(}},"type":"assistant"})";
}

} // namespace

class SessionLogCounterTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void counts() {
        using Rows =
            std::vector<std::pair<QByteArray, std::optional<qint64>>>; // nothing: not UTF-8
        // The member comes first, so that the whole line has to be read.
        const auto beside = [](const QByteArray& value) {
            return "{\"x\":" + value + "," + total("7").sliced(1);
        };
        Rows codexRows{
            {"", 0},
            {total("100") + '\n' + total("250") + '\n' + total("180"), 250},
            {codexLine(R"({"input_tokens":40,"output_tokens":10,"x":1})"), 50},
            {codexLine(R"({"total_tokens":"9","input_tokens":4})"), 4},
            // A later line counts less, and what the earlier one counts is not plain.
            {codexLine(R"({"input_tokens":5,"output_tokens":4})") + '\n' + total("8"), 9},
            {codexLine(R"({"total_tokens":3,"total_tokens":9})") + '\n' + total("8"), 9},
            {codexLine(R"({"total_tokens":3},"total_token_usage":{"total_tokens":9})") + '\n' +
                 total("8"),
             9},
            {codexLine(R"({"total_tokens":3},"total_tok\u0065n_usage":{"total_tokens":9})") + '\n' +
                 total("8"),
             9},
            {total("9e0") + '\n' + total("8"), 9},
            {total("9").replace("\":{", "\" :{") + '\n' + total("8"), 9},
            {total("9").chopped(2) + '\n' + total("8"), 8},
            {codexLine(R"({"total_tokens":true,"input_tokens":4})"), 1},
            {total("-5"), 0},
            {R"({"payload":{"type":"token_count","info":null}})", 0},
            {total("5").replace("token_count", "token_usage_record"), 0},
            {"{\"x\":\"\\\"token_count\\\"\"}\n" + total("5"), 5},
            {"[" + total("5") + "]\n1\n" + total("4") + "\nnull", 4},
            {total("9") + "\r\n" + total("4") + "\r\n", 0},
            {total("9").replace(":", ":\r\n") + "\r\n", 9},
            {total("9") + '\n' + total("4") + "\r\n" + total("5"), 9},
            {total("9") + '\r' + total("4") + '\n' + total("5"), 5},
            {"\xEF\xBB\xBF" + total("9") + '\n' + total("4"), 4},
            {total("9") + QByteArray(1, '\0') + '\n' + total("4"), 4},
            {total("9").replace("token_count", "\\u0074oken_count"), 9},
            {total("9").replace("n_c", "n\\u005Fc").replace("l_t", "l\\u005ft"), 9},
            {total("9").replace("token_count", "\\token_count"), 0},
            {total("9").chopped(1) + R"(,"p\u0061yload":1})", 0},
            {beside(QByteArray(50'000, '[') + QByteArray(50'000, ']')), 7},
            {beside('"' + QByteArray(3'000'000, 'x') + '"'), 7},
            {total("4") + "\n\xFF", {}},
            {total("4") + "\n\xED\xA0\x80", {}},
            {total("4") + "\n\xE2\x82", {}},
            {"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\n" + total("4"), 4}};
        for (const char* valid : {R"("\ud83d")", R"("\uDE00\ud83d")", R"("\ud83d\ude00")",
                                  "123456789012345678901234567890", "[1e999,-1E+999,1e-999]"}) {
            codexRows.emplace_back(beside(valid), 7);
        }
        for (const char* bad :
             {"01",         "1.",     ".5",      "+1",        "1e",          "-",    "truex",
              "NaN",        "\"\t\"", R"("\x")", R"("\u12")", R"("\u12g4")", "[1,]", "{\"a\"}",
              "{\"a\":1,}", "{1:1}",  "'a'",     "[1}",       "/**/1",       "1\f",  "\"",
              "[",          "",       "\"\\",    "\"\tnull",  "\"\\u12g41"}) {
            codexRows.emplace_back(beside(bad) + '\n' + total("4"), 4);
        }
        const std::pair<qint64, QByteArrayList> numbers[] = {
            {0,
             {"0.9999999999999999999999", "1e-99999999999999999999", "0e99999999999999999999",
              "-0"}},
            {10, {"0.00000000000000000001e+21"}},
            {12, {"12.9", "1250E-2"}},
            {15, {"1.5e1"}},
            {9007199254740993, {"9007199254740993.5"}},
            {greatest,
             {"9223372036854775807", "9223372036854775807.9", "922337203685477580700e-2"}}};
        for (const auto& [expected, texts] : numbers) {
            for (const QByteArray& number : texts) {
                codexRows.emplace_back(total(number), expected);
            }
        }
        Rows claudeRows{
            {claudeLine("3") + '\n' + claudeLine("3"), 6},
            {R"({"type":"assistant","message":{"usage":{"input_tokens":3,"output_tokens":50,)"
             R"("cache_creation_input_tokens":700,"cache_read_input_tokens":11000,"a":1}}})",
             11753},
            {claudeLine("3").replace("assistant", "user"), 0},
            {R"({"message":{"role":"assistant","usage":{"input_tokens":3}}})", 0},
            {claudeLine("null") + '\n' + claudeLine("\"5\"") + '\n' + claudeLine("4"), 4},
            {claudeLine("-9223372036854775808.5"), std::numeric_limits<qint64>::min()},
            {claudeLine("-3.7") + '\n' + claudeLine("5"), 2},
            {claudeLine("3").replace("assistant", "a\\u0073sist\\u0061nt"), 3},
            {claudeLine("3") + "\n\xFF\n" + claudeLine("4"), {}},
            {total("3"), 0}};
        for (const QByteArray beyond :
             {"9223372036854775808", "-9223372036854775809", "18446744073709551615",
              "123456789012345678901234567890.5", "-1e30", "1e400", "1e99999999999999999999",
              "9223372036854775808.0"}) {
            codexRows.emplace_back(codexLine(R"({"input_tokens":3,"total_tokens":)" + beyond +
                                             R"(,"output_tokens":)" + beyond + '}'),
                                   3);
            claudeRows.emplace_back(claudeLine(beyond) + '\n' + claudeLine("4"), 4);
        }
        history::SessionLogCounter counter;
        const auto check = [&](AIProvider provider, const Rows& rows) {
            for (const auto& [log, expected] : rows) {
                const QByteArray start = log.first(std::min<qsizetype>(log.size(), 300));
                const auto plain = tests::plainLogTokens(provider, log);
                QVERIFY2((plain ? std::optional(plain->value) : std::nullopt) == expected, start);
                for (const qsizetype blockSize : {1'000'000, 61, 1}) {
                    QVERIFY2((log.size() >= 100'000 && blockSize == 1) ||
                                 tests::tokensInBlocks(counter, provider, log, blockSize) == plain,
                             start);
                }
                const QByteArray whole = log + '\n'; // whose last line is counted with the others
                QVERIFY2(tests::tokensInBlocks(counter, provider, whole, 1'000'000) ==
                             tests::plainLogTokens(provider, whole),
                         start);
            }
        };
        check(AIProvider::codex, codexRows);
        check(AIProvider::claude, claudeRows);
    }

    void findsEveryCandidate() {
        const auto isCandidate = [](AIProvider provider, QByteArrayView rest) {
            const QByteArrayView word =
                provider == AIProvider::codex ? R"("token_count")" : R"("assistant")";
            return rest.startsWith(word) || (rest.startsWith("\\u00") && rest.size() > 4 &&
                                             rest[4] >= '4' && rest[4] <= '7');
        };
        const QByteArrayView pieces[] = {"\"token_count\"", "\"assistant\"", "\"token_coun",
                                         "\"token_cOunt\"", "\"assiztant\"", "\\u0074",
                                         "\\u005f",         "\\u0034",       "\\u001b",
                                         "\\u00",           "\"\\u\xC3\xA9"};
        QRandomGenerator random(1);
        for (int round = 0; round < 300; ++round) {
            QByteArray text;
            for (int i = random.bounded(12); i > 0; --i) {
                text += pieces[random.bounded(static_cast<int>(std::size(pieces)))];
                text += QByteArray(random.bounded(70), 'x');
            }
            // What comes after the end is no candidate.
            const QByteArray padded = text + QByteArray(R"("token_count""assistant")")
                                                 .repeated(history::searchOverrun)
                                                 .first(history::searchOverrun);
            for (const AIProvider provider : {AIProvider::codex, AIProvider::claude}) {
                qsizetype expected = 0;
                while (expected < text.size() &&
                       !isCandidate(provider, QByteArrayView(padded).sliced(expected))) {
                    ++expected;
                }
                for (const history::CandidateSearch find : history::candidateSearches(provider)) {
                    const char* end = padded.constData() + text.size();
                    QCOMPARE(find(padded.constData(), end) - padded.constData(), expected);
                }
            }
        }
    }

    void reportsOverflow() {
        history::SessionLogCounter counter;
        const QByteArray most = QByteArray::number(greatest);
        const auto counted = [&](AIProvider provider, const QByteArray& log) {
            return *tests::tokensInBlocks(counter, provider, log, 1000);
        };
        QVERIFY(counted(AIProvider::claude, claudeLine(most)) == TokenSum{.value = greatest});
        QVERIFY(counted(AIProvider::claude, claudeLine(most) + '\n' + claudeLine("1")).isOverflown);
        QVERIFY(counted(AIProvider::codex,
                        codexLine(R"({"output_tokens":1,"input_tokens":)" + most + "}"))
                    .isOverflown);
    }
};

TALLYVANE_TEST(SessionLogCounterTest)
#include "session_log_counter_test.moc"
