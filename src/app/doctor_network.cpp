#include "app/doctor_checks.h"
#include "model/foreign_text.h"
#include "providers/advice.h"

#include <QCoro/QCoroFuture>

namespace tallyvane::app {

using providers::NetworkSetupFinder;
using providers::NetworkVariables;

namespace {

/// The variable that decides, or else the desktop.
QString proxySource(const NetworkVariables& variables) {
    return !variables.proxy.httpsProxy.trimmed().isEmpty() ? QStringLiteral("https_proxy")
           : !variables.proxy.allProxy.trimmed().isEmpty()
               ? QStringLiteral("all_proxy")
               : QStringLiteral("the desktop's settings");
}

} // namespace

QCoro::Task<Checks> proxyCheck(NetworkVariables variables) {
    const QUrl url = providers::ClaudeQuotaSource{}.usageURL;
    NetworkSetupFinder finder;
    const QFuture<NetworkSetupFinder::Result> search = finder.find(url, variables, std::nullopt);
    const NetworkSetupFinder::Result setup = co_await search;
    const QString source = proxySource(variables);
    const bool isVariable = !source.contains(u' ');
    Check check{.id = QStringLiteral("network.proxy"), .state = CheckState::fine};
    if (!setup) {
        check.state = CheckState::broken;
        check.text =
            QStringLiteral("The proxy cannot be used: %1").arg(model::readableLine(setup.error()));
        check.advice = isVariable
                           ? QStringLiteral("Set %1 to http://host:port or socks5://host:port, or "
                                            "unset it.")
                                 .arg(source)
                           : QStringLiteral("Choose an HTTP or SOCKS proxy in the desktop's "
                                            "settings, or set https_proxy.");
    } else if (const QString address = providers::proxyAddress(setup->proxy); !address.isEmpty()) {
        check.text = QStringLiteral("Through the proxy %1, from %2")
                         .arg(model::readableLine(address), source);
    } else {
        check.text = isVariable
                         ? QStringLiteral("Without a proxy, as no_proxy lists %1").arg(url.host())
                         : QStringLiteral("Without a proxy, as none is set");
    }
    co_return Checks(1, check);
}

Checks certificateChecks(const NetworkVariables& variables) {
    QStringList names;
    if (!variables.certificateFile.isEmpty()) {
        names.append(QStringLiteral("SSL_CERT_FILE=") +
                     QString::fromUtf8(variables.certificateFile));
    }
    if (!variables.certificateDirectories.isEmpty()) {
        names.append(QStringLiteral("SSL_CERT_DIR=") +
                     QString::fromUtf8(variables.certificateDirectories));
    }
    Check check{.id = QStringLiteral("network.certificates"), .state = CheckState::fine};
    if (names.isEmpty()) {
        check.text = QStringLiteral("The certificates of the system are trusted");
        return {check};
    }
    const qsizetype count = certificateCount(variables);
    check.text = QStringLiteral("%1 certificates in %2")
                     .arg(count)
                     .arg(model::readableLine(names.join(QStringLiteral(", "))));
    if (count == 0) {
        check.state = CheckState::broken;
        check.advice =
            QStringLiteral("Unset SSL_CERT_FILE and SSL_CERT_DIR, or let them name certificates.");
    }
    return {check};
}

} // namespace tallyvane::app
