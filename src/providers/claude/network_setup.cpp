#include "providers/claude/network_setup.h"

#include "model/file_io.h"

#include <QtCore/QDir>
#include <QtCore/QPromise>
#include <QtNetwork/QSslSocket>

#include <memory>
#include <system_error>
#include <thread>

namespace tallyvane::providers {

namespace {

constexpr qsizetype maximumCertificateFileSize = 16 * 1024 * 1024;

QList<QSslCertificate> certificatesIn(const std::filesystem::path& file) {
    return QSslCertificate::fromData(
        model::readFile(file, maximumCertificateFileSize).value_or(QByteArray()));
}

QList<QSslCertificate> roots(const NetworkVariables& variables) {
    auto certificates = certificatesIn(variables.certificateFile.toStdString());
    if (variables.certificateDirectories.isEmpty()) {
        return certificates + QSslConfiguration::systemCaCertificates();
    }
    for (const QByteArray& name : variables.certificateDirectories.split(':')) {
        const QDir directory(QFile::decodeName(name));
        for (const QFileInfo& entry : directory.entryInfoList(QDir::Files)) {
            certificates += certificatesIn(entry.filesystemFilePath());
        }
    }
    return certificates;
}

std::expected<QNetworkProxy, QString> proxyTo(const QUrl& url, const ProxyVariables& variables) {
    const auto chosen = chosenProxy(variables, url.host(), portOf(url));
    if (!chosen) {
        return std::unexpected(chosen.error());
    }
    if (const std::optional<QNetworkProxy>& proxy = *chosen; proxy) {
        return *proxy;
    }
    const auto proxies = QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(url));
    if (proxies.isEmpty()) {
        return std::unexpected(QString::fromLatin1(QT_TRANSLATE_NOOP(
            "Message", "the desktop's settings ask for a kind of proxy that is not supported")));
    }
    return proxies.first();
}

NetworkSetupFinder::Result findNow(const QUrl& url, const NetworkVariables& variables,
                                   const std::optional<QSslConfiguration>& trust) {
    const auto proxy = proxyTo(url, variables.proxy);
    if (!proxy) {
        return std::unexpected(proxy.error());
    }
    QSslConfiguration tls = trust.value_or(QSslConfiguration::defaultConfiguration());
    const bool hasOwnRoots =
        !variables.certificateFile.isEmpty() || !variables.certificateDirectories.isEmpty();
    if (!trust && hasOwnRoots) {
        tls.setCaCertificates(roots(variables));
    }
    tls.setProtocol(QSsl::TlsV1_2OrLater);
    tls.setPeerVerifyMode(QSslSocket::VerifyPeer);
    tls.setSslOption(QSsl::SslOptionDisableSessionTickets, true);
    tls.setSslOption(QSsl::SslOptionDisableSessionPersistence, true);
    return NetworkSetup{.proxy = *proxy, .tls = tls};
}

} // namespace

qsizetype certificateCount(const NetworkVariables& variables) {
    return variables.certificateDirectories.isEmpty()
               ? certificatesIn(variables.certificateFile.toStdString()).size()
               : roots(variables).size();
}

QString proxyAddress(const QNetworkProxy& proxy) {
    if (proxy.type() == QNetworkProxy::NoProxy) {
        return {};
    }
    const bool isSocks = proxy.type() == QNetworkProxy::Socks5Proxy;
    QUrl url;
    url.setScheme(isSocks ? QStringLiteral("socks5") : QStringLiteral("http"));
    url.setHost(proxy.hostName());
    url.setPort(proxy.port());
    return url.toString();
}

quint16 portOf(const QUrl& url) {
    constexpr int usualPort = 443;
    return static_cast<quint16>(url.port(usualPort));
}

QFuture<NetworkSetupFinder::Result>
NetworkSetupFinder::find(const QUrl& url, const NetworkVariables& variables,
                         const std::optional<QSslConfiguration>& trust) {
    if (!m_latest.isFinished()) {
        return m_latest;
    }
    const auto promise = std::make_shared<QPromise<Result>>();
    promise->start();
    m_latest = promise->future();
    const auto answer = [promise](Result result) {
        promise->addResult(std::move(result));
        promise->finish();
    };
    try {
        std::thread([=] { answer(findNow(url, variables, trust)); }).detach();
    } catch (const std::system_error& error) {
        answer(std::unexpected(QStringLiteral("no thread could be started (%1)")
                                   .arg(QString::fromLocal8Bit(error.what()))));
    }
    return m_latest;
}

} // namespace tallyvane::providers
