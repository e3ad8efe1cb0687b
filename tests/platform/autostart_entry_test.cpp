#include "model/file_io.h"
#include "platform/linux/autostart_entry.h"
#include "support/home_files.h"
#include "support/test_main.h"

using namespace tallyvane;
using platform::AutostartEntry;
using platform::LoginItemStatus;

namespace {

/// The folders of a user and of the system, with a program in a folder of $PATH.
struct Desk {
    explicit Desk(const char* programName = "tally vane") {
        places.program = root / "bin" / programName;
        tests::writeFile(QFile(places.program).fileName(), {});
    }

    /// Writes an entry in which BIN stands for the program's folder.
    void write(const std::filesystem::path& directory, QByteArray text) const {
        text.replace("BIN", bin());
        tests::writeFile(QFile(directory / "org.corvelle.Tallyvane.desktop").fileName(), text);
    }
    [[nodiscard]] QByteArray bin() const { return QFile(root / "bin").fileName().toUtf8(); }

    [[nodiscard]] AutostartEntry entry() const { return AutostartEntry(places); }
    [[nodiscard]] LoginItemStatus status() const { return entry().status(); }
    [[nodiscard]] std::filesystem::path userFile() const {
        return places.userDirectory / "org.corvelle.Tallyvane.desktop";
    }

    QTemporaryDir directory;
    std::filesystem::path root{directory.path().toStdString()};
    platform::AutostartPlaces places{
        .userDirectory = root / "config" / "autostart",
        .systemDirectories = {root / "xdg1" / "autostart", root / "xdg2" / "autostart"},
        .searchPath = {QString::fromUtf8(bin())}};
};

} // namespace

class AutostartEntryTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void reads() {
        using enum LoginItemStatus;
        const std::pair<QByteArray, LoginItemStatus> rows[] = {
            {"Exec=\"BIN/tally vane\" --background\n", enabled},
            {"# Hidden=true\n\n Exec = \"tally vane\" \r\n", enabled},
            {"Exec=\"BIN/tally\\svane\"\n", enabled},
            {"Hidden=false\nExec=\"tally vane\"\n", enabled},
            {"Hidden=true\nExec=\"tally vane\"\n", requiresApproval},
            {"Exec=\"tally vane\"\nHidden=1\n", requiresApproval}, // by an old program
            {"Hidden=false\nHidden=true\nExec=\"tally vane\"\n", requiresApproval},
            {"X-GNOME-Autostart-enabled=true\nExec=\"tally vane\"\n", enabled},
            {"Exec=\"tally vane\"\nX-GNOME-Autostart-enabled=false\n", requiresApproval},
            {"Exec=\"tally vane\"\n[Desktop Action x]\nHidden=true\n", enabled},
            {"Exec=BIN/tally\n", notFound},
            {"Exec=BIN\n", notFound}, // a folder
            {"TryExec=BIN/tally vane\nExec=\"tally vane\"\n", enabled},
            {"TryExec=absent\nExec=\"tally vane\"\n", notFound},
            {"", notFound},
        };
        const Desk desk;
        QCOMPARE(desk.status(), notRegistered);
        for (const auto& [lines, expected] : rows) {
            desk.write(desk.places.userDirectory, "[Desktop Entry]\n" + lines);
            QVERIFY2(desk.status() == expected, lines);
        }
    }

    void quotesEveryName() {
        const std::pair<const char*, const char*> rows[] = {
            {"tally vane", "tally vane"}, {"100%d", "100%%d"}, {"a\"b`c$d", "a\\\\\"b\\\\`c\\\\$d"},
            {"a\\b", "a\\\\\\\\b"},       {"a\nb", "a\\nb"},   {"caf\xc3\xa9", "caf\xc3\xa9"},
        };
        for (const auto& [name, quoted] : rows) {
            const Desk desk(name);
            QVERIFY(desk.entry().enable());
            const QByteArray text = *model::readFile(desk.userFile(), 9999);
            const QByteArray exec = "\nExec=\"" + desk.bin() + '/' + quoted + "\" --background\n";
            QVERIFY2(text.contains(exec), text.constData());
            QCOMPARE(desk.status(), LoginItemStatus::enabled);
        }
    }

    void changesOnlyTheUsersFile() {
        const Desk desk;
        QVERIFY(desk.entry().enable());
        QCOMPARE(desk.status(), LoginItemStatus::enabled);
        const auto permissions = std::filesystem::status(desk.userFile()).permissions();
        QVERIFY((permissions & ~std::filesystem::perms::owner_all) == std::filesystem::perms::none);
        QVERIFY(desk.entry().disable());
        QVERIFY(!std::filesystem::exists(desk.userFile()));
        QVERIFY(desk.entry().disable()); // already gone

        desk.write(desk.places.systemDirectories[1], "[Desktop Entry]\nExec=\"tally vane\"\n");
        QCOMPARE(desk.status(), LoginItemStatus::enabled);
        QVERIFY(desk.entry().disable());
        QCOMPARE(desk.status(), LoginItemStatus::requiresApproval);
        QVERIFY(desk.entry().enable());
        QCOMPARE(desk.status(), LoginItemStatus::enabled);
        std::filesystem::remove(desk.userFile());
        desk.write(desk.places.systemDirectories[0], "[Desktop Entry]\nHidden=true\n");
        QCOMPARE(desk.status(), LoginItemStatus::requiresApproval);
    }

    void namesTheFileThatFailed() {
        const Desk desk;
        std::filesystem::create_directories(desk.userFile() / "obstacle");
        for (const auto& result : {desk.entry().enable(), desk.entry().disable()}) {
            QVERIFY(!result);
            QVERIFY2(result.error().contains(QFile(desk.userFile()).fileName()),
                     qPrintable(result.error()));
        }
    }
};

TALLYVANE_TEST(AutostartEntryTest)
#include "autostart_entry_test.moc"
