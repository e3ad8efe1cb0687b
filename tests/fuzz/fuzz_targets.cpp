// One function per fuzz target checks one input, and aborts where something does not hold.

#include "fuzz/readable.h"
#include "history/usage_history.h"
#include "model/foreign_text.h"
#include "model/ini_text.h"
#include "model/locale_labels.h"
#include "providers/claude/claude_credentials.h"
#include "providers/claude/http_response_parser.h"
#include "providers/claude/proxy_choice.h"
#include "providers/claude/usage_reply.h"
#include "providers/codex/rate_limits_reply.h"
#include "providers/reply_reading.h"
#include "providers/response_collector.h"
#include "support/library_line_tokens.h"
#include "support/plain_session_log.h"

#include <cstring>

namespace tallyvane::fuzz {

namespace {

using namespace Qt::StringLiterals;
using providers::HttpResponseParser;
using providers::ResponseCollector;

/// Makes the fuzzer report the input unless the condition holds.
void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

/// The number that the first byte stands for.
qsizetype number(QByteArrayView bytes) {
    return static_cast<unsigned char>(bytes.front());
}

/// What the snapshot, which can be stored and shown, is when it has been stored.
model::QuotaSnapshot stored(const model::QuotaSnapshot& snapshot) {
    const auto json = model::encodeSnapshot(snapshot);
    require(json.has_value());
    const auto stored = model::decodeSnapshot(*json);
    require(stored.has_value());
    for (const model::ProviderQuotaSnapshot& entry : snapshot.providers) {
        const QString plan = entry.planName.value_or(QString());
        require(tests::isReadableLine(plan, model::maximumPlanNameLength));
        require(tests::isReadableLine(entry.statusMessage.value_or(QString()), 256));
    }
    return *stored;
}

QByteArray outcome(HttpResponseParser::Answer answer, QByteArrayView stream, qsizetype size) {
    HttpResponseParser parser(answer);
    auto progress = HttpResponseParser::Progress::needsMore;
    while (!stream.isEmpty() && progress == HttpResponseParser::Progress::needsMore) {
        const QByteArrayView piece = stream.first(std::min(size, stream.size()));
        progress = parser.take(piece.toByteArray());
        stream = stream.sliced(piece.size());
    }
    const bool isCutOff = progress == HttpResponseParser::Progress::needsMore;
    // Longer pieces can reveal earlier that an answer is malformed.
    if (progress == HttpResponseParser::Progress::malformed ||
        (isCutOff && !parser.isCompleteAtEnd())) {
        return "none";
    }
    const providers::HttpResponse response = parser.response();
    // The body is only used with status 200.
    return QByteArray::number(response.status) + ' ' + response.retryAfter + ' ' +
           (response.status == 200 ? response.body : QByteArray());
}

/// Feeds `stream` to both outputs, in chunks of the given sizes, cyclically.
providers::CommandReply collected(QByteArrayView stream, QByteArrayView sizes) {
    ResponseCollector collector;
    for (qsizetype turn = 0; !stream.isEmpty(); ++turn) {
        const qsizetype size = number(sizes.sliced(turn % sizes.size())) + 1;
        const QByteArrayView chunk = stream.first(std::min(size, stream.size()));
        collector.appendError(chunk);
        collector.appendOutput(chunk);
        stream = stream.sliced(chunk.size());
    }
    collector.timeoutFired();
    return collector.waitForResult().result();
}

} // namespace

// Named like the programs.
// NOLINTBEGIN(readability-identifier-naming)

/// A token must not end the header that it goes into.
void credentials(const QByteArray& input) {
    if (const auto record = providers::parseSignInRecord(input)) {
        const auto& token = record->accessToken;
        require(!token.isEmpty() && !token.contains('\n') && !token.contains('\r') &&
                !token.contains('\0'));
    }
}

/// Whatever decodes must encode, and decode to the same again.
void history(const QByteArray& input) {
    if (const auto history = history::decodeHistory(input)) {
        const auto encoded = history::encodeHistory(*history);
        require(encoded && history::decodeHistory(*encoded) == *history);
    }
}

/// Splitting an answer differently must not change the result. The first byte is the size of the
/// pieces.
void http_response(const QByteArray& input) {
    if (input.size() > 1) {
        const qsizetype size = number(input) + 1;
        const QByteArrayView stream = QByteArrayView(input).sliced(1);
        const auto whole = HttpResponseParser::Answer::whole;
        require(outcome(whole, stream, size) == outcome(whole, stream, stream.size()));
        (void)outcome(HttpResponseParser::Answer::header, stream, size);
    }
}

/// Setting a value changes nothing else in a settings file, and values round-trip.
void ini_text(const QByteArray& input) {
    require(model::decodedIniBytes(model::encodedIniBytes(input)) == input);
    const QString text = QString::fromUtf8(input);
    require(model::decodedIniText(model::encodedIniText(text)) == text);
    auto ini = model::IniText::parse(input);
    if (!ini) {
        return;
    }
    require(ini->file() == input);
    if (const auto before = ini->value("appearance")) {
        (void)model::decodedIniText(*before);
        (void)model::decodedIniBytes(*before);
    }
    const auto other = ini->value("other");
    ini->setValue("appearance", "new");
    const auto again = model::IniText::parse(ini->file());
    require(again && again->value("appearance") == "new" && again->value("other") == other);
}

/// Every locale name gives complete labels, and times of day that can be parsed.
void locale_names(const QByteArray& input) {
    const model::LocaleLabels labels(input.toStdString());
    const QDate day(2026, 11, 21);
    const QString time = labels.timeOfDay(1439);
    const QStringList texts{
        labels.compactNumber(12'345), labels.number(0.25),       labels.month(day),
        labels.monthAndYear(day),     labels.dayAndMonth(day),   labels.weekday(day),
        labels.fullDay(day),          labels.weekdayAndTime({}), time};
    require(!texts.contains(QString()) && labels.parseTimeOfDay(time) == 1439);
    require(labels.firstWeekday() >= Qt::Monday && labels.firstWeekday() <= Qt::Sunday);
}

/// A requested proxy is used or rejected but never bypassed, and the password is never shown. Three
/// lines: the text before the password, the text after it, and no_proxy.
void proxy_values(const QByteArray& input) {
    const QString password = u"pa55w0rd"_s;
    const QStringList lines = QString::fromUtf8(input).split(u'\n');
    const QString value = lines.value(0) + u':' + password + u'@' + lines.value(1);
    const QString exceptions = lines.value(2);
    // An independent, coarser test
    const bool mayMatch =
        exceptions.contains(u'*') || exceptions.contains(u"com", Qt::CaseInsensitive);
    for (const providers::ProxyVariables& variables :
         {providers::ProxyVariables{value, {}, exceptions}, {{}, value, exceptions}}) {
        const auto choice = providers::chosenProxy(variables, u"api.anthropic.com"_s, 443);
        if (!choice) {
            require(!choice.error().contains(password) && choice.error().size() <= 100);
            continue;
        }
        require(choice->has_value());
        const QNetworkProxy& proxy = **choice;
        require(proxy.type() == QNetworkProxy::NoProxy
                    ? mayMatch
                    : !proxy.hostName().isEmpty() && proxy.port() != 0 &&
                          !proxy.hostName().contains(password));
    }
}

/// Whatever Codex replies can be stored and shown.
void rate_limits_reply(const QByteArray& input) {
    if (const auto reply = providers::parseObject(input)) {
        if (const auto entry = providers::parseRateLimitsReply(*reply, {})) {
            require(stored({.providers = {*entry}}).providers[0].planName == entry->planName);
        } else {
            require(tests::isReadable(entry.error().text.text(),
                                      4096 + sizeof "Command failed (-1): "));
        }
    }
}

/// Any text becomes readable, and is then left unchanged. The first byte selects the maximum length
/// and whether the rest is UTF-8 or UTF-16.
void readable_text(const QByteArray& input) {
    if (input.isEmpty()) {
        return;
    }
    const qsizetype maximumLength = 8 + number(input) / 2;
    const QByteArrayView bytes = QByteArrayView(input).sliced(1);
    QString foreign = QString::fromUtf8(bytes);
    if (number(input) % 2 != 0) {
        foreign.resize(bytes.size() / 2);
        std::memcpy(foreign.data(), bytes.data(), static_cast<std::size_t>(foreign.size()) * 2);
    }
    const QString readable = model::readableText(foreign, maximumLength);
    require(tests::isReadable(readable, maximumLength));
    require(model::readableText(readable, maximumLength) == readable);
    require(tests::isReadableLine(model::readableLine(foreign, maximumLength), maximumLength));
    const QString masked = model::maskedAddresses(readable);
    require(model::maskedAddresses(masked) == masked);
}

/// Splitting a child's output differently must not change the result, and an error is readable.
void response_collector(const QByteArray& input) {
    constexpr qsizetype sizesLength = 4;
    if (input.size() > sizesLength) {
        const QByteArrayView stream = QByteArrayView(input).sliced(sizesLength);
        const auto reply = collected(stream, QByteArrayView(input).first(sizesLength));
        require(reply == collected(stream, QByteArrayView("\0", 1)));
        require(reply || tests::isReadable(reply.error().text));
    }
}

/// The fast count, in blocks of any size, agrees with the plain one, and that with an independent
/// JSON library. The first byte selects the provider, the second the size of the blocks.
void session_log(const QByteArray& input) {
    if (input.size() < 2) {
        return;
    }
    const auto checkedTokens = [](model::AIProvider provider, std::string_view line) {
        const history::TokenSum tokens = history::plainLineTokens(provider, line);
        require(tests::libraryLineTokens(provider, line).value_or(tokens) == tokens);
        const auto bound = history::codexTokenBound(line);
        require(!bound || provider != model::AIProvider::codex ||
                (!tokens.isOverflown && tokens.value <= *bound));
        return tokens;
    };
    const auto provider = input[0] == 'x' ? model::AIProvider::codex : model::AIProvider::claude;
    const QByteArray log = input.sliced(2);
    history::SessionLogCounter counter;
    require(tests::tokensInBlocks(counter, provider, log, number(input.sliced(1)) + 1) ==
            tests::plainLogTokens(provider, log, checkedTokens));
}

/// Whatever decodes must encode, and decode to the same again.
void snapshot(const QByteArray& input) {
    if (const auto snapshot = model::decodeSnapshot(input)) {
        require(stored(*snapshot) == *snapshot);
    }
}

/// Whatever was read can be stored and shown.
void usage_reply(const QByteArray& input) {
    if (const auto entry = providers::parseUsageReply(input, QString::fromUtf8(input), {})) {
        require(stored({.providers = {*entry}}).providers.size() == 1);
    }
}

// NOLINTEND(readability-identifier-naming)

void call(void (*target)(const QByteArray&), const char* data, std::size_t size) {
    target(QByteArray(data, static_cast<qsizetype>(size)));
}

} // namespace tallyvane::fuzz
