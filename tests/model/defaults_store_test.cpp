#include "model/defaults_store.h"
#include "support/home_files.h"
#include "support/test_main.h"

#include <QtCore/QRandomGenerator>
#include <QtCore/QSettings>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tallyvane;
using model::DefaultsStore;

namespace {

const QString key = QStringLiteral("key");

/// Letters, and characters with a meaning in the format.
QString randomText(QRandomGenerator& random) {
    static const QString letters = QStringLiteral("ab09xXfn \t\r\n\a\\\"';,=%@()[]äß€\x7f\x01😀/#");
    QString text;
    for (int length = random.bounded(12); length > 0; --length) {
        const QChar letter = letters[random.bounded(letters.size())];
        text += letter.isSurrogate() ? QStringLiteral("😀") : QString(letter);
    }
    return text;
}

} // namespace

class DefaultsStoreTest : public tests::HermeticTest {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const char* name = "suite.conf") const {
        return m_folder->filePath(QString::fromLatin1(name));
    }
    std::optional<DefaultsStore> open() const { return DefaultsStore::open(path().toStdString()); }

private Q_SLOTS:
    void init() {
        HermeticTest::init();
        m_folder = std::make_unique<QTemporaryDir>();
    }

    /// Each reads what the other wrote.
    void agreesWithQSettings() {
        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        for (int round = 0; round < 50; ++round) {
            const QString text = randomText(random);
            const QByteArray bytes = randomText(random).toUtf8();
            // A new file each time, because QSettings caches by file name.
            const QString file = path(QByteArray::number(round).constData());
            auto ours = DefaultsStore::open(file.toStdString());
            const std::int64_t number = static_cast<qint64>(random.generate64());
            QVERIFY(ours->setText(QStringLiteral("text"), text) &&
                    ours->setData(QStringLiteral("token-baseline.x"), bytes) &&
                    ours->setIntegers({{QStringLiteral("number"), number}}) &&
                    ours->setFlag(QStringLiteral("flag"), round % 2 == 0));
            {
                QSettings qt(file, QSettings::IniFormat);
                QVERIFY2(qt.value("text").toString() == text &&
                             qt.value("token-baseline.x").toByteArray() == bytes &&
                             qt.value("number").toLongLong() == number &&
                             qt.value("flag").toBool() == (round % 2 == 0),
                         qPrintable(QString::number(seed)));
                qt.setValue("qtText", text);
                qt.setValue("qtBytes", bytes);
                qt.setValue("group/text", text);
            }
            QVERIFY2(ours->text(QStringLiteral("qtText")) == text &&
                         ours->data(QStringLiteral("qtBytes")) == bytes &&
                         ours->text(QStringLiteral("text")) == text &&
                         ours->integer(QStringLiteral("number")) == number,
                     qPrintable(QString::number(seed)));
        }
    }

    void preservesOtherContent() {
        const std::pair<QByteArray, QByteArray> rows[] = {
            // without a general section
            {"[Other]\nkey=1\n", "[General]\nkey=\"new\"\n[Other]\nkey=1\n"},
            {"; a comment with \"\n[General]\r\n  font = @Variant(\\0\\0\\0@\\0)\n"
             "key = old\nlist=a, b\n\n[%General]\nkey=2",
             "; a comment with \"\n[General]\r\n  font = @Variant(\\0\\0\\0@\\0)\n"
             "key=\"new\"\nlist=a, b\n\n[%General]\nkey=2"},
            {"long=\"a\nkey=no\nb\"\nlonger=a\\\nb\nx=1",
             "long=\"a\nkey=no\nb\"\nlonger=a\\\nb\nx=1\nkey=\"new\"\n"},
            {"[General]\na=1\n[Other]\nb=2\n[general]\nkey=3\n[Last]\n",
             "[General]\na=1\n[Other]\nb=2\n[general]\nkey=\"new\"\n[Last]\n"},
            {"[General]\nx=\xff\xfe\n", "[General]\nx=\xff\xfe\nkey=\"new\"\n"}};
        for (const auto& [before, after] : rows) {
            tests::writeFile(path(), before);
            auto store = open();
            QVERIFY2(store && store->setText(key, QStringLiteral("new")), before);
            QCOMPARE(tests::readFile(path()), after);
            QCOMPARE(store->text(key), QStringLiteral("new"));
        }
    }

    void leavesMalformedFilesAlone() {
        const std::string standard = path("standard.conf").toStdString();
        std::optional<DefaultsStore> openedBefore = open();
        for (const QByteArray& content :
             {QByteArray("[General]\nkey=1\nno equals sign\n"), QByteArray("garbage"),
              QByteArray("[General\nkey=1\n"), QByteArray("key=\"1\n[Other]\nx=1\n"),
              QByteArray("x=1\\"), QByteArray("key=\0\x01\n", 7)}) {
            tests::writeFile(path(), content);
            for (const char* value : {"once", "twice"}) {
                QVERIFY2(!open(), content);
                DefaultsStore store = DefaultsStore::openFirst(path().toStdString(), standard);
                QVERIFY(store.setText(key, QLatin1StringView(value)));
                QVERIFY(!openedBefore->setText(key, QLatin1StringView(value)));
                QCOMPARE(store.text(key), QLatin1StringView(value));
                QCOMPARE(tests::readFile(path()), content);
            }
        }
    }

    /// QSettings' own lock file, whose holder may be on another machine, is ignored.
    void neverBlocks() {
        tests::writeFile(path("suite.conf.lock"), "4711\nprogram\nelsewhere\n");
        QVERIFY(open()->setFlag(key, true) && open()->flag(key));
        QVERIFY(QFile::remove(path("suite.conf.lock")) && QDir().mkdir(path("suite.conf.lock")));
        QVERIFY(open()->setFlag(key, false) && !open()->flag(key));
        QCOMPARE(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
        QVERIFY(!DefaultsStore::open(path("pipe").toStdString()));
    }

    void losesNoConcurrentWrite() {
        constexpr int writers = 4;
        constexpr int writes = 20;
        std::array<pid_t, writers> children{};
        for (int writer = 0; writer < writers; ++writer) {
            children[writer] = ::fork();
            if (children[writer] == 0) {
                for (int write = 0; write < writes; ++write) {
                    const QString own = QStringLiteral("%1-%2").arg(writer).arg(write);
                    while (!open()->setIntegers({{own, write}})) { // the others took too long
                    }
                }
                ::_exit(0);
            }
        }
        for (const pid_t child : children) {
            int status = -1;
            QCOMPARE(::waitpid(child, &status, 0), child);
            QCOMPARE(status, 0);
        }
        QCOMPARE(tests::readFile(path()).count('\n'), 1 + writers * writes);
    }
};

TALLYVANE_TEST(DefaultsStoreTest)
#include "defaults_store_test.moc"
