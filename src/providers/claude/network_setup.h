#pragma once

#include "providers/claude/claude_quota_source.h"
#include "providers/claude/proxy_choice.h"

#include <QtCore/QByteArray>
#include <QtCore/QFuture>
#include <QtCore/QUrl>
#include <QtNetwork/QSslConfiguration>

namespace tallyvane::providers {

/// The port of an https URL: 443 unless it names one.
[[nodiscard]] quint16 portOf(const QUrl& url);

/// The number of trusted roots in what the variables name.
[[nodiscard]] qsizetype certificateCount(const NetworkVariables& variables);

/// A proxy as "http://host:port", without its sign-in; empty for a direct connection.
[[nodiscard]] QString proxyAddress(const QNetworkProxy& proxy);

/// How to reach a server and how to verify it.
struct NetworkSetup {
    QNetworkProxy proxy; ///< `NoProxy` for a direct connection
    QSslConfiguration tls;
};

/// Finds the network setup in a separate thread, because the system may take minutes: the desktop's
/// proxy setting may name a script on another machine. Main thread only.
class NetworkSetupFinder {
public:
    using Result = std::expected<NetworkSetup, QString>; ///< the error is a reason in English

    /// `trust` replaces the roots of the system and of the variables. While an earlier call is in
    /// progress, returns its future, so that threads do not pile up. The program's exit does not
    /// wait for the thread.
    [[nodiscard]] QFuture<Result> find(const QUrl& url, const NetworkVariables& variables,
                                       const std::optional<QSslConfiguration>& trust);

private:
    QFuture<Result> m_latest;
};

} // namespace tallyvane::providers
