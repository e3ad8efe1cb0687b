#include "model/defaults_store.h"
#include "model/shared_store.h"
#include "support/home_files.h"
#include "support/test_main.h"

#include <csignal>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tallyvane;
using namespace tallyvane::model;
using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

const QString mirrorKey = u"quotaSnapshotData"_s;

QuotaSnapshot snapshotUsing(double usedPercent) {
    QuotaSnapshot snapshot = placeholderSnapshot({});
    snapshot.providers[0].week = QuotaWindowSnapshot{.usedPercent = usedPercent};
    return snapshot;
}

bool isPrivate(const fs::path& path, fs::perms owners = fs::perms::owner_all) {
    return fs::status(path).permissions() == owners;
}

void write(const fs::path& path, const QByteArray& content) {
    tests::writeFile(QString::fromStdString(path), content);
}

QByteArray diskCalls; ///< 'f' and 'd': file or directory flushed; 'r': renamed

} // namespace

// These replace the C library's functions in the statically linked code.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" int fsync(int descriptor) {
    struct stat status{};
    ::fstat(descriptor, &status);
    // Flushing a file before it has its content is no use.
    diskCalls += S_ISDIR(status.st_mode) ? "d" : status.st_size > 0 ? "f" : "";
    return static_cast<int>(::syscall(SYS_fsync, descriptor));
}
extern "C" int rename(const char* from, const char* to) noexcept {
    diskCalls += 'r';
    return ::renameat(AT_FDCWD, from, AT_FDCWD, to);
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)

class SharedStoreTest : public tests::HermeticTest {
    Q_OBJECT

    std::optional<QTemporaryDir> m_directory;
    fs::path m_root;
    StoreLocations m_locations;
    fs::path m_snapshotFile;

private Q_SLOTS:
    void init() {
        HermeticTest::init();
        m_directory.emplace();
        m_root = m_directory->path().toStdString();
        m_locations = {.dataHome = m_root / "data", .configHome = m_root / "config"};
        m_snapshotFile = m_locations.dataHome / "Gaugewell" / "quota-snapshot.json";
    }

    void choosesTheContainer() {
        const SharedStore own(m_locations);
        QCOMPARE(own.containerSource(), ContainerSource::fallback);
        QVERIFY(own.baseURL() == m_locations.dataHome / "Gaugewell" && isPrivate(own.baseURL()));

        const fs::path group = m_locations.dataHome / "group.corvelle.Gaugewell";
        fs::create_directory(group);
        const SharedStore shared(m_locations);
        QCOMPARE(shared.containerSource(), ContainerSource::appGroup);
        QVERIFY(shared.baseURL() == group);
    }

    void savesPrivateFilesOrNothing() {
        const SharedStore store(m_locations);
        QVERIFY(!store.loadSnapshot());
        ::umask(0);
        QVERIFY(store.saveSnapshot(snapshotUsing(1)) && store.saveHistory("[]"));
        for (const fs::path& file : {m_snapshotFile, store.baseURL() / "usage-history.json",
                                     m_locations.defaultsSuite()}) {
            QVERIFY(isPrivate(file, fs::perms::owner_read | fs::perms::owner_write));
        }
        QVERIFY(isPrivate(m_locations.configHome));
        QVERIFY(store.loadSnapshot() == snapshotUsing(1) && *store.loadHistory() == "[]");

        fs::remove_all(store.baseURL());
        write(store.baseURL(), {});
        const auto saved = store.saveSnapshot(snapshotUsing(2));
        QVERIFY(!saved &&
                saved.error().message.text().endsWith(u"quota-snapshot.json: Not a directory."));
        QVERIFY(store.loadSnapshot() == snapshotUsing(1)); // the mirror's
        fs::remove(store.baseURL());
        QVERIFY(store.saveSnapshot(snapshotUsing(2)) && isPrivate(store.baseURL()));
    }

    void survivesAFullDisk() {
        if (::geteuid() != 0 || ::mount("none", m_root.c_str(), "tmpfs", 0, "size=256k") != 0) {
            TALLYVANE_SKIP("mounting a small file system needs root");
        }
        const SharedStore store(m_locations);
        const auto before = store.saveSnapshot(snapshotUsing(1));
        QFile filler(m_root / "filler");
        const bool isOpen = filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        while (filler.write(QByteArray(4096, 'x')) > 0) {
        }
        filler.close();
        const auto after = store.saveSnapshot(snapshotUsing(2));
        auto suite = DefaultsStore::open(m_locations.defaultsSuite());
        const auto preference = suite->setText(u"appearance"_s, u"dark"_s);
        const auto mirror = suite->data(mirrorKey);
        const auto stored = store.loadSnapshot();
        ::mount("none", m_root.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr);
        const auto readOnly = SharedStore({.dataHome = m_root / "new"}).saveHistory("[]");
        ::umount(m_root.c_str());

        QVERIFY(isOpen && before && !after && !preference && !readOnly);
        const QString messages = preference.error().message.text() + after.error().message.text() +
                                 readOnly.error().message.text();
        QVERIFY2(messages.count(u"No space left") == 2 && messages.contains(u"Read-only"),
                 qPrintable(messages));
        QVERIFY(stored == snapshotUsing(1));
        QCOMPARE(mirror, *encodeSnapshot(snapshotUsing(1)));
    }

    void flushesTheFileThenRenamesThenFlushesTheDirectory() {
        const fs::path path = m_root / "file";
        diskCalls.clear();
        QVERIFY(writeFile(path, "content"));
        QVERIFY(fs::exists(path));
        QCOMPARE(diskCalls, "frd");
    }

    /// Renaming would replace it. Root may write it, so another user tries.
    void leavesAReadOnlyFile() {
        constexpr uid_t nobody = 65534;
        const uid_t user = ::getuid() == 0 ? nobody : ::getuid();
        const fs::path path = m_root / "file";
        write(path, "before");
        QVERIFY(::chown(m_root.c_str(), user, -1U) == 0 && ::chown(path.c_str(), user, -1U) == 0);
        fs::permissions(path, fs::perms::owner_read);
        const uid_t before = ::getuid();
        QVERIFY(::setresuid(user, user, before) == 0);
        const auto saved = writeFile(path, "after");
        QVERIFY(::setresuid(before, before, before) == 0);
        QVERIFY(!saved && saved.error().message.text().endsWith(u"Permission denied."));
        QVERIFY(readFile(path, 100) == "before");
    }

    void prefersTheFileToTheMirror() {
        const SharedStore store(m_locations);
        QVERIFY(store.saveSnapshot(snapshotUsing(1)));
        auto suite = DefaultsStore::open(m_locations.defaultsSuite());
        QVERIFY(suite->setData(mirrorKey, *encodeSnapshot(snapshotUsing(2))));
        QVERIFY(store.loadSnapshot() == snapshotUsing(1));

        write(m_snapshotFile, "{\"schemaVersion\" : 1");
        QVERIFY(store.loadSnapshot() == snapshotUsing(2));
        fs::remove(m_snapshotFile);
        QCOMPARE(::mkfifo(m_snapshotFile.c_str(), 0600), 0);
        QVERIFY(store.loadSnapshot() == snapshotUsing(2));
        write(m_locations.defaultsSuite(), "no equals sign\n");
        QVERIFY(!store.loadSnapshot());
        fs::remove(m_snapshotFile);
        QVERIFY(store.saveSnapshot(snapshotUsing(3)));
        QVERIFY(store.loadSnapshot() == snapshotUsing(3));
    }

    void removesOnlyItsOwnTemporaryFiles() {
        const SharedStore store(m_locations);
        const auto survives = [&](const char* name, std::chrono::minutes age) {
            const fs::path path = store.baseURL() / name;
            write(path, {});
            fs::last_write_time(path, fs::file_time_type::clock::now() - age);
            return store.saveSnapshot(snapshotUsing(1)) && fs::exists(path);
        };
        QVERIFY(!survives(".tallyvane-4711-AbCdEf", std::chrono::minutes{2}));
        QVERIFY(survives(".tallyvane-4711-GhIjKl", std::chrono::minutes{0}));
        for (const char* foreign :
             {"quota-snapshot.json.AbCdEf", ".tallyvane-backup", ".tallyvane-4711-AbCdEf.bak"}) {
            QVERIFY2(survives(foreign, std::chrono::hours{1}), foreign);
        }
    }

    void replacesOnlyRegularFiles() {
        const fs::path target = m_root / "elsewhere";
        const fs::path link = m_root / "link";
        fs::create_symlink("elsewhere", link);
        QVERIFY(saveFile(link, "through a link"));
        QVERIFY(fs::is_symlink(link) && *readFile(target, 99) == "through a link");
        fs::permissions(target, fs::perms::owner_read);
        QVERIFY(::geteuid() == 0 || !saveFile(link, "although read-only"));
        QCOMPARE(::mkfifo((m_root / "pipe").c_str(), 0600), 0);
        for (const char* name : {"pipe", "."}) {
            QVERIFY2(!saveFile(m_root / name, "x"), name);
        }
        QVERIFY(fs::is_fifo(m_root / "pipe"));
    }

    void locksForOneAtATime() {
        const SharedStore store(m_locations);
        auto first = store.tryLock();
        QVERIFY(first && *first);
        const auto second = store.tryLock();
        QVERIFY(second && !*second);
        const pid_t child = ::fork();
        if (child == 0) {
            ::pause();
        }
        first->reset(); // the child has inherited the descriptor and so the lock
        QVERIFY(!*store.tryLock());
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        QVERIFY(*store.tryLock());
        fs::remove_all(store.baseURL());
        QVERIFY(*store.tryLock());
    }
};

TALLYVANE_TEST(SharedStoreTest)
#include "shared_store_test.moc"
