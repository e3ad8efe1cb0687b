#include "core/refresh_world.h"
#include "support/test_main.h"

#include <QtCore/QRandomGenerator>

#include <csignal>
#include <map>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

using namespace tallyvane;
using namespace std::chrono_literals;
using model::AIProvider;
using tests::Assistant;
using tests::Figure;
using tests::World;
using tests::Writer;

namespace {

/// What the disk does at each fsync(2). The program calls it before and after it puts a file in
/// another's place, so that its calls part a refresh into all the states that a kill can leave.
struct Disk {
    enum class Fate { works, failsAtTimes, failsForSettings, killsProgram };

    Fate fate = Fate::works;
    int callsLeft = 0; ///< until the kill
    QRandomGenerator random;
    bool hasFailed = false;

    [[nodiscard]] bool fails(int descriptor) {
        if (fate == Fate::failsForSettings) {
            const auto link = "/proc/self/fd/" + std::to_string(descriptor);
            return std::filesystem::read_symlink(link).parent_path().filename() == "config";
        }
        return fate == Fate::failsAtTimes && random.bounded(3) == 0;
    }
};
Disk disk;

} // namespace

/// Instead of the C library's, which would only cost time here: no course loses power.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): that one is reserved
int fsync(int descriptor) {
    if (disk.fate == Disk::Fate::killsProgram && --disk.callsLeft <= 0) {
        ::raise(SIGKILL);
    }
    if (disk.fails(descriptor)) {
        disk.hasFailed = true;
        errno = ENOSPC;
        return -1;
    }
    return 0;
}

namespace {

constexpr std::array zones{"UTC",
                           "America/New_York",
                           "Pacific/Kiritimati",
                           "Pacific/Pago_Pago",
                           "America/Santiago",
                           "Asia/Kathmandu"};
constexpr double tolerance = 1e-6;

enum class Gaps { breakRises, areNone };

/// How much a figure rose from one to the next, all in all.
double rises(const QList<Figure>& figures, Gaps gaps) {
    double sum = 0;
    Figure before;
    for (const Figure& figure : figures) {
        if (before && figure) {
            sum += std::max(*figure - *before, 0.0);
        }
        before = figure || gaps == Gaps::breakRises ? figure : before;
    }
    return sum;
}

/// What all courses saw.
struct Tally {
    int refreshes = 0;
    int turns = 0; ///< of two programs that refresh at once
    int kills = 0;
    int failures = 0; ///< of the disk
};

/// A random course of figures, logs, failures, programs and times. After each refresh the files
/// must agree with what was told.
class Course {
public:
    Course(quint32 seed, Tally& tally) : m_random(seed), m_tally(tally) {
        m_isRough = m_random.bounded(2) == 0;
        disk = {.random = QRandomGenerator(seed)};
        m_world.clock.advance(std::chrono::minutes{m_random.bounded(2 * 24 * 60)});
        for (auto& writer : m_writers) {
            start(writer);
        }
    }
    ~Course() { disk = {}; }
    Course(const Course&) = delete;
    Course& operator=(const Course&) = delete;

    /// What is wrong after the step; empty when all is well.
    [[nodiscard]] QString step() {
        Assistant& assistant = m_world.assistants.at(m_random.bounded(2));
        auto& writer = m_writers.at(m_random.bounded(2));
        switch (m_random.bounded(m_isRough ? 16 : 14)) {
        case 0:
        case 1:
        case 2:
            changeFigure(assistant);
            break;
        case 3:
            assistant.isFailing = !assistant.isFailing;
            break;
        case 4:
        case 5:
            changeLogs(assistant);
            break;
        case 6:
            start(writer);
            break;
        case 7:
            // All of them together stay within the days that the history keeps.
            m_world.clock.advance(std::chrono::minutes{m_random.bounded(-30 * 60, 48 * 60)});
            break;
        case 8:
        case 9:
            refreshBoth(writer == m_writers[0] ? 0 : 1);
            break;
        case 14:
            refreshUntilKilled();
            break;
        case 15:
            changeDisk();
            break;
        default:
            refresh(*writer);
        }
        return m_wrong;
    }

private:
    void start(std::unique_ptr<Writer>& writer) {
        writer.reset(); // it waits for its thread
        writer = std::make_unique<Writer>(m_world, randomZone());
    }

    QByteArray randomZone() { return zones.at(m_random.bounded(quint32{zones.size()})); }

    void changeFigure(Assistant& assistant) {
        const double percent = m_random.bounded(5000) / 100.0;
        const double used = assistant.used.value_or(0);
        switch (m_random.bounded(6)) {
        case 0:
            assistant.used = 0;
            break;
        case 1:
            assistant.used.reset();
            break;
        case 2:
            assistant.used = std::max(used - percent, 0.0);
            break;
        default:
            assistant.used = used + percent;
        }
    }

    void changeLogs(Assistant& assistant) {
        const std::int64_t tokens = 1 + m_random.bounded(1000);
        switch (m_random.bounded(6)) {
        case 0:
            m_world.setTokens(assistant, 0);
            break;
        case 1:
            m_world.setTokens(assistant, std::max<std::int64_t>(assistant.tokens - tokens, 0));
            break;
        default:
            m_world.setTokens(assistant, assistant.tokens + tokens);
        }
    }

    void changeDisk() {
        using Fate = Disk::Fate;
        const Fate fault = m_random.bounded(2) == 0 ? Fate::failsAtTimes : Fate::failsForSettings;
        disk.fate = disk.fate == Fate::works ? fault : Fate::works;
    }

    void tellTokens() {
        for (Assistant& assistant : m_world.assistants) {
            assistant.toldTokens << (assistant.tokens == 0 ? Figure() : Figure(assistant.tokens));
        }
    }

    void refresh(Writer& writer) {
        tellTokens();
        const auto task = writer.model.refresh(providers::AskedBy::user);
        check(writer, QCoro::waitFor(task).outcome);
    }

    void refreshBoth(std::size_t firstOne) {
        Writer& first = *m_writers.at(firstOne);
        Writer& second = *m_writers.at(1 - firstOne);
        tellTokens();
        m_world.isHoldingAnswers = true;
        const auto firstTask = first.model.refresh(providers::AskedBy::user);
        const auto secondTask = second.model.refresh(providers::AskedBy::user);
        m_world.clock.advance(std::chrono::minutes{m_random.bounded(120)});
        QCoreApplication::processEvents();
        m_world.letAnswer();
        check(first, QCoro::waitFor(firstTask).outcome);
        changeFigure(m_world.assistants.at(m_random.bounded(2)));
        tellTokens();
        m_world.clock.advance(100ms); // it tries again
        check(second, QCoro::waitFor(secondTask).outcome);
        ++m_tally.turns;
    }

    /// By a program of its own, in the state that a kill anywhere in it leaves.
    void refreshUntilKilled() {
        for (auto& writer : m_writers) {
            writer.reset(); // a fork takes no threads with it
        }
        tellTokens();
        for (Assistant& assistant : m_world.assistants) {
            if (!assistant.isFailing) {
                assistant.toldUsed << assistant.used;
            }
        }
        const QByteArray zone = randomZone();
        const int call = m_random.bounded(1, 12);
        const pid_t program = ::fork();
        if (program == 0) {
            disk.fate = Disk::Fate::killsProgram;
            disk.callsLeft = call;
            Writer writer(m_world, zone);
            QCoro::waitFor(writer.model.refresh(providers::AskedBy::user));
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(program, &status, 0);
        expect(WIFEXITED(status) || WTERMSIG(status) == SIGKILL, "the program crashed");
        m_hasLost |= WIFSIGNALED(status);
        m_tally.kills += WIFSIGNALED(status) ? 1 : 0;
        const Writer reader(m_world, zone);
        using Outcome = core::RefreshReport::Outcome;
        check(reader, WIFEXITED(status) ? Outcome::published : Outcome::notSaved);
        for (auto& writer : m_writers) {
            start(writer);
        }
    }

    void check(const Writer& by, core::RefreshReport::Outcome outcome) {
        ++m_tally.refreshes;
        const bool isPublished = outcome == core::RefreshReport::Outcome::published;
        m_hasLost |= disk.hasFailed;
        m_tally.failures += disk.hasFailed ? 1 : 0;
        disk.hasFailed = false;
        expect(isPublished || m_hasLost, "nothing failed, and yet nothing was saved");

        const auto snapshot = by.store.loadSnapshot();
        expect(snapshot || m_hasLost, "no snapshot is stored");
        for (Assistant& assistant : m_world.assistants) {
            const auto week =
                snapshot ? model::entryFor(*snapshot, assistant.provider).week : std::nullopt;
            const Figure stored = week ? Figure(week->usedPercent) : std::nullopt;
            const Figure told = assistant.toldUsed.isEmpty() ? Figure() : assistant.toldUsed.last();
            // After a failed save a refresh builds upon what the history has counted, if anything.
            const bool isKept = stored == assistant.stored ||
                                (m_hasLost && (!stored || assistant.toldUsed.contains(stored)));
            expect(stored == told || (isKept && (!isPublished || assistant.isFailing)),
                   "the stored figure is not the last that was told");
            assistant.stored = stored;
        }

        const QByteArray json =
            tests::readFile(QString::fromStdString(by.store.baseURL() / "usage-history.json"));
        const auto decoded = history::decodeHistory(json);
        expect(decoded || (json.isEmpty() && m_hasLost), "the history does not decode");
        const auto history = decoded.value_or(history::UsageHistory());
        expect(!isPublished || history == by.model.history(), "another history is on show");
        checkDays(by.zone, history);
        checkSums(history);
    }

    /// Only today's points may change, and there is one a day for each assistant.
    void checkDays(const QTimeZone& zone, const history::UsageHistory& history) {
        const auto day = [](model::Timestamp moment, const QTimeZone& in) {
            const auto seconds = std::chrono::floor<std::chrono::seconds>(moment);
            return QDateTime::fromSecsSinceEpoch(seconds.time_since_epoch().count(), in).date();
        };
        const QDate today = day(m_world.clock.now(), zone);
        std::set<std::tuple<AIProvider, QByteArray, QDate>> days;
        std::map<QString, QTimeZone> zoneOf;
        for (const history::UsageHistoryPoint& point : history.points) {
            const bool isOld = std::ranges::find(m_history.points, point) != m_history.points.end();
            expect(isOld || day(point.date, zone) == today, "another day than today's has changed");
            const auto known = m_zoneOf.find(history::id(point));
            const QTimeZone& in = known == m_zoneOf.end() ? zone : known->second;
            zoneOf.emplace(history::id(point), in);
            expect(days.emplace(point.provider, in.id(), day(point.date, in)).second,
                   "a day has two points");
        }
        expect(history.points.size() >= m_history.points.size(), "a point is lost");
        m_history = history;
        m_zoneOf = std::move(zoneOf);
    }

    void checkSums(const history::UsageHistory& history) {
        for (const Assistant& assistant : m_world.assistants) {
            double quota = 0;
            double tokens = 0;
            for (const history::UsageHistoryPoint& point : history.points) {
                expect(point.estimatedQuotaConsumed >= 0 && point.estimatedLocalTokens >= 0,
                       "a negative figure");
                if (point.provider == assistant.provider) {
                    quota += point.estimatedQuotaConsumed;
                    tokens += static_cast<double>(point.estimatedLocalTokens);
                }
            }
            compare(quota, assistant.toldUsed, "quota");
            compare(tokens, assistant.toldTokens, "tokens");
        }
    }

    void compare(double counted, const QList<Figure>& told, const char* what) {
        const double most = rises(told, Gaps::areNone);
        const double exact = rises(told, Gaps::breakRises);
        expect(counted <= most + tolerance && (m_hasLost || std::abs(counted - exact) <= tolerance),
               qPrintable(QStringLiteral("%1: counted %2 of %3, at most %4")
                              .arg(QLatin1StringView(what))
                              .arg(counted)
                              .arg(exact)
                              .arg(most)));
    }

    void expect(bool isTrue, const char* otherwise) {
        if (!isTrue && m_wrong.isEmpty()) {
            m_wrong = QString::fromUtf8(otherwise);
        }
    }

    QRandomGenerator m_random;
    Tally& m_tally;
    bool m_isRough = false; ///< kills and a full disk may come
    bool m_hasLost = false; ///< one came, and what it cost need not be counted
    World m_world;
    std::array<std::unique_ptr<Writer>, 2> m_writers;
    history::UsageHistory m_history;       ///< as it was last seen
    std::map<QString, QTimeZone> m_zoneOf; ///< in which its points were made
    QString m_wrong;
};

} // namespace

/// The refresh cycle over days, as several programs run it. TALLYVANE_COURSES says how many courses
/// there are, TALLYVANE_COURSE_SEED repeats one.
class RefreshCoursesTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void countsAllOnce() {
        constexpr int steps = 30;
        bool isOne = false;
        const quint32 given = qEnvironmentVariable("TALLYVANE_COURSE_SEED").toUInt(&isOne);
        const int courses =
            isOne ? 1 : qEnvironmentVariable("TALLYVANE_COURSES", QString::number(COURSES)).toInt();
        Tally tally;
        for (int i = 0; i < courses; ++i) {
            const quint32 seed = isOne ? given : QRandomGenerator::global()->generate();
            Course course(seed, tally);
            for (int step = 1; step <= steps; ++step) {
                const QString wrong = course.step();
                QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("TALLYVANE_COURSE_SEED=%1, "
                                                                    "step %2: %3")
                                                         .arg(seed)
                                                         .arg(step)
                                                         .arg(wrong)));
            }
        }
        qInfo() << courses << "courses:" << tally.refreshes << "refreshes," << tally.turns
                << "turns taken," << tally.kills << "kills," << tally.failures << "disk failures";
        QVERIFY(tally.refreshes > 0);
    }
};

TALLYVANE_TEST_MAIN(RefreshCoursesTest)
#include "refresh_courses_test.moc"
