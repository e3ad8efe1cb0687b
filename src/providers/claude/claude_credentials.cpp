#include "providers/claude/claude_credentials.h"

#include "model/file_io.h"
#include "providers/reply_reading.h"

namespace tallyvane::providers {

namespace {

/// Clamped to the range of a timestamp.
model::Timestamp expiry(double milliseconds) {
    using namespace std::chrono;
    constexpr sys_seconds earliest = sys_days{year{0} / January / 1};
    constexpr sys_seconds latest = sys_days{year{9999} / December / 31};
    const auto seconds = [](sys_seconds moment) {
        return static_cast<double>(moment.time_since_epoch().count());
    };
    return model::timestampFromUnixSeconds(
               std::clamp(milliseconds / 1000, seconds(earliest), seconds(latest)))
        .value_or(earliest);
}

bool isControl(QChar c) {
    return c.category() == QChar::Other_Control;
}

} // namespace

std::optional<Credentials> parseSignInRecord(const QByteArray& json) {
    const auto record = parseObject(json).value_or(QJsonObject());
    const QJsonObject signIn = record[QLatin1StringView("claudeAiOauth")].toObject();
    const QString token = signIn[QLatin1StringView("accessToken")].toString();
    if (token.isEmpty() || std::ranges::any_of(token, isControl)) {
        return std::nullopt;
    }
    const auto milliseconds = numberMember(signIn, QLatin1StringView("expiresAt"));
    return Credentials{
        .accessToken = token.toUtf8(),
        .expiresAt = milliseconds ? std::optional(expiry(*milliseconds)) : std::nullopt,
        .subscriptionType = textMember(signIn, QLatin1StringView("subscriptionType"))};
}

QCoro::Task<std::expected<Credentials, ClaudeQuotaError>>
readStoredCredentials(platform::SecretStore* store, QString keychainService,
                      std::filesystem::path file) {
    ClaudeQuotaError none{.kind = ClaudeQuotaError::Kind::noCredentials};
    const auto secret = co_await store->lookup(keychainService);
    std::optional<Credentials> credentials;
    if (secret) {
        credentials = parseSignInRecord(secret->bytes);
    } else {
        none.reason = secret.error().reason;
        none.isKeyringLocked = secret.error().kind == platform::SecretStoreError::Kind::locked;
    }
    if (!credentials) {
        const auto bytes = model::readFile(file, maximumRecordSize);
        credentials = parseSignInRecord(bytes.value_or(QByteArray()));
    }
    if (!credentials) {
        co_return std::unexpected(none);
    }
    co_return *std::move(credentials);
}

std::optional<Credentials> TokenCache::usableAt(model::Timestamp now) const {
    const bool isUsable =
        m_value && m_value->expiresAt && *m_value->expiresAt > now + std::chrono::seconds{60};
    return isUsable ? m_value : std::nullopt;
}

} // namespace tallyvane::providers
