#pragma once

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

namespace tallyvane::tests {

/// The base of every test class: a warning that the test does not expect fails it.
class HermeticTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }
};

/// Gives the program an empty home and nothing of the caller's session.
inline void isolate(const QTemporaryDir& home) {
    const QByteArray path = home.path().toUtf8();
    qputenv("HOME", path);
    qputenv("XDG_DATA_HOME", path + "/data");
    qputenv("XDG_CONFIG_HOME", path + "/config");
    qputenv("XDG_RUNTIME_DIR", path);
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path + "/no-bus");
    qputenv("TZ", "UTC");
    qputenv("LANG", "C.UTF-8");
    for (const char* name : {"LC_ALL", "LC_TIME", "DISPLAY", "WAYLAND_DISPLAY", "http_proxy",
                             "https_proxy", "all_proxy", "GAUGEWELL_USE_FIXTURES"}) {
        qunsetenv(name);
    }
}

} // namespace tallyvane::tests

/// The main function of a test program of one test class.
#define TALLYVANE_TEST_MAIN(TestClass)                                                             \
    int main(int argc, char** argv) {                                                              \
        const QTemporaryDir home;                                                                  \
        tallyvane::tests::isolate(home);                                                           \
        QCoreApplication application(argc, argv);                                                  \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
