#include "support/test_main.h"

#include <QtCore/QDir>

#include <unistd.h>

namespace tallyvane::tests {

std::map<std::string, Run>& knownTests() {
    static std::map<std::string, Run> tests;
    return tests;
}

bool add(const std::filesystem::path& sourceFile, Run run) {
    return knownTests().emplace(sourceFile.stem(), run).second;
}

bool comesTrue(const std::function<bool()>& condition) {
    constexpr int afterFailure = 1000;
    static bool hasFailed = false;
    const bool isTrue = QTest::qWaitFor(condition, hasFailed ? afterFailure : patience);
    hasFailed = hasFailed || !isTrue;
    return isTrue;
}

int HermeticTest::execute(int argc, char** argv) {
    constexpr int skipped = 77; // SKIP_RETURN_CODE in cmake/targets.cmake
    QDir::setCurrent(QDir::tempPath());
    const int failures = QTest::qExec(this, argc, argv);
    return failures == 0 && m_hasSkipped ? skipped : failures;
}

bool HermeticTest::maySkip() {
    m_hasSkipped = true;
    return !qEnvironmentVariableIsSet("CI") || ::geteuid() != 0;
}

void HermeticTest::init() {
    // Windows in memory have no manager that could heed their limits.
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!.* propagateSizeHints\\(\\)$)")));
    // A failure in a class's own cleanup() keeps ours from being reached.
    m_hasFailed = m_hasFailed || m_isUnderWay;
    m_isUnderWay = true;
    if (m_hasFailed && m_afterFailure == AfterFailure::stop) {
        QSKIP("an earlier function failed");
    }
}

void HermeticTest::cleanup() {
    m_isUnderWay = QTest::currentTestFailed();
}

void isolate(const QTemporaryDir& directory) {
    constexpr auto ownersAlone = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    for (const char* folder : {"home", "tmp"}) {
        QDir(directory.path()).mkdir(QLatin1StringView(folder), ownersAlone);
    }
    qputenv("TMPDIR", directory.filePath(QStringLiteral("tmp")).toUtf8());
    const QByteArray home = directory.filePath(QStringLiteral("home")).toUtf8();
    qputenv("HOME", home);
    qputenv("XDG_DATA_HOME", home + "/data");
    qputenv("XDG_CONFIG_HOME", home + "/config");
    qputenv("XDG_RUNTIME_DIR", home);
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + home + "/no-bus");
    qputenv("TZ", "UTC");
    qputenv("LANG", "C.UTF-8");
    for (const char* name :
         {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LC_TIME", "DISPLAY", "WAYLAND_DISPLAY",
          "http_proxy", "HTTP_PROXY", "https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY",
          "no_proxy", "NO_PROXY", "CODEX_HOME", "CLAUDE_CONFIG_DIR", "SSL_CERT_FILE",
          "SSL_CERT_DIR", "GAUGEWELL_USE_FIXTURES"}) {
        qunsetenv(name);
    }
}

} // namespace tallyvane::tests

#include "moc_test_main.cpp"
