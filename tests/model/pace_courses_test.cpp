#include "model/recent_use.h"
#include "support/test_main.h"

#include <cmath>
#include <random>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace tallyvane::model;

namespace {

const Timestamp courseStart{1000h};

/// How busy a user is `hours` after the window's start; the week begins at one in the morning.
struct Course {
    const char* name = nullptr;
    QuotaPeriod period{};
    double (*activity)(double hours) = nullptr;
    double largestError = 0; ///< the median in percent of the window
    bool isHelped = false;   ///< by the rate of late; the others are not harmed by it
};

double hours(std::chrono::duration<double, std::ratio<3600>> duration) {
    return duration.count();
}

double timeOfDay(double hours) {
    return std::fmod(hours + 1, 24);
}

bool isWorkTime(double hours) {
    return timeOfDay(hours) >= 9 && timeOfDay(hours) < 18;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + std::ssize(values) / 2;
    std::ranges::nth_element(values, middle);
    return *middle;
}

/// Percent used at the end of each step of a course that uses up its quota.
std::vector<double> replayed(const Course& course, int steps, std::uint32_t seed) {
    std::mt19937 random(seed);
    const auto between = [&random](double low, double high) {
        return low + (high - low) * (static_cast<double>(random()) / std::mt19937::max());
    };
    const double all = between(110, 200);
    const double hoursPerStep = hours(length(course.period)) / steps;
    std::vector<double> used{0};
    for (int step = 0; step < steps; ++step) {
        used.push_back(used.back() + course.activity(step * hoursPerStep) * between(0.3, 1.7));
    }
    const double scale = all / used.back();
    for (double& percent : used) {
        percent *= scale;
    }
    return used;
}

} // namespace

/// Holds what is projected at each refresh against what comes.
class PaceCoursesTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

    static ProviderQuotaSnapshot entryAt(QuotaPeriod period, Timestamp now, double used,
                                         Timestamp resetsAt) {
        ProviderQuotaSnapshot entry{.syncedAt = now, .syncState = QuotaSyncState::current};
        auto& quota = period == QuotaPeriod::week ? entry.week : entry.fiveHour;
        quota = {.usedPercent = used, .resetsAt = resetsAt};
        return entry;
    }

private Q_SLOTS:
    void foreseesTheEnd() {
        using enum QuotaPeriod;
        const Course courses[] = {
            {"steady", fiveHour, [](double) { return 1.0; }, 3.5},
            {"bursts", fiveHour,
             [](double hours) { return std::fmod(hours * 60, 50) < 25 ? 1.0 : 0.05; }, 7},
            {"late", fiveHour, [](double hours) { return hours < 2 ? 0.05 : 1.0; }, 13, true},
            {"busier later", fiveHour, [](double hours) { return hours < 2.5 ? 0.3 : 1.0; }, 18,
             true},
            {"calmer later", fiveHour, [](double hours) { return hours < 1.7 ? 1.0 : 0.4; }, 9},
            {"pause", fiveHour, [](double hours) { return hours > 1.7 && hours < 2.7 ? 0.0 : 1.0; },
             14},
            {"steady", week, [](double) { return 1.0; }, 1.5},
            {"nights", week, [](double hours) { return isWorkTime(hours) ? 1.0 : 0.0; }, 5.5},
            {"nights and a weekend", week,
             [](double hours) { return isWorkTime(hours) && hours < 120 ? 1.0 : 0.0; }, 5.5},
            {"nights and bursts", week,
             [](double hours) {
                 const bool isBusy = static_cast<int>(timeOfDay(hours)) % 3 == 0;
                 return isWorkTime(hours) ? (isBusy ? 1.0 : 0.1) : 0.0;
             },
             6},
            {"busier later", week,
             [](double hours) { return isWorkTime(hours) ? (hours < 67 ? 0.3 : 1.0) : 0.0; }, 20,
             true}};
        for (const Course& course : courses) {
            const auto interval = course.period == fiveHour ? 5min : 30min;
            const auto steps = static_cast<int>(length(course.period) / interval);
            const Timestamp resetsAt = courseStart + length(course.period);
            std::vector<double> errors;
            std::vector<double> evenErrors;
            for (std::uint32_t seed = 1; seed <= 20; ++seed) {
                const std::vector<double> used = replayed(course, steps, seed);
                RecentUse recent;
                for (int step = 0; used[step] < 100; ++step) {
                    const Timestamp now = courseStart + step * interval;
                    const auto entry = entryAt(course.period, now, used[step], resetsAt);
                    recent.add({.providers = {entry}});
                    const auto end = std::ranges::find_if(used, [](double u) { return u >= 100; });
                    const Timestamp trueEnd = courseStart + (end - used.begin()) * interval;
                    const auto addError = [&](std::vector<double>& to, const auto& found) {
                        if (found && found->isProjected && used[step] > 0) {
                            const auto error = found->runsOutAt.value_or(resetsAt) - trueEnd;
                            to.push_back(100 * std::abs(hours(error)) /
                                         hours(length(course.period)));
                        }
                    };
                    addError(errors, pace(entry, course.period, now, recent.rates()));
                    addError(evenErrors, pace(entry, course.period, now));
                }
            }
            const double error = median(errors);
            const double evenError = median(evenErrors);
            const QString told =
                u"%1 %2: %3 % of the window; %4 % by the even rate alone"_s
                    .arg(QLatin1StringView(rawValue(course.period)), QLatin1StringView(course.name))
                    .arg(error, 0, 'f', 1)
                    .arg(evenError, 0, 'f', 1);
            qInfo("%s", qPrintable(told));
            QVERIFY2(error <= course.largestError &&
                         (course.isHelped ? error < evenError - 0.5 : error <= evenError),
                     qPrintable(told));
        }
    }

    void forgets() {
        struct Row {
            const char* text;
            std::vector<std::pair<std::chrono::minutes, double>> seen; ///< when, and what was used
            std::optional<double> rate;
            std::chrono::minutes shift = 0min; ///< of the reset at the last refresh
        };
        const Row rows[] = {{"once", {{60min, 10}}, {}},
                            {"too short", {{60min, 10}, {113min, 20}}, {}},
                            {"an hour", {{60min, 10}, {90min, 10}, {120min, 20}}, 50},
                            {"the last hour", {{60min, 0}, {90min, 10}, {150min, 20}}, 50},
                            {"often", {{60min, 10}, {119min, 11}, {119min, 12}, {120min, 20}}, 50},
                            {"slept", {{60min, 10}, {180min, 20}}, {}},
                            {"reset", {{60min, 50}, {120min, 2}}, {}},
                            {"corrected", {{60min, 50}, {120min, 46}}, -20},
                            {"next window", {{60min, 1}, {120min, 2}}, {}, 300min},
                            {"reset moved", {{60min, 10}, {120min, 20}}, 50, 1min},
                            {"clock set back", {{60min, 1}, {59min, 2}, {119min, 3}}, 5}};
        for (const Row& row : rows) {
            RecentUse recent;
            for (std::size_t i = 0; i < row.seen.size(); ++i) {
                const auto shift = i + 1 == row.seen.size() ? row.shift : 0min;
                recent.add(
                    {.providers = {entryAt(QuotaPeriod::fiveHour, courseStart + row.seen[i].first,
                                           row.seen[i].second, courseStart + 300min + shift)}});
            }
            const RecentRates rates = recent.rates();
            QVERIFY2(rates.empty() == !row.rate &&
                         (!row.rate || std::abs(rates.begin()->second - *row.rate) < 1e-9),
                     row.text);
        }
    }
};

TALLYVANE_TEST(PaceCoursesTest)
#include "pace_courses_test.moc"
