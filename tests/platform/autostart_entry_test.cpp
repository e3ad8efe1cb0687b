#include "platform/linux/autostart_entry.h"
#include "support/home_files.h"
#include "support/test_main.h"

using namespace tallyvane;
using namespace Qt::StringLiterals;
using platform::AutostartEntry;

namespace {

/// The login item of the program with this path, where ~/bin is in $PATH.
AutostartEntry entryForPath(const QString& program) {
    const auto inHome = [](const char* name) { return tests::inHome(name).toStdString(); };
    return AutostartEntry(
        {.userDirectory = inHome("user"),
         .systemDirectories = {inHome("xdg1"), inHome("xdg2")},
         .program = program.toStdString(),
         .searchPath = {u"/nix/store/shell/bin"_s, tests::inHome("sbin"), tests::inHome("bin")}});
}

/// That of a program of this name in ~/bin.
AutostartEntry entryFor(const char* program) {
    return entryForPath(tests::inHome("bin/") + QString::fromUtf8(program));
}

/// Writes an entry in which BIN stands for the program's folder.
void write(const char* folder, QByteArray lines) {
    tests::writeFile(tests::inHome(folder) + "/org.corvelle.Tallyvane.desktop"_L1,
                     "[Desktop Entry]\n" + lines.replace("BIN", tests::inHome("bin").toUtf8()));
}

} // namespace

class AutostartEntryTest : public tests::HermeticTest {
    Q_OBJECT

    AutostartEntry m_entry = entryFor("tally vane");
    const QString m_userFile = tests::inHome("user/org.corvelle.Tallyvane.desktop");

private Q_SLOTS:
    void init() {
        HermeticTest::init();
        tests::clearHome();
        tests::writeFile(tests::inHome("bin/tally vane"), {});
    }

    void reads() {
        using enum platform::LoginItemStatus;
        const std::pair<const char*, platform::LoginItemStatus> rows[] = {
            {"Exec=\"BIN/tally vane\" --background\n", enabled},
            {"# Hidden=true\n\n Exec = \"tally vane\" \r\n", enabled},
            {"Hidden=false\nX-GNOME-Autostart-enabled=true\nExec=\"tally vane\"\n", enabled},
            {"Exec=\"tally vane\"\nHidden=1\n", requiresApproval}, // by an old program
            {"Hidden=false\nHidden=true\nExec=\"tally vane\"\n", requiresApproval},
            {"Exec=\"tally vane\"\nX-GNOME-Autostart-enabled=false\n", requiresApproval},
            {"Exec=\"tally vane\"\n[Desktop Action x]\nHidden=true\n", enabled},
            {"Exec=BIN/tally\n", notFound},
            {"TryExec=absent\nExec=\"tally vane\"\n", notFound},
            {"", notFound},
        };
        QCOMPARE(m_entry.status(), notRegistered);
        for (const auto& [lines, expected] : rows) {
            write("user", lines);
            QVERIFY2(m_entry.status() == expected, lines);
        }
    }

    void quotesEveryName() {
        const std::pair<const char*, const char*> rows[] = {
            {"tally vane", "tally vane"}, {"100%d", "100%%d"}, {"a\"b`c$d", "a\\\\\"b\\\\`c\\\\$d"},
            {"a\\b", "a\\\\\\\\b"},       {"a\nb", "a\\nb"},   {"café", "café"},
        };
        for (const auto& [name, quoted] : rows) {
            tests::writeFile(tests::inHome("bin/") + QString::fromUtf8(name), {});
            AutostartEntry entry = entryFor(name);
            QVERIFY(entry.enable());
            const QByteArray text = tests::readFile(m_userFile);
            QVERIFY2(text.contains("/bin/" + QByteArray(quoted) + "\" --background\n"), text);
            QCOMPARE(entry.status(), platform::LoginItemStatus::enabled);
        }
    }

    void namesWhatOutlivesAnUpdate() {
        const auto home = [](const char* name) { return tests::inHome(name); };
        tests::writeFile(home("cellar/0.2/tallyvane"), {});
        tests::writeFile(home("elsewhere/tallyvane"), {});
        QVERIFY(QFile::link(home("cellar/0.2/tallyvane"), home("bin/tallyvane")));
        QVERIFY(QFile::link(home("bin"), home("sbin")));
        const std::pair<QString, QString> rows[] = {
            {home("bin/tally vane"), home("bin/tally vane")}, // though ~/sbin comes first
            {home("cellar/0.2/tallyvane"), home("sbin/tallyvane")},
            {home("elsewhere/tallyvane"), home("elsewhere/tallyvane")}, // in $PATH is another
            {u"/nix/store/shell/bin/tallyvane"_s, u"tallyvane"_s},
            {u"/nix/store/1a2b-tallyvane-0.2.0/bin/absent"_s, u"absent"_s},
            {u"/gnu/store/1a2b-tallyvane-0.2.0/bin/tallyvane"_s, u"tallyvane"_s},
        };
        for (const auto& [program, named] : rows) {
            QVERIFY(entryForPath(program).enable());
            const QByteArray text = tests::readFile(m_userFile);
            QVERIFY2(text.contains("TryExec=" + named.toUtf8() + "\nExec=\"" + named.toUtf8() +
                                   "\" --background\n"),
                     text);
        }
    }

    void changesOnlyTheUsersFile() {
        using enum platform::LoginItemStatus;
        QVERIFY(m_entry.enable());
        QVERIFY(!(QFile::permissions(m_userFile) & (QFile::ReadGroup | QFile::ReadOther)));
        QVERIFY(m_entry.disable());
        QVERIFY(!QFile::exists(m_userFile));

        write("xdg2", "Exec=\"tally vane\"\n");
        QCOMPARE(m_entry.status(), enabled);
        QVERIFY(m_entry.disable());
        QCOMPARE(m_entry.status(), requiresApproval);
        QVERIFY(m_entry.enable());
        QCOMPARE(m_entry.status(), enabled);
        QVERIFY(QFile::remove(m_userFile));
        write("xdg1", "Hidden=true\n");
        QCOMPARE(m_entry.status(), requiresApproval);
    }
};

TALLYVANE_TEST(AutostartEntryTest)
#include "autostart_entry_test.moc"
