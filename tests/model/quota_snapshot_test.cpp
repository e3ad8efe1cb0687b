#include "model/quota_snapshot.h"
#include "support/test_main.h"

#include <QtCore/QFile>

using namespace tallyvane::model;

namespace {

Timestamp at(QStringView text) {
    return *parseTimestamp(text, FractionalSeconds::rejected);
}

QuotaSnapshot fullSnapshot() {
    return {.providers = {{.provider = AIProvider::codex,
                           .planName = QStringLiteral("Plus \"1\"\n\u00e9\x01\\\U0001F642\xD83D"),
                           .fiveHour = QuotaWindowSnapshot{.usedPercent = 42,
                                                           .resetsAt = at(u"2025-01-31T16:00:00Z")},
                           .week = QuotaWindowSnapshot{.usedPercent = 0.1},
                           .syncedAt = at(u"2025-01-31T14:05:00Z"),
                           .syncState = QuotaSyncState::current},
                          {.provider = AIProvider::claude,
                           .statusMessage = QStringLiteral("Rate limited")}},
            .updatedAt = at(u"2025-01-31T14:05:00Z")};
}

/// fullSnapshot() as it stands on the disk.
QByteArray fullJson() {
    QFile file(QStringLiteral(TALLYVANE_TEST_DATA "/quota-snapshot.json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class QuotaSnapshotTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void layout() {
        QCOMPARE(QString::fromUtf8(*encodeSnapshot(fullSnapshot())), QString::fromUtf8(fullJson()));
        QuotaSnapshot readable = fullSnapshot();
        readable.providers[0].planName = QStringLiteral("Plus \"1\" \u00e9\\\U0001F642");
        QVERIFY(decodeSnapshot(fullJson()) == readable);
        QCOMPARE(*encodeSnapshot({.updatedAt = at(u"2025-01-31T14:05:00Z")}),
                 QByteArray("{\n  \"providers\" : [],\n  \"schemaVersion\" : 1,\n"
                            "  \"updatedAt\" : \"2025-01-31T14:05:00Z\"\n}"));
    }

    void numbers_data() {
        QTest::addColumn<double>("number");
        QTest::addColumn<QByteArray>("text"); // empty: cannot be encoded
        QTest::newRow("whole") << 100.0 << QByteArray("100");
        QTest::newRow("negative zero equals zero") << -0.0 << QByteArray("0");
        QTest::newRow("shortest") << 1.0 / 3 << QByteArray("0.3333333333333333");
        QTest::newRow("sum") << 0.1 + 0.2 << QByteArray("0.30000000000000004");
        QTest::newRow("small") << 5e-324 << QByteArray("5e-324");
        QTest::newRow("large") << 1e300 << QByteArray("1e+300");
        QTest::newRow("infinite") << qInf() << QByteArray();
        QTest::newRow("no number") << qQNaN() << QByteArray();
    }

    void numbers() {
        QFETCH(double, number);
        QFETCH(QByteArray, text);
        const QuotaSnapshot snapshot{
            .providers = {{.week = QuotaWindowSnapshot{.usedPercent = number}}}};
        const auto json = encodeSnapshot(snapshot);
        QCOMPARE(json.has_value(), !text.isEmpty());
        if (json) {
            QVERIFY2(json->contains("\"usedPercent\" : " + text + '\n'), json->constData());
            QVERIFY(decodeSnapshot(*json) == snapshot);
        }
    }

    /// Each row changes one place of a whole document.
    void decodesStrictly_data() {
        QTest::addColumn<QByteArray>("place");
        QTest::addColumn<QByteArray>("change");
        QTest::addColumn<bool>("accepted");
        const auto row = [](const char* name, const char* place, const char* change,
                            bool accepted) {
            QTest::newRow(name) << QByteArray(place) << QByteArray(change) << accepted;
        };
        row("unchanged", "42", "42", true);
        row("other version", "\"schemaVersion\" : 1", "\"schemaVersion\" : -7", true);
        row("whole number with a fraction", "\"schemaVersion\" : 1", "\"schemaVersion\" : 1.0",
            true);
        row("extra key", "\"schemaVersion\"", "\"extra\" : [{}], \"schemaVersion\"", true);
        row("null for an optional", "\"Rate limited\"", "null", true);
        row("null window", "{\n        \"usedPercent\" : 0.1\n      }", "null", true);
        row("no version", "\"schemaVersion\"", "\"x\"", false);
        row("fractional version", "\"schemaVersion\" : 1", "\"schemaVersion\" : 1.5", false);
        row("textual version", "\"schemaVersion\" : 1", "\"schemaVersion\" : \"1\"", false);
        row("huge version", "\"schemaVersion\" : 1", "\"schemaVersion\" : 1e30", false);
        row("null version", "\"schemaVersion\" : 1", "\"schemaVersion\" : null", false);
        row("no providers", "\"providers\"", "\"x\"", false);
        row("provider list holds a number", "\"providers\" : [", "\"providers\" : [1, ", false);
        row("no updatedAt", "\"updatedAt\"", "\"x\"", false);
        row("no provider", "\"provider\" : \"claude\"", "\"x\" : 1", false);
        row("unknown provider", "\"provider\" : \"claude\"", "\"provider\" : \"Claude\"", false);
        row("no syncState", "\"syncState\" : \"current\"", "\"x\" : 1", false);
        row("unknown syncState", "unavailable", "stale", false);
        row("no usedPercent", "\"usedPercent\" : 0.1", "\"x\" : 0.1", false);
        row("null usedPercent", "0.1", "null", false);
        row("textual usedPercent", "0.1", "\"0.1\"", false);
        row("true usedPercent", "0.1", "true", false);
        row("endless usedPercent", "0.1", "1e999", false);
        row("window is a number", "{\n        \"usedPercent\" : 0.1\n      }", "7", false);
        row("plan is a number", "\"planName\" : ", "\"planName\" : 7, \"x\" : ", false);
        row("date with fraction", "16:00:00Z", "16:00:00.000Z", false);
        row("date without zone", "16:00:00Z", "16:00:00", false);
        row("impossible date", "16:00:00Z", "25:00:00Z", false);
        row("date is a number", "\"2025-01-31T16:00:00Z\"", "1738339200", false);
        row("cut short", "\"\n}", "\"\n", false);
        row("trailing text", "\"\n}", "\"\n} x", false);
        row("a list", "{\n  \"providers\"", "[{\"providers\"", false);
    }

    void decodesStrictly() {
        QFETCH(QByteArray, place);
        QFETCH(QByteArray, change);
        QFETCH(bool, accepted);
        QByteArray json = fullJson();
        QVERIFY(json.contains(place));
        json.replace(place, change);
        const auto decoded = decodeSnapshot(json);
        QCOMPARE(decoded.has_value(), accepted);
        QVERIFY(decoded || !decoded.error().message.isEmpty());
    }
};

TALLYVANE_TEST_MAIN(QuotaSnapshotTest)
#include "quota_snapshot_test.moc"
