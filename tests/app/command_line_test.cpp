#include "app/command_line.h"
#include "support/test_main.h"

using namespace tallyvane::app;

class CommandLineTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void parses_data() {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<CommandLine>("expected");
        QTest::addColumn<QString>("error"); // a part of it; empty: understood
        const auto understood = [](const char* arguments, CommandLine expected) {
            QTest::newRow(arguments) << QString::fromLatin1(arguments) << expected << QString();
        };
        const auto refused = [](const char* arguments, const char* error) {
            QTest::newRow(arguments)
                << QString::fromLatin1(arguments) << CommandLine{} << QString::fromLatin1(error);
        };
        understood("", {});
        understood("status --json", {Command::status, OutputFormat::json});
        understood("--waybar status", {Command::status, OutputFormat::waybar});
        understood("--background", {.startMode = StartMode::background});
        understood("status -h", {.command = Command::help});
        refused("--colour", "colour");
        refused("statuses", "statuses");
        refused("refresh status", "status");
        refused("refresh --background", "background");
        refused("refresh --json", "status");
        refused("--waybar", "status");
        refused("status --json --waybar", "exclude");
        refused("status --json=1", "json");
    }

    void parses() {
        QFETCH(QString, arguments);
        QFETCH(CommandLine, expected);
        QFETCH(QString, error);
        const auto parsed = parseCommandLine(
            QStringLiteral("tallyvane ").append(arguments).split(u' ', Qt::SkipEmptyParts));
        QCOMPARE(parsed.has_value(), error.isEmpty());
        if (parsed) {
            QVERIFY(*parsed == expected);
        } else {
            QVERIFY2(parsed.error().contains(error), qPrintable(parsed.error()));
            QVERIFY(!parsed.error().contains(u'\n'));
        }
    }
};

TALLYVANE_TEST(CommandLineTest)
#include "command_line_test.moc"
