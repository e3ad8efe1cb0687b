#include "core/refresh_world.h"
#include "history/calendar_days.h"
#include "support/test_main.h"

#include <QtCore/QRandomGenerator>

#include <csignal>
#include <map>
#include <ranges>
#include <sys/wait.h>
#include <unistd.h>

using namespace tallyvane;
using namespace tallyvane::tests;
using namespace std::chrono_literals;
using Outcome = core::RefreshReport::Outcome;

namespace {

/// What happens at each fsync(2). The program calls it before and after each rename(2), so a kill
/// there covers every state that a kill during a refresh can leave behind.
struct Disk {
    enum Fate { works, failsAtTimes, failsForSettings, killsProgram } fate = works;
    int callsLeft = 0; ///< until the kill
    QRandomGenerator random;
    bool hasFailed = false;
};
Disk disk;

} // namespace

/// Replaces the C library's.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): that one is reserved
int fsync(int descriptor) {
    if (disk.fate == Disk::killsProgram && --disk.callsLeft <= 0) {
        ::raise(SIGKILL);
    }
    const auto file = std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor));
    const bool isForSettings = file.parent_path().filename() == "config";
    if ((disk.fate == Disk::failsForSettings && isForSettings) ||
        (disk.fate == Disk::failsAtTimes && disk.random.bounded(3) == 0)) {
        disk.hasFailed = true;
        errno = ENOSPC;
        return -1;
    }
    return 0;
}

namespace {

/// A random sequence of figures, logs, failures, processes and times. After each refresh the files
/// must agree with what was reported.
class Course {
public:
    explicit Course(quint32 seed) : m_random(seed), m_isRough(m_random.bounded(2) == 0) {
        disk = {.random = QRandomGenerator(seed)};
        m_world.clock.advance(std::chrono::minutes{m_random.bounded(2 * 24 * 60)});
        startAll();
    }

    /// What is wrong after the step; empty if nothing is.
    [[nodiscard]] QString step() {
        static constexpr std::array actions{
            &Course::changeFigure, &Course::changeFigure, &Course::toggleFailure,
            &Course::changeLogs,   &Course::restart,      &Course::refreshBoth,
            &Course::refreshOne,   &Course::refreshOne,   &Course::refreshUntilKilled,
            &Course::toggleDisk};
        const auto roughActions = m_isRough ? 0U : 2U;
        (this->*actions.at(m_random.bounded(quint32{actions.size()} - roughActions)))();
        return m_wrong;
    }

private:
    Assistant& anyAssistant() { return m_world.assistants.at(m_random.bounded(2)); }

    void startAll() {
        for (auto& writer : m_writers) {
            writer = std::make_unique<Writer>(m_world, randomZone());
        }
    }

    QByteArray randomZone() {
        static constexpr std::array zones{"UTC", "America/New_York", "Pacific/Kiritimati",
                                          "Pacific/Pago_Pago", "America/Santiago"};
        return zones.at(m_random.bounded(quint32{zones.size()}));
    }

    /// Sometimes before it ended, but never so much later that the history loses a day.
    void restart() {
        m_world.clock.advance(std::chrono::minutes{m_random.bounded(-30 * 60, 48 * 60)});
        m_writers.at(m_random.bounded(2)) = std::make_unique<Writer>(m_world, randomZone());
    }

    void toggleFailure() {
        Assistant& assistant = anyAssistant();
        assistant.isFailing = !assistant.isFailing;
    }

    /// Mostly more.
    double moreOrLess(double figure) {
        const double step = m_random.bounded(1, 5000);
        const std::array choices{0.0, std::max(figure - step, 0.0), figure + step};
        return choices.at(std::min(m_random.bounded(6), 2));
    }

    void changeFigure() {
        Assistant& assistant = anyAssistant();
        const double used = moreOrLess(assistant.used.value_or(0) * 100) / 100;
        assistant.used = m_random.bounded(6) == 0 ? Figure() : used;
    }

    void changeLogs() {
        Assistant& assistant = anyAssistant();
        m_world.setTokens(assistant, std::llround(moreOrLess(double(assistant.tokens))));
    }

    void toggleDisk() {
        const auto fault = m_random.bounded(2) == 0 ? Disk::failsAtTimes : Disk::failsForSettings;
        disk.fate = disk.fate == Disk::works ? fault : Disk::works;
    }

    void tellTokens() {
        for (Assistant& assistant : m_world.assistants) {
            assistant.toldTokens << (assistant.tokens == 0 ? Figure() : Figure(assistant.tokens));
        }
    }

    void refreshOne() {
        Writer& writer = *m_writers.at(m_random.bounded(2));
        tellTokens();
        check(writer, writer.refresh());
    }

    void refreshBoth() {
        std::swap(m_writers[0], m_writers.at(m_random.bounded(2)));
        tellTokens();
        m_world.isHoldingAnswers = true;
        const auto first = m_writers[0]->model.refresh(providers::AskedBy::user);
        const auto second = m_writers[1]->model.refresh(providers::AskedBy::user);
        m_world.clock.advance(std::chrono::minutes{m_random.bounded(120)});
        QCoreApplication::processEvents();
        m_world.letAnswer();
        check(*m_writers[0], QCoro::waitFor(first).outcome);
        changeFigure();
        tellTokens();
        m_world.clock.advance(100ms); // the second one tries the lock again
        check(*m_writers[1], QCoro::waitFor(second).outcome);
    }

    /// Refreshes in a child process that is killed at a random fsync(2).
    void refreshUntilKilled() {
        m_writers = {}; // threads do not survive a fork
        tellTokens();
        for (Assistant& assistant : m_world.assistants) { // in the other process
            assistant.toldUsed << (assistant.isFailing ? assistant.toldUsed.last()
                                                       : assistant.used);
        }
        const QByteArray zone = randomZone();
        const Disk killer{.fate = Disk::killsProgram, .callsLeft = m_random.bounded(1, 12)};
        const pid_t program = ::fork();
        if (program == 0) {
            disk = killer;
            Writer(m_world, zone).refresh();
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(program, &status, 0);
        expect(WIFEXITED(status) || WTERMSIG(status) == SIGKILL, "the program crashed");
        m_hasLost |= WIFSIGNALED(status);
        check(Writer(m_world, zone), WIFEXITED(status) ? Outcome::published : Outcome::notSaved);
        startAll();
    }

    void check(const Writer& by, Outcome outcome) {
        const bool isPublished = outcome == Outcome::published;
        m_hasLost |= std::exchange(disk.hasFailed, false);
        expect(isPublished || m_hasLost, "nothing was saved although nothing failed");

        const auto snapshot = by.store.loadSnapshot();
        expect(snapshot || m_hasLost, "no snapshot is stored");
        for (Assistant& assistant : m_world.assistants) {
            const auto week =
                snapshot ? model::entryFor(*snapshot, assistant.id).week : std::nullopt;
            const Figure stored = week ? Figure(week->usedPercent) : std::nullopt;
            // After a failed save, the next refresh starts from what the history accounts for.
            const bool isKept = stored == assistant.stored ||
                                (m_hasLost && (!stored || assistant.toldUsed.contains(stored)));
            expect(stored == assistant.toldUsed.last() ||
                       (isKept && (!isPublished || assistant.isFailing)),
                   "the stored figure is not the last one reported");
            assistant.stored = stored;
        }

        const QByteArray json =
            readFile(QString::fromStdString(by.store.baseURL() / "usage-history.json"));
        const auto decoded = history::decodeHistory(json);
        expect(decoded || (json.isEmpty() && m_hasLost), "the history does not decode");
        const auto history = decoded.value_or(history::UsageHistory());
        expect(!isPublished || history == by.model.history(),
               "the shown history differs from the stored one");
        checkDays(by.zone, history);
        for (const Assistant& assistant : m_world.assistants) {
            double quota = 0;
            double tokens = 0;
            for (const history::UsageHistoryPoint& point : history.points) {
                expect(point.estimatedQuotaConsumed >= 0 && point.estimatedLocalTokens >= 0,
                       "a negative figure");
                const bool isIts = point.provider == assistant.id;
                quota += isIts ? point.estimatedQuotaConsumed : 0;
                tokens += isIts ? static_cast<double>(point.estimatedLocalTokens) : 0;
            }
            compare(quota, assistant.toldUsed, "the quota is miscounted");
            compare(tokens, assistant.toldTokens, "the tokens are miscounted");
        }
    }

    /// Only today's points may change, and each assistant has one a day.
    void checkDays(const model::LocalZone& zone, const history::UsageHistory& history) {
        const QDate today = history::localDay(m_world.clock.now(), zone);
        std::map<QString, history::UsageHistoryPoint> points;
        for (const history::UsageHistoryPoint& point : history.points) {
            const auto old = m_points.find(history::id(point));
            expect(old == m_points.end()
                       ? point.date == history::startOfDay(today, zone)
                       : point == old->second || history::localDay(point.date, zone) == today,
                   "a day other than today changed");
            expect(points.emplace(history::id(point), point).second, "a day has two points");
        }
        expect(std::ranges::includes(points | std::views::keys, m_points | std::views::keys),
               "a point is lost");
        m_points = std::move(points);
    }

    /// What was counted must be the sum of all rises from one figure to the next. If figures were
    /// lost, it may be less, and rises may span the gaps.
    void compare(double counted, const QList<Figure>& told, const char* what) {
        double exact = 0;
        double most = 0;
        Figure before;
        Figure lastKnown;
        for (const Figure& figure : told) {
            exact += before && figure ? std::max(*figure - *before, 0.0) : 0;
            most += lastKnown && figure ? std::max(*figure - *lastKnown, 0.0) : 0;
            before = figure;
            lastKnown = figure ? figure : lastKnown;
        }
        constexpr double tolerance = 1e-6;
        expect(counted <= most + tolerance && (m_hasLost || std::abs(counted - exact) <= tolerance),
               what);
    }

    void expect(bool isTrue, const char* otherwise) {
        if (!isTrue && m_wrong.isEmpty()) {
            m_wrong = QString::fromUtf8(otherwise);
        }
    }

    QRandomGenerator m_random;
    bool m_isRough;         ///< processes may be killed and the disk may fail
    bool m_hasLost = false; ///< that happened, so figures may have been lost
    World m_world;
    std::array<std::unique_ptr<Writer>, 2> m_writers;
    std::map<QString, history::UsageHistoryPoint> m_points; ///< of the history last seen, by id
    QString m_wrong;
};

} // namespace

/// The refresh cycle over days, in several processes. TALLYVANE_COURSES sets the number of courses,
/// TALLYVANE_COURSE_SEED repeats one of them.
class RefreshCoursesTest : public HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void countsEverythingOnce() {
        constexpr int steps = 30;
        const int given = qEnvironmentVariableIntValue("TALLYVANE_COURSE_SEED");
        const int wanted = qEnvironmentVariableIntValue("TALLYVANE_COURSES");
        const int courses = given > 0 ? 1 : std::max(wanted, COURSES);
        for (int i = 0; i < courses; ++i) {
            const int seed = given > 0 ? given : QRandomGenerator::global()->bounded(1, INT_MAX);
            Course course(seed);
            for (int step = 1; step <= steps; ++step) {
                const QString wrong = course.step();
                const auto where = QStringLiteral("TALLYVANE_COURSE_SEED=%1, step %2: ");
                QVERIFY2(wrong.isEmpty(), qPrintable(where.arg(seed).arg(step) + wrong));
            }
        }
    }
};

TALLYVANE_TEST(RefreshCoursesTest)
#include "refresh_courses_test.moc"
