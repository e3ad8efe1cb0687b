#include "model/defaults_store.h"
#include "model/shared_store.h"
#include "support/test_main.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>

#include <csignal>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tallyvane::model;
namespace fs = std::filesystem;

namespace {

QuotaSnapshot snapshotUsing(double usedPercent) {
    QuotaSnapshot snapshot = placeholderSnapshot({});
    snapshot.providers[0].week = QuotaWindowSnapshot{.usedPercent = usedPercent};
    return snapshot;
}

fs::perms permissionsOf(const fs::path& path) {
    return fs::status(path).permissions();
}

/// Fresh directories for one test.
struct Place {
    QTemporaryDir directory;
    fs::path root{directory.path().toStdString()};
    StoreLocations locations{.dataHome = root / "data", .configHome = root / "config"};
    fs::path snapshotFile = locations.dataHome / "Gaugewell" / "quota-snapshot.json";
};

} // namespace

class SharedStoreTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void choosesTheContainer() {
        const Place place;
        const SharedStore own(place.locations);
        QCOMPARE(own.containerSource(), ContainerSource::fallback);
        QVERIFY(own.baseURL() == place.locations.dataHome / "Gaugewell");
        QCOMPARE(permissionsOf(own.baseURL()), fs::perms::owner_all);

        fs::create_directory(place.locations.dataHome / "group.corvelle.Gaugewell");
        const SharedStore shared(place.locations);
        QCOMPARE(shared.containerSource(), ContainerSource::appGroup);
        QVERIFY(shared.baseURL() == place.locations.dataHome / "group.corvelle.Gaugewell");
    }

    void savesForTheUserAlone() {
        const Place place;
        const SharedStore store(place.locations);
        QVERIFY(!store.loadSnapshot());
        ::umask(0);
        QVERIFY(store.saveSnapshot(snapshotUsing(1)));
        QVERIFY(store.saveHistory("[]"));
        const auto userOnly = fs::perms::owner_read | fs::perms::owner_write;
        QCOMPARE(permissionsOf(place.snapshotFile), userOnly);
        QCOMPARE(permissionsOf(store.baseURL() / "usage-history.json"), userOnly);
        QCOMPARE(permissionsOf(place.locations.defaultsSuite()), userOnly);
        QCOMPARE(permissionsOf(place.locations.configHome), fs::perms::owner_all);
        QVERIFY(store.loadSnapshot() == snapshotUsing(1));
        QCOMPARE(*store.loadHistory(), QByteArray("[]"));

        fs::remove_all(store.baseURL());
        QVERIFY(store.saveSnapshot(snapshotUsing(2)));
        QCOMPARE(permissionsOf(store.baseURL()), fs::perms::owner_all);
    }

    void readsTheFileThenTheMirror() {
        const Place place;
        const SharedStore store(place.locations);
        QVERIFY(store.saveSnapshot(snapshotUsing(1)));
        QVERIFY(
            DefaultsStore::open(place.locations.defaultsSuite())
                ->setData(QStringLiteral("quotaSnapshotData"), *encodeSnapshot(snapshotUsing(2))));
        QVERIFY(store.loadSnapshot() == snapshotUsing(1));

        QFile file(place.snapshotFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\"schemaVersion\" : 1");
        file.close();
        QVERIFY(store.loadSnapshot() == snapshotUsing(2));

        fs::remove(place.snapshotFile);
        QCOMPARE(::mkfifo(place.snapshotFile.c_str(), 0600), 0);
        QVERIFY(store.loadSnapshot() == snapshotUsing(2));

        QFile suite(place.locations.defaultsSuite());
        QVERIFY(suite.open(QIODevice::WriteOnly));
        suite.write("no equals sign\n");
        suite.close();
        QVERIFY(!store.loadSnapshot());
    }

    void failedWriteLeavesTheMirror() {
        const Place place;
        const SharedStore store(place.locations);
        QVERIFY(store.saveSnapshot(snapshotUsing(1)));
        fs::remove_all(store.baseURL());
        QFile obstacle(store.baseURL());
        QVERIFY(obstacle.open(QIODevice::WriteOnly));

        const auto saved = store.saveSnapshot(snapshotUsing(2));
        QVERIFY(!saved);
        QVERIFY2(saved.error().message.contains(u"quota-snapshot.json") &&
                     saved.error().message.contains(u"Not a directory"),
                 qPrintable(saved.error().message));
        QVERIFY(store.loadSnapshot() == snapshotUsing(1));
    }

    void keepsWhatItHasOnAFullDisk() {
        const Place place;
        if (::geteuid() != 0 || ::mount("none", place.root.c_str(), "tmpfs", 0, "size=256k") != 0) {
            TALLYVANE_SKIP("mounting a small file system needs root");
        }
        const SharedStore store(place.locations);
        const auto before = store.saveSnapshot(snapshotUsing(1));
        QFile filler(place.root / "filler");
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(4096, 'x')) > 0) {
        }
        filler.close();
        const auto after = store.saveSnapshot(snapshotUsing(2));
        auto suite = DefaultsStore::open(place.locations.defaultsSuite());
        const auto preference =
            suite->setText(QStringLiteral("appearance"), QStringLiteral("dark"));
        const auto mirror = suite->data(QStringLiteral("quotaSnapshotData"));
        const auto stored = store.loadSnapshot();
        suite.reset();
        ::mount("none", place.root.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr);
        const auto readOnly = SharedStore({.dataHome = place.root / "new"}).saveHistory("[]");
        ::umount(place.root.c_str());

        QVERIFY(before && !after && !preference);
        QVERIFY2(preference.error().message.contains(u"No space left"),
                 qPrintable(preference.error().message));
        QVERIFY2(after.error().message.contains(u"No space left"),
                 qPrintable(after.error().message));
        QVERIFY2(!readOnly && readOnly.error().message.contains(u"Read-only"),
                 qPrintable(readOnly.error().message));
        QVERIFY(stored == snapshotUsing(1));
        QCOMPARE(mirror, *encodeSnapshot(snapshotUsing(1)));
    }

    void savesWithoutASuite() {
        const Place place;
        fs::create_directories(place.locations.defaultsSuite());
        const SharedStore store(place.locations);
        QVERIFY(store.saveSnapshot(snapshotUsing(1)));
        QVERIFY(fs::is_empty(place.locations.defaultsSuite()));
        DefaultsStore defaults = DefaultsStore::openFirst(place.locations.defaultsSuite(),
                                                          place.locations.standardDefaults());
        QVERIFY(defaults.setText(QStringLiteral("appearance"), QStringLiteral("dark")));
        QVERIFY(fs::exists(place.locations.standardDefaults()));
        QCOMPARE(defaults.text(QStringLiteral("appearance")), QStringLiteral("dark"));
    }

    void clearsItsOwnUnfinishedWritesAlone() {
        const Place place;
        const SharedStore store(place.locations);
        const auto isThereAfterSave = [&](const char* name, std::chrono::minutes age) {
            const fs::path path = store.baseURL() / name;
            const bool isMade = QFile(path).open(QIODevice::WriteOnly);
            fs::last_write_time(path, fs::file_time_type::clock::now() - age);
            return isMade && store.saveSnapshot(snapshotUsing(1)) && fs::exists(path);
        };
        QVERIFY(!isThereAfterSave(".tallyvane-4711-AbCdEf", std::chrono::minutes{2}));
        QVERIFY(isThereAfterSave(".tallyvane-4711-GhIjKl", std::chrono::minutes{0}));
        for (const char* foreign :
             {"quota-snapshot.json.backup", "quota-snapshot.json.221121", ".tallyvane-backup",
              ".tallyvane-4711-AbCdEf.bak", ".tallyvane--AbCdEf", "quota-snapshot.json.AbCdEf"}) {
            QVERIFY2(isThereAfterSave(foreign, std::chrono::hours{1}), foreign);
        }
    }

    void replacesFilesAndNothingElse() {
        const Place place;
        const fs::path target = place.root / "elsewhere";
        const fs::path link = place.root / "link";
        fs::create_symlink("elsewhere", link);
        QVERIFY(saveFile(link, "through a link"));
        QVERIFY(fs::is_symlink(link) && *readFile(target, 99) == "through a link");
        fs::permissions(target, fs::perms::owner_read);
        QVERIFY(::geteuid() == 0 || !saveFile(link, "against the user's will"));
        QCOMPARE(::mkfifo((place.root / "pipe").c_str(), 0600), 0);
        for (const char* name : {"pipe", "."}) {
            QVERIFY2(!saveFile(place.root / name, "x"), name);
        }
        QVERIFY(fs::is_fifo(place.root / "pipe"));
    }

    void locksForOneAtATime() {
        const Place place;
        const SharedStore store(place.locations);
        auto first = store.tryLock();
        QVERIFY(first && *first);
        const auto second = store.tryLock();
        QVERIFY(second && !*second);
        const pid_t child = ::fork();
        if (child == 0) {
            ::pause();
        }
        first->reset(); // the child has its descriptor too, and with it the lock
        QVERIFY(!*store.tryLock());
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        QVERIFY(*store.tryLock());
        fs::remove_all(store.baseURL());
        QVERIFY(*store.tryLock());
    }

    /// A process that saves without pause is killed at a random instant, many times over.
    void survivesKills() {
        const Place place;
        const SharedStore store(place.locations);
        for (int round = 0; round < 200; ++round) {
            const pid_t child = ::fork();
            if (child == 0) {
                for (int i = 0;; ++i) {
                    (void)store.saveSnapshot(snapshotUsing(i));
                }
            }
            QTest::qWait(0);
            ::usleep(QRandomGenerator::global()->bounded(1000, 12000));
            ::kill(child, SIGKILL);
            ::waitpid(child, nullptr, 0);
            if (fs::exists(place.snapshotFile)) {
                QFile file(place.snapshotFile);
                QVERIFY(file.open(QIODevice::ReadOnly));
                QVERIFY(decodeSnapshot(file.readAll()));
            }
        }
        QVERIFY(fs::exists(place.snapshotFile));
    }
};

TALLYVANE_TEST_MAIN(SharedStoreTest)
#include "shared_store_test.moc"
