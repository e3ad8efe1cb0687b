#include "model/defaults_store.h"
#include "support/home_files.h"
#include "support/test_main.h"

#include <QtCore/QRandomGenerator>
#include <QtCore/QSettings>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tallyvane;
using namespace Qt::StringLiterals;
using model::DefaultsStore;

namespace {

const QString key = u"key"_s;

/// Letters, and characters with a meaning in the format.
QString randomText(QRandomGenerator& random) {
    static const QStringList letters =
        u"a|b|0|9|x|X|f|n| |\t|\r|\n|\a|\\|\"|'|;|,|=|%|@|(|)|[|]|ä|ß|€|\x7f|\x01|😀|/|#"_s.split(
            u'|');
    QString text;
    for (int length = random.bounded(12); length > 0; --length) {
        text += letters[random.bounded(letters.size())];
    }
    return text;
}

} // namespace

class DefaultsStoreTest : public tests::HermeticTest {
    Q_OBJECT

    std::optional<QTemporaryDir> m_folder;

    QString path(const char* name = "suite.conf") const {
        return m_folder->filePath(QLatin1StringView(name));
    }
    std::optional<DefaultsStore> open() const { return DefaultsStore::open(path().toStdString()); }

private Q_SLOTS:
    void init() {
        HermeticTest::init();
        m_folder.emplace();
    }

    /// Each reads what the other wrote.
    void agreesWithQSettings() {
        const quint32 firstSeed = QRandomGenerator::global()->generate();
        for (quint32 seed = firstSeed; seed != firstSeed + 50; ++seed) {
            QRandomGenerator random(seed);
            const QString text = randomText(random);
            const QByteArray bytes = randomText(random).toUtf8();
            const auto number = static_cast<qint64>(random.generate64());
            const bool flag = random.bounded(2) == 0;
            // A new file each time, because QSettings caches by file name.
            const QByteArray name = QByteArray::number(seed);
            auto ours = DefaultsStore::open(path(name).toStdString());
            QVERIFY(ours->setText(u"text"_s, text) && ours->setData(u"token-baseline.x"_s, bytes) &&
                    ours->setIntegers({{u"number"_s, number}}) && ours->setFlag(u"flag"_s, flag));
            {
                QSettings qt(path(name), QSettings::IniFormat);
                QVERIFY2(qt.value("text").toString() == text &&
                             qt.value("token-baseline.x").toByteArray() == bytes &&
                             qt.value("number").toLongLong() == number &&
                             qt.value("flag").toBool() == flag,
                         name);
                qt.setValue("qtText", text);
                qt.setValue("qtBytes", bytes);
                qt.setValue("group/text", text);
            }
            QVERIFY2(ours->text(u"qtText"_s) == text && ours->data(u"qtBytes"_s) == bytes &&
                         ours->text(u"text"_s) == text && ours->integer(u"number"_s) == number &&
                         ours->flag(u"flag"_s) == flag,
                     name);
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
            QVERIFY2(store && store->setText(key, u"new"_s), before);
            QCOMPARE(tests::readFile(path()), after);
            QCOMPARE(store->text(key), u"new"_s);
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
            for (const QString& value : {u"once"_s, u"twice"_s}) {
                DefaultsStore store = DefaultsStore::openFirst(path().toStdString(), standard);
                QVERIFY2(!open() && store.setText(key, value), content);
                QVERIFY2(!openedBefore->setText(key, value) && store.text(key) == value, content);
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
        for (int writer = 0; writer < writers; ++writer) {
            if (::fork() == 0) {
                for (int write = 0; write < writes; ++write) {
                    const QString own = u"%1-%2"_s.arg(writer).arg(write);
                    while (!open()->setIntegers({{own, write}})) { // the others took too long
                    }
                }
                ::_exit(0);
            }
        }
        int status = 0;
        while (::wait(&status) > 0) {
            QCOMPARE(status, 0);
        }
        QCOMPARE(tests::readFile(path()).count('\n'), 1 + writers * writes);
    }
};

TALLYVANE_TEST(DefaultsStoreTest)
#include "defaults_store_test.moc"
