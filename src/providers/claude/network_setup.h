#pragma once

#include "providers/claude/proxy_choice.h"

#include <QtCore/QByteArray>
#include <QtCore/QFuture>
#include <QtCore/QUrl>
#include <QtNetwork/QSslConfiguration>

namespace tallyvane::providers {

/// The port of an https URL: 443 unless it names one.
[[nodiscard]] quint16 portOf(const QUrl& url);

/// What the environment says of how servers are reached and which are trusted. What is not set is
/// empty.
struct NetworkVariables {
    ProxyVariables proxy;
    QByteArray certificateFile;        ///< $SSL_CERT_FILE: roots, in addition to the directories'
    QByteArray certificateDirectories; ///< $SSL_CERT_DIR: instead of the system's, divided by ":"
};

/// How a server is reached, and what makes it trusted.
struct NetworkSetup {
    QNetworkProxy proxy; ///< explicit: `NoProxy` for none
    QSslConfiguration tls;
};

/// Finds that out in a thread of its own, as the system may take minutes: to ask the desktop for
/// its proxy can mean to load a script from another machine. Main thread only.
class NetworkSetupFinder {
public:
    using Result = std::expected<NetworkSetup, QString>; ///< else why not, in English

    /// `trust` replaces the system's roots and those of the variables. While an earlier call still
    /// waits for the system, this one shares its answer, so that threads do not pile up. The end of
    /// the program waits for none of them.
    [[nodiscard]] QFuture<Result> find(const QUrl& url, const NetworkVariables& variables,
                                       const std::optional<QSslConfiguration>& trust);

private:
    QFuture<Result> m_latest;
};

} // namespace tallyvane::providers
