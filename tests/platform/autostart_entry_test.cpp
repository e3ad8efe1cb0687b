#include "platform/linux/autostart_entry.h"
#include "support/home_files.h"
#include "support/test_main.h"

using namespace tallyvane;
using platform::AutostartEntry;

namespace {

/// The folders of a user and of the system, with a program in a folder of $PATH.
struct Desk {
    explicit Desk(const char* programName = "tally vane") {
        places.program = root / "bin" / programName;
        tests::writeFile(QFile(places.program).fileName(), {});
    }

    /// Writes an entry in which BIN stands for the program's folder.
    void write(const std::filesystem::path& directory, QByteArray lines) const {
        tests::writeFile(QFile(directory / "org.corvelle.Tallyvane.desktop").fileName(),
                         "[Desktop Entry]\n" + lines.replace("BIN", bin()));
    }
    [[nodiscard]] QByteArray bin() const { return QFile(root / "bin").fileName().toUtf8(); }
    [[nodiscard]] AutostartEntry entry() const { return AutostartEntry(places); }
    [[nodiscard]] platform::LoginItemStatus status() const { return entry().status(); }

    QTemporaryDir directory;
    std::filesystem::path root{directory.path().toStdString()};
    platform::AutostartPlaces places{.userDirectory = root / "autostart",
                                     .systemDirectories = {root / "xdg1", root / "xdg2"},
                                     .searchPath = {QString::fromUtf8(bin())}};
    QString userFile =
        directory.filePath(QStringLiteral("autostart/org.corvelle.Tallyvane.desktop"));
};

} // namespace

class AutostartEntryTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void reads() {
        using enum platform::LoginItemStatus;
        const std::pair<const char*, platform::LoginItemStatus> rows[] = {
            {"Exec=\"BIN/tally vane\" --background\n", enabled},
            {"# Hidden=true\n\n Exec = \"tally vane\" \r\n", enabled},
            {"Exec=\"BIN/tally\\svane\"\n", enabled},
            {"Hidden=false\nX-GNOME-Autostart-enabled=true\nExec=\"tally vane\"\n", enabled},
            {"Exec=\"tally vane\"\nHidden=1\n", requiresApproval}, // by an old program
            {"Hidden=false\nHidden=true\nExec=\"tally vane\"\n", requiresApproval},
            {"Exec=\"tally vane\"\nX-GNOME-Autostart-enabled=false\n", requiresApproval},
            {"Exec=\"tally vane\"\n[Desktop Action x]\nHidden=true\n", enabled},
            {"Exec=BIN/tally\n", notFound},
            {"TryExec=absent\nExec=\"tally vane\"\n", notFound},
            {"", notFound},
        };
        const Desk desk;
        QCOMPARE(desk.status(), notRegistered);
        for (const auto& [lines, expected] : rows) {
            desk.write(desk.places.userDirectory, lines);
            QVERIFY2(desk.status() == expected, lines);
        }
    }

    void quotesEveryName() {
        const std::pair<const char*, const char*> rows[] = {
            {"tally vane", "tally vane"}, {"100%d", "100%%d"}, {"a\"b`c$d", "a\\\\\"b\\\\`c\\\\$d"},
            {"a\\b", "a\\\\\\\\b"},       {"a\nb", "a\\nb"},   {"café", "café"},
        };
        for (const auto& [name, quoted] : rows) {
            const Desk desk(name);
            QVERIFY(desk.entry().enable());
            const QByteArray text = tests::readFile(desk.userFile);
            QVERIFY2(text.contains("\nExec=\"" + desk.bin() + '/' + quoted + "\" --background\n"),
                     text);
            QCOMPARE(desk.status(), platform::LoginItemStatus::enabled);
        }
    }

    void changesOnlyTheUsersFile() {
        using enum platform::LoginItemStatus;
        const Desk desk;
        QVERIFY(desk.entry().enable());
        QCOMPARE(desk.status(), enabled);
        QVERIFY(!(QFile::permissions(desk.userFile) & (QFile::ReadGroup | QFile::ReadOther)));
        QVERIFY(desk.entry().disable());
        QVERIFY(!QFile::exists(desk.userFile));
        QVERIFY(desk.entry().disable()); // already gone

        desk.write(desk.places.systemDirectories[1], "Exec=\"tally vane\"\n");
        QCOMPARE(desk.status(), enabled);
        QVERIFY(desk.entry().disable());
        QCOMPARE(desk.status(), requiresApproval);
        QVERIFY(desk.entry().enable());
        QCOMPARE(desk.status(), enabled);
        QVERIFY(QFile::remove(desk.userFile));
        desk.write(desk.places.systemDirectories[0], "Hidden=true\n");
        QCOMPARE(desk.status(), requiresApproval);
    }

    void namesTheFileThatFailed() {
        const Desk desk;
        std::filesystem::create_directories(desk.userFile.toStdString() + "/obstacle");
        for (const auto& result : {desk.entry().enable(), desk.entry().disable()}) {
            QVERIFY(!result);
            QVERIFY2(result.error().contains(desk.userFile), qPrintable(result.error()));
        }
    }
};

TALLYVANE_TEST(AutostartEntryTest)
#include "autostart_entry_test.moc"
