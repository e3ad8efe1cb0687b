#pragma once

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <filesystem>
#include <functional>
#include <map>
#include <string>

namespace tallyvane::tests {

/// How long a test waits for something that has to happen, in milliseconds. The program itself
/// waits for up to 20 s, and sanitizers and other tests slow it down.
inline constexpr int patience = 30'000;

/// For the macros below: whether it came true in time.
bool comesTrue(const std::function<bool()>& condition);

/// The base of every test class. An unexpected warning fails the running function.
class HermeticTest : public QObject {
    Q_OBJECT

public:
    /// Runs the test functions in the folder for temporary files. Returns Qt Test's exit code, or
    /// the one by which ctest knows a skipped test when nothing failed but something was skipped.
    int execute(int argc, char** argv);

protected:
    enum class AfterFailure {
        goOn,
        stop, ///< skips the rest, where each function would wait in vain until its patience ends
    };
    explicit HermeticTest(AfterFailure afterFailure = AfterFailure::goOn)
        : m_afterFailure(afterFailure) {}

    /// For TALLYVANE_SKIP: whether the running function may be skipped on this machine.
    bool maySkip();

protected Q_SLOTS:
    // A class with its own calls these, init() first and cleanup() last.
    void init();
    void cleanup();

private:
    AfterFailure m_afterFailure;
    bool m_hasFailed = false;
    bool m_hasSkipped = false;
    bool m_isUnderWay = false;
};

/// Gives the program an empty home and an empty folder for temporary files, both in `directory`,
/// and nothing of the caller's session.
void isolate(const QTemporaryDir& directory);

using Run = int (*)(int argc, char** argv);

/// The tests of this program by the names of their source files.
std::map<std::string, Run>& knownTests();

/// Lets main() run a test by the name of its source file; true.
bool add(const std::filesystem::path& sourceFile, Run run);

} // namespace tallyvane::tests

/// Leaves a test function for want of something that the machine does not offer. Where CI is set
/// and root runs the tests, the machine has to offer everything, and the function fails instead.
#define TALLYVANE_SKIP(reason)                                                                     \
    do {                                                                                           \
        if (!maySkip()) {                                                                          \
            QFAIL(reason);                                                                         \
        }                                                                                          \
        QSKIP(reason);                                                                             \
    } while (false)

/// QTRY_VERIFY and QTRY_COMPARE within `patience`, which those exceed by far when looking takes
/// long. After one has failed, the others of the program wait a second.
#define TALLYVANE_TRY_VERIFY(condition)                                                            \
    QVERIFY(tallyvane::tests::comesTrue([&] { return bool(condition); }))
#define TALLYVANE_TRY_COMPARE(actual, expected)                                                    \
    do {                                                                                           \
        void(tallyvane::tests::comesTrue([&] { return (actual) == (expected); }));                 \
        QCOMPARE(actual, expected);                                                                \
    } while (false)

/// Adds a test class to the test program of its folder, under the name of its source file.
#define TALLYVANE_TEST(TestClass)                                                                  \
    static const bool is##TestClass##Added =                                                       \
        tallyvane::tests::add(__FILE__, [](int argc, char** argv) {                                \
            const QCoreApplication application(argc, argv);                                        \
            return TestClass().execute(argc, argv);                                                \
        });
