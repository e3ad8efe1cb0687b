#include "providers/response_collector.h"
#include "support/test_main.h"

using namespace tallyvane;
using providers::ResponseCollector;

class TestResponseCollector final : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    /// Whatever has not been decided by the chunks is decided by the time-out.
    void ends_data() {
        QTest::addColumn<QByteArrayList>("output");
        QTest::addColumn<QByteArrayList>("errors");
        QTest::addColumn<QString>("expected"); // member "r" of the reply, or the error's text

        const auto row = [](const char* name, const QByteArrayList& output,
                            const QByteArrayList& errors, const QString& expected) {
            QTest::newRow(name) << output << errors << expected;
        };
        const QString timedOut = QStringLiteral("Command timed out.");
        const QString found = QStringLiteral("found");
        const QByteArray reply = R"({"id":1,"r":"found"})"
                                 "\n";

        row("after another reply",
            {R"({"id":0,"r":"other"})"
             "\n" +
             reply},
            {}, found);
        row("split within the id", {R"({"r":"found","i)", R"(d":1)", "", "}\n"}, {}, found);
        row("amid noise", {"\n[1]\n1\n{\"id\":\n{}\n\xff\n" + reply}, {"warning\n"}, found);
        row("the first wins",
            {reply + R"({"id":1,"r":"late"})"
                     "\n",
             reply},
            {}, found);
        row("id 1.0",
            {R"({"id":1.0,"r":"found"})"
             "\r\n"},
            {}, found);
        row("id of other kinds",
            {R"({"id":"1"})"
             "\n"
             R"({"id":true})"
             "\n"
             R"({"id":1.5})"
             "\n"
             R"({"id":null})"
             "\n"},
            {}, timedOut);
        row("no newline at the end", {reply.chopped(1)}, {}, timedOut);
        row("a line at its limit",
            {QByteArray(ResponseCollector::maximumLineSize - reply.size() + 1, ' '), reply}, {},
            found);
        row("a line past its limit",
            {QByteArray(ResponseCollector::maximumLineSize - reply.size() + 2, ' '), reply}, {},
            timedOut);
        row("standard error", {}, {"  bo", "om \n"}, QStringLiteral("Command failed (-1): boom"));
        row("blank standard error", {}, {" \n"}, timedOut);
        row("coloured standard error", {}, {"\x1b[31mbo\x1b[1;4mom\x1b]0;x\a \n\x1b[0m\n"},
            QStringLiteral("Command failed (-1): boom"));
        row("nothing but colours on standard error", {}, {"\x1b[0m\n\x1b[K"}, timedOut);
        row("much standard error", {}, {"boom", QByteArray(1'000'000, 'm')},
            QStringLiteral("Command failed (-1): boom") + QString(4084, u'm') +
                QStringLiteral(" … (cut)"));
        row("standard error that is not text", {}, {"boom \xff\xfe boom"}, timedOut);
        row("long standard error, cut within a character", {},
            {QByteArray(ResponseCollector::maximumErrorSize - 5, ' '), "boom\xc3\xa9", "more"},
            QStringLiteral("Command failed (-1): boom"));
    }

    void ends() {
        QFETCH(QByteArrayList, output);
        QFETCH(QByteArrayList, errors);
        ResponseCollector collector;
        for (const QByteArray& chunk : errors) {
            collector.appendError(chunk);
        }
        for (const QByteArray& chunk : output) {
            collector.appendOutput(chunk);
        }
        collector.timeoutFired();
        const auto reply = collector.waitForResult().result();
        QTEST(reply ? (*reply)[QLatin1StringView{"r"}].toString() : description(reply.error()),
              "expected");
    }
};

TALLYVANE_TEST_MAIN(TestResponseCollector)
#include "response_collector_test.moc"
