#include "app/command_line.h"
#include "app/environment.h"
#include "support/test_main.h"

using namespace Qt::StringLiterals;
using namespace tallyvane::app;
using tallyvane::model::AIProvider;

class CommandLineTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

    static auto parse(const char* arguments) {
        return parseCommandLine(QString::fromLatin1("tallyvane ")
                                    .append(QLatin1String(arguments))
                                    .split(u' ', Qt::SkipEmptyParts));
    }

private Q_SLOTS:
    void understands() {
        const std::pair<const char*, CommandLine> rows[] = {
            {"", {}},
            {"status --json", {Command::status, OutputFormat::json}},
            {"pace --json", {Command::pace, OutputFormat::json}},
            {"--waybar status", {Command::status, OutputFormat::waybar}},
            {"status --format={x} --below 5",
             {Command::status, OutputFormat::fields, {.below = 5, .format = u"{x}"_s}}},
            {"status --provider claude --waybar",
             {Command::status, OutputFormat::waybar, {AIProvider::claude}}},
            {"history --csv --since 2026-01-31 --provider codex",
             {.command = Command::history,
              .outputFormat = OutputFormat::csv,
              .history = {AIProvider::codex, QDate(2026, 1, 31)}}},
            {"--background", {.startMode = StartMode::background}},
            {"status -h", {.command = Command::help}}};
        for (const auto& [arguments, expected] : rows) {
            QVERIFY2(parse(arguments) == expected, arguments);
        }
    }

    void refuses() {
        const std::pair<const char*, const char*> rows[] = {
            {"--colour", "colour"},
            {"statuses", "statuses"},
            {"refresh status", "status"},
            {"refresh --background", "background"},
            {"config --json", "status"},
            {"--waybar", "status"},
            {"status --json --waybar", "exclude"},
            {"status --waybar --format x", "exclude"},
            {"status --json --provider codex", "exclude"},
            {"status --provider Codex", "'Codex'"},
            {"status --below 101", "'101'"},
            {"status --below -1", "'-1'"},
            {"status --below", "below"},
            {"refresh --provider codex", "with status, history"},
            {"history --csv --json", "exclude"},
            {"history --json --since 2026-01-31", "exclude"},
            {"history --since 2026-02-29", "'2026-02-29'"},
            {"history --since 2026-01-31T", "'2026-01-31T'"},
            {"history --provider gemini", "'gemini'"},
            {"status --csv", "with history"},
            {"status --json=1", "json"}};
        for (const auto& [arguments, error] : rows) {
            const auto parsed = parse(arguments);
            QVERIFY2(!parsed && parsed.error().contains(QLatin1String(error)), arguments);
            QVERIFY2(!parsed.error().contains(u'\n'), arguments);
        }
    }

    void readsTheEnvironment() {
        using Paths = std::vector<std::filesystem::path>;
        qputenv("XDG_CONFIG_DIRS", "relative:/one:/two");
        QVERIFY((readEnvironment().systemConfigDirectories == Paths{"/one", "/two"}));
        qunsetenv("XDG_CONFIG_DIRS");
        QVERIFY(readEnvironment().systemConfigDirectories == Paths{"/etc/xdg"});
    }
};

TALLYVANE_TEST(CommandLineTest)
#include "command_line_test.moc"
