#pragma once

#include "providers/claude/claude_quota_source.h"

#include <QtCore/QString>
#include <QtNetwork/QNetworkProxy>

#include <expected>
#include <optional>

namespace tallyvane::providers {

/// The proxy that the variables choose for `host`, as in curl, Python and Go; `NoProxy` for a host
/// listed in no_proxy; nullopt if the variables name no proxy at all. A proxy has the form
/// "[http://|socks5://|socks5h://][user:password@]host[:port]". no_proxy is a list, separated by
/// commas or blanks, of "*", domains (which include subdomains), addresses and subnets; all but
/// subnets may have a port. `host` is without brackets.
///
/// Fails if the proxy has any other form, rather than bypass it. The reason contains no part of the
/// proxy's sign-in.
[[nodiscard]] std::expected<std::optional<QNetworkProxy>, QString>
chosenProxy(const ProxyVariables& variables, const QString& host, quint16 port);

} // namespace tallyvane::providers
