#include "providers/claude/claude_credentials.h"
#include "providers/claude/proxy_choice.h"
#include "providers/claude/usage_reply.h"
#include "providers/codex/rate_limits_reply.h"
#include "providers/reply_reading.h"
#include "support/home_files.h"
#include "support/test_main.h"

using namespace tallyvane;
using namespace std::chrono_literals;

namespace {

constexpr model::Timestamp readAt = std::chrono::sys_days{std::chrono::year{2026} / 4 / 10};
const QString none = QStringLiteral("-");

QString text(const std::optional<model::Timestamp>& timestamp) {
    return timestamp ? model::formatTimestamp(*timestamp) : none;
}

QString text(const std::optional<model::QuotaWindowSnapshot>& window) {
    return window ? QString::number(window->usedPercent) + u' ' + text(window->resetsAt) : none;
}

QString text(const model::ProviderQuotaSnapshot& entry) {
    const bool isCurrent =
        entry.syncedAt == readAt && entry.syncState == model::QuotaSyncState::current;
    const QStringList members{model::rawValue(entry.provider), entry.planName.value_or(none),
                              text(entry.fiveHour), text(entry.week)};
    return isCurrent ? members.join(QStringLiteral(", ")) : QStringLiteral("not current");
}

QString signIn(const QByteArray& json) {
    const auto record = providers::parseSignInRecord(json);
    const QStringList members{QString::fromUtf8(record ? record->accessToken : "unusable"),
                              record ? text(record->expiresAt) : QString(),
                              record ? record->subscriptionType.value_or(none) : QString()};
    return members.join(u' ').trimmed();
}

QString usageReply(const QByteArray& json) {
    const auto entry = providers::parseUsageReply(json, QStringLiteral("team_premium"), readAt);
    return entry ? text(*entry) : providers::quotaFailure(entry.error()).text;
}

QString rateLimits(const QByteArray& json) {
    const auto reply = providers::parseObject(json);
    const auto entry = providers::parseRateLimitsReply(reply.value(), readAt);
    return entry ? text(*entry) : entry.error().text;
}

QString proxy(const QByteArray& input) {
    const QStringList values = QString::fromUtf8(input).split(u'\t');
    const providers::ProxyVariables variables{values[0], values[1], values[2]};
    const auto choice = providers::chosenProxy(variables, values[3], 443);
    if (!choice || !*choice) {
        return choice ? none : choice.error();
    }
    const QNetworkProxy& chosen = **choice;
    if (chosen.type() == QNetworkProxy::NoProxy) {
        return QStringLiteral("direct");
    }
    const bool isSocks = chosen.type() == QNetworkProxy::Socks5Proxy;
    const QString user = chosen.user() + u'|' + chosen.password() + u'@';
    return QStringLiteral("%1://%2%3:%4")
        .arg(isSocks ? QStringLiteral("socks5") : QStringLiteral("http"),
             chosen.user().isEmpty() ? QString() : user, chosen.hostName())
        .arg(chosen.port());
}

} // namespace

/// Reads what others wrote: the cases of tests/data/readings.txt.
class ReadingsTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void reads_data() {
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<QString>("expected");
        QString file = QStringLiteral(TALLYVANE_TEST_DATA "/readings.txt");
        const QStringList cases =
            QString::fromUtf8(tests::readFile(file)).trimmed().split(QStringLiteral("\n\n"));
        for (const QString& each : cases.sliced(1)) {
            const QStringList lines = each.split(u'\n');
            QTest::addRow("%s, %s", qPrintable(lines[0]), qPrintable(lines[1].left(200)))
                << lines[1].toUtf8() << lines[2];
        }
    }
    void reads() {
        using Reader = QString (*)(const QByteArray&);
        static const QMap<QByteArray, Reader> readers{{"sign-in", signIn},
                                                      {"usage", usageReply},
                                                      {"rate-limits", rateLimits},
                                                      {"proxy", proxy}};
        QFETCH(const QByteArray, input);
        QTEST(readers[QByteArray(QTest::currentDataTag()).split(':').first()](input), "expected");
    }

    void servesOnlyTokensValidForAMinute() {
        providers::TokenCache cache;
        const auto isServed = [&cache](std::optional<model::Timestamp> expiry) {
            cache.replace({.accessToken = "t", .expiresAt = expiry, .subscriptionType = {}});
            return cache.usableAt(readAt).has_value();
        };
        QVERIFY(!cache.usableAt(readAt));
        QVERIFY(!isServed(std::nullopt));
        QVERIFY(!isServed(readAt + 60s));
        QVERIFY(isServed(readAt + 60s + 1us));
        cache.clear();
        QVERIFY(!cache.usableAt(readAt));
    }
};

TALLYVANE_TEST(ReadingsTest)
#include "readings_test.moc"
