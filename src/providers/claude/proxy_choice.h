#pragma once

#include <QtCore/QString>
#include <QtNetwork/QNetworkProxy>

#include <expected>
#include <optional>

namespace tallyvane::providers {

/// The values of the environment's variables about proxies; one that is not set is empty.
struct ProxyVariables {
    QString httpsProxy; ///< https_proxy
    QString allProxy;   ///< all_proxy
    QString noProxy;    ///< no_proxy
};

/// The way to `host` that the variables ask for, as curl, Python and Go read them: a proxy, or
/// `QNetworkProxy::NoProxy` for a host that no_proxy lists; nothing when they ask for no proxy at
/// all. A proxy is "[http://|socks5://|socks5h://][user:password@]host[:port]". What no_proxy
/// lists, divided by commas or blanks, is "*", a domain with all that is below it, an address or a
/// network of addresses, each with a port or without. `host` stands without brackets.
///
/// Fails on a proxy of any other form, since going past it would not be what was asked for: why, in
/// words that hold nothing of a password.
[[nodiscard]] std::expected<std::optional<QNetworkProxy>, QString>
chosenProxy(const ProxyVariables& variables, const QString& host, quint16 port);

} // namespace tallyvane::providers
