#pragma once

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

namespace tallyvane::tests {

/// The base of every test class: a warning that the test does not expect fails it.
class HermeticTest : public QObject {
    Q_OBJECT

protected Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }
};

/// Gives the program an empty home and nothing of the caller's session.
void isolate(const QTemporaryDir& home);

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
