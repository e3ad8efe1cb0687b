#include "support/home_files.h"
#include "support/running_program.h"

#include <QtCore/QStandardPaths>

using namespace Qt::StringLiterals;
using namespace tallyvane;

/// Lets each shell complete the last word of a line.
class CompletionsTest : public tests::HermeticTest {
    Q_OBJECT

    /// What the shell offers, sorted, without what is typed already before a "=".
    static QString offered(const QString& shell, const char* line) {
        const QString script = QStringLiteral(TALLYVANE_TEST_DATA "/completions/complete.");
        tests::RunningProgram program;
        program.setWorkingDirectory(QDir::homePath());
        program.start(shell, {script + shell, QString::fromUtf8(line),
                              QStringLiteral(TALLYVANE_COMPLETIONS)});
        if (!program.hasEnded()) {
            return u"(no end)"_s;
        }
        QStringList words;
        for (const QString& offer : QString::fromUtf8(program.readAllStandardOutput())
                                        .remove(u'\r')
                                        .split(u'\n', Qt::SkipEmptyParts)) {
            const QString word = offer.section(u'\t', 0, 0);
            words.append(word.endsWith(u'=') ? word.chopped(1) : word.section(u'=', -1));
        }
        words.sort();
        return words.join(u' ');
    }

private Q_SLOTS:
    void offersWhatMayFollow_data() {
        QTest::addColumn<QString>("shell");
        for (const char* shell : {"bash", "fish", "zsh"}) {
            QTest::newRow(shell) << QString::fromLatin1(shell);
        }
    }

    void offersWhatMayFollow() {
        QFETCH(const QString, shell);
        if (QStandardPaths::findExecutable(shell).isEmpty()) {
            TALLYVANE_SKIP("this shell is not installed");
        }
        tests::writeFile(tests::inHome("codex"), {});
        const std::pair<const char*, const char*> rows[] = {
            {"tallyvane st", "status"},
            {"tallyvane --b", "--background"},
            {"tallyvane refresh --j", "--json"},
            {"tallyvane refresh --pr", ""}, // fish also takes letters that lie apart
            {"tallyvane status --pr", "--provider"},
            {"tallyvane status --provider ", "claude codex"},
            {"tallyvane status --provider=cl", "claude"},
            {"tallyvane status --provider codex --wa", "--waybar"},
            {"tallyvane status --below ", ""},
            {"tallyvane config se", "set"},
            {"tallyvane config get n", "notification-windows notifications"},
            {"tallyvane config list a", ""},
            {"tallyvane config set appearance ", "dark light system"},
            {"tallyvane config set providers b", "both"},
            {"tallyvane config set notifications o", "off on"},
            {"tallyvane config set codex-path cod", "codex"}};
        for (const auto& [line, expected] : rows) {
            const QString words = offered(shell, line);
            QVERIFY2(words == QLatin1StringView(expected),
                     qPrintable(QLatin1StringView(line) + u": "_s + words));
        }
    }
};

TALLYVANE_TEST(CompletionsTest)
#include "completions_test.moc"
