#include "providers/claude/connection_race.h"

#include <QtNetwork/QHostInfo>

#include <algorithm>
#include <utility>

namespace tallyvane::providers {

namespace {

constexpr std::chrono::milliseconds patience{250};
constexpr qsizetype maximumAddresses = 16;

} // namespace

ConnectionRace::ConnectionRace(const QString& host, quint16 port, const QNetworkProxy& socks,
                               platform::Clock& clock, Ended ended)
    : m_port(port), m_socks(socks), m_clock(clock), m_ended(std::move(ended)) {
    if (socks.type() != QNetworkProxy::NoProxy || !QHostAddress(host).isNull()) {
        attempt(host);
        return;
    }
    QHostInfo::lookupHost(host, &m_scope, [this](const QHostInfo& info) {
        m_addresses = info.addresses().first(std::min(info.addresses().size(), maximumAddresses));
        if (m_addresses.isEmpty()) {
            m_ended(std::unexpected(info.errorString()));
        } else {
            tryNext();
        }
    });
}

void ConnectionRace::tryNext() {
    const QHostAddress address = m_addresses.takeFirst();
    m_silence = m_addresses.isEmpty() ? nullptr : m_clock.after(patience, [this] { tryNext(); });
    attempt(address.toString());
}

void ConnectionRace::attempt(const QString& host) {
    m_attempts.push_back(std::make_unique<QSslSocket>());
    QSslSocket* const socket = m_attempts.back().get();
    socket->setProxy(m_socks);
    QObject::connect(socket, &QSslSocket::connected, &m_scope, [this, socket] { won(socket); });
    QObject::connect(socket, &QSslSocket::errorOccurred, &m_scope,
                     [this, socket] { lost(socket->errorString()); });
    socket->connectToHost(host, m_port);
}

void ConnectionRace::won(QSslSocket* winner) {
    m_silence.reset();
    auto attempts = std::exchange(m_attempts, {});
    const auto place = std::ranges::find(attempts, winner, &std::unique_ptr<QSslSocket>::get);
    std::unique_ptr<QSslSocket> socket = std::move(*place);
    attempts.clear();
    QObject::disconnect(winner, nullptr, &m_scope, nullptr);
    m_ended(std::move(socket));
}

void ConnectionRace::lost(const QString& reason) {
    ++m_losses;
    if (!m_addresses.isEmpty()) {
        tryNext();
    } else if (m_losses == m_attempts.size()) {
        m_ended(std::unexpected(reason));
    }
}

} // namespace tallyvane::providers
