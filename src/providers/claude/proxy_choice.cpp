#include "providers/claude/proxy_choice.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>
#include <QtNetwork/QHostAddress>

#include <algorithm>

namespace tallyvane::providers {

namespace {

/// "host", "host:port", "[address]" or "[address]:port". An IPv6 address without a port needs no
/// brackets.
struct Place {
    QString host;
    std::optional<quint16> port;
};

std::optional<Place> readPlace(const QString& text) {
    static const QRegularExpression form(
        QStringLiteral(R"(^(?:\[([0-9A-Fa-f:.]+)\]|([^\s:\[\]@/?#%\\]+))(?::([0-9]{1,5}))?$)"));
    if (text.count(u':') > 1 && !text.startsWith(u'[')) {
        return Place{.host = text, .port = std::nullopt};
    }
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    Place place{.host = match.captured(1) + match.captured(2), .port = std::nullopt};
    if (match.hasCaptured(3)) {
        bool isPort = false;
        place.port = match.captured(3).toUShort(&isPort);
        if (!isPort || *place.port == 0) {
            return std::nullopt;
        }
    }
    return place;
}

bool isBelow(const QString& host, QString domain) {
    if (domain.startsWith(QStringLiteral("*."))) {
        domain.remove(0, 1);
    }
    if (domain.startsWith(u'.')) {
        domain.remove(0, 1);
    }
    return !domain.isEmpty() && (host.compare(domain, Qt::CaseInsensitive) == 0 ||
                                 host.endsWith(u'.' + domain, Qt::CaseInsensitive));
}

bool isListed(const QString& entry, const QString& host, quint16 port) {
    if (entry == QStringLiteral("*")) {
        return true;
    }
    const QHostAddress address(host);
    if (const auto network = QHostAddress::parseSubnet(entry);
        entry.contains(u'/') && network.second >= 0) {
        return !address.isNull() && address.isInSubnet(network);
    }
    const auto place = readPlace(entry);
    if (!place || place->port.value_or(port) != port) {
        return false;
    }
    const QHostAddress listed(place->host);
    return address.isNull() ? isBelow(host, place->host) : address == listed;
}

/// The proxy at "[user:password@]host[:port]".
std::optional<QNetworkProxy> readProxy(QNetworkProxy::ProxyType type, const QString& text) {
    const auto endOfUser = text.lastIndexOf(u'@');
    const auto place = readPlace(text.sliced(endOfUser + 1));
    if (!place) {
        return std::nullopt;
    }
    QUrl url;
    url.setHost(place->host);
    if (url.host().isEmpty()) {
        return std::nullopt;
    }
    const quint16 usualPort = type == QNetworkProxy::HttpProxy ? 80 : 1080;
    QNetworkProxy proxy(type, url.host(QUrl::EncodeUnicode), place->port.value_or(usualPort));
    if (endOfUser >= 0) {
        const QString signIn = text.first(endOfUser);
        proxy.setUser(QUrl::fromPercentEncoding(signIn.section(u':', 0, 0).toUtf8()));
        proxy.setPassword(QUrl::fromPercentEncoding(signIn.section(u':', 1).toUtf8()));
    }
    return proxy;
}

std::expected<QNetworkProxy, QString> readVariable(const QString& name, const QString& value) {
    static const QRegularExpression schemeForm(
        QStringLiteral("^([A-Za-z][A-Za-z0-9+.-]{0,15})://(.*)$"));
    const QRegularExpressionMatch match = schemeForm.match(value);
    const QString scheme = match.hasMatch() ? match.captured(1).toLower() : QStringLiteral("http");
    const bool isSocks = scheme == QStringLiteral("socks5") || scheme == QStringLiteral("socks5h");
    if (!isSocks && scheme != QStringLiteral("http")) {
        return std::unexpected(
            QStringLiteral("%1 asks for a proxy of the kind \"%2\", which is not supported")
                .arg(name, scheme));
    }
    QString rest = match.hasMatch() ? match.captured(2) : value;
    if (rest.endsWith(u'/')) {
        rest.chop(1);
    }
    const auto proxy =
        readProxy(isSocks ? QNetworkProxy::Socks5Proxy : QNetworkProxy::HttpProxy, rest);
    if (!proxy) {
        return std::unexpected(QStringLiteral("%1 is set, but not to a proxy").arg(name));
    }
    return *proxy;
}

} // namespace

std::expected<std::optional<QNetworkProxy>, QString>
chosenProxy(const ProxyVariables& variables, const QString& host, quint16 port) {
    const bool isForHttps = !variables.httpsProxy.trimmed().isEmpty();
    const QString value = (isForHttps ? variables.httpsProxy : variables.allProxy).trimmed();
    if (value.isEmpty()) {
        return std::nullopt;
    }
    static const QRegularExpression separator(QStringLiteral("[,\\s]+"));
    const QStringList exceptions = variables.noProxy.split(separator, Qt::SkipEmptyParts);
    if (std::ranges::any_of(exceptions,
                            [&](const QString& entry) { return isListed(entry, host, port); })) {
        return QNetworkProxy(QNetworkProxy::NoProxy);
    }
    return readVariable(isForHttps ? QStringLiteral("https_proxy") : QStringLiteral("all_proxy"),
                        value);
}

} // namespace tallyvane::providers
