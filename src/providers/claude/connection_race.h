#pragma once

#include "platform/clock.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QSslSocket>

#include <expected>
#include <functional>
#include <memory>
#include <vector>

namespace tallyvane::providers {

/// Connects to the first address of a host that answers. Tries the next address as soon as one
/// fails or has been silent for a quarter of a second (RFC 8305), so that a broken IPv6 or IPv4
/// route does not make the host unreachable. Main thread only.
class ConnectionRace {
public:
    /// A connection that is not encrypted yet, or the reason for the failure.
    using Result = std::expected<std::unique_ptr<QSslSocket>, QString>;
    using Ended = std::function<void(Result)>;

    /// Calls `ended` once, possibly before the constructor returns, unless destroyed first. `socks`
    /// is a SOCKS proxy, which resolves the host name itself, or `QNetworkProxy::NoProxy`.
    ConnectionRace(const QString& host, quint16 port, const QNetworkProxy& socks,
                   platform::Clock& clock, Ended ended);
    ConnectionRace(const ConnectionRace&) = delete;
    ConnectionRace& operator=(const ConnectionRace&) = delete;

private:
    void tryNext();
    void attempt(const QString& host);
    void won(QSslSocket* winner);
    void lost(const QString& reason);

    quint16 m_port;
    QNetworkProxy m_socks;
    platform::Clock& m_clock;
    Ended m_ended;
    QList<QHostAddress> m_addresses; ///< not tried yet
    std::unique_ptr<platform::Alarm> m_silence;
    std::vector<std::unique_ptr<QSslSocket>> m_attempts;
    std::size_t m_losses = 0;
    QObject m_scope; ///< ends the signal connections and the lookup with this object
};

} // namespace tallyvane::providers
