#include "providers/claude/claude_credentials.h"
#include "providers/claude/proxy_choice.h"
#include "providers/claude/usage_reply.h"
#include "providers/codex/rate_limits_reply.h"
#include "providers/reply_reading.h"
#include "support/home_files.h"
#include "support/test_main.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace tallyvane;

namespace {

constexpr model::Timestamp readAt = std::chrono::sys_days{std::chrono::year{2026} / 4 / 10};
const QString none = u"-"_s;

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
    return isCurrent ? members.join(u", "_s) : u"not current"_s;
}

QString signIn(const QByteArray& json) {
    const auto record = providers::parseSignInRecord(json);
    const QStringList members{QString::fromUtf8(record ? record->accessToken : "unusable"),
                              record ? text(record->expiresAt) : QString(),
                              record ? record->subscriptionType.value_or(none) : QString()};
    return members.join(u' ').trimmed();
}

QString usageReply(const QByteArray& json) {
    const auto entry = providers::parseUsageReply(json, u"team_premium"_s, readAt);
    return entry ? text(*entry) : providers::quotaFailure(entry.error()).text.text();
}

QString rateLimits(const QByteArray& json) {
    const auto reply = providers::parseObject(json);
    const auto entry = providers::parseRateLimitsReply(reply.value(), readAt);
    return entry ? text(*entry) : entry.error().text.text();
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
        return u"direct"_s;
    }
    const bool isSocks = chosen.type() == QNetworkProxy::Socks5Proxy;
    const QString user = chosen.user() + u'|' + chosen.password() + u'@';
    return (isSocks ? u"socks5://"_s : u"http://"_s) + (chosen.user().isEmpty() ? u""_s : user) +
           chosen.hostName() + u':' + QString::number(chosen.port());
}

} // namespace

/// Reads what others wrote: the cases of tests/data/readings.txt.
class ReadingsTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void reads() {
        using Reader = QString (*)(const QByteArray&);
        const std::map<QString, Reader> readers{{u"sign-in"_s, signIn},
                                                {u"usage"_s, usageReply},
                                                {u"rate-limits"_s, rateLimits},
                                                {u"proxy"_s, proxy}};
        const QByteArray file =
            tests::readFile(QStringLiteral(TALLYVANE_TEST_DATA "/readings.txt"));
        const QStringList cases = QString::fromUtf8(file).trimmed().split(u"\n\n"_s);
        for (const QString& each : cases.sliced(1)) {
            const QStringList lines = each.split(u'\n');
            const QString name = lines[0] + u'\n';
            const Reader reader = readers.at(lines[0].section(u':', 0, 0));
            QCOMPARE(name + reader(lines[1].toUtf8()), name + lines[2]);
        }
    }

    void servesOnlyTokensValidForAMinute() {
        providers::TokenCache cache;
        QVERIFY(!cache.usableAt(readAt));
        const std::pair<std::optional<model::Timestamp>, bool> expiries[] = {
            {std::nullopt, false}, {readAt + 60s, false}, {readAt + 60s + 1us, true}};
        for (const auto& [expiry, isServed] : expiries) {
            cache.replace({.accessToken = "t", .expiresAt = expiry, .subscriptionType = {}});
            QCOMPARE(cache.usableAt(readAt).has_value(), isServed);
        }
        cache.clear();
        QVERIFY(!cache.usableAt(readAt));
    }
};

TALLYVANE_TEST(ReadingsTest)
#include "readings_test.moc"
