#include "app/doctor_checks.h"
#include "model/foreign_text.h"
#include "providers/advice.h"

namespace tallyvane::app {

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

QCoro::Task<Checks> proxyCheck(LoadedClaude claude, NetworkVariables variables) {
    ProxyAnswer proxy;
    if (claude) {
        proxy = co_await (*claude)->proxy();
    } else {
        proxy.fault = claude.error();
    }
    const QString source = proxySource(variables);
    const bool isVariable = !source.contains(u' ');
    Check check{.id = QStringLiteral("network.proxy"), .state = CheckState::fine};
    if (!proxy.fault.isEmpty()) {
        check.state = CheckState::broken;
        check.text =
            QStringLiteral("The proxy cannot be used: %1").arg(model::readableLine(proxy.fault));
        check.advice = isVariable
                           ? QStringLiteral("Set %1 to http://host:port or socks5://host:port, or "
                                            "unset it.")
                                 .arg(source)
                           : QStringLiteral("Choose an HTTP or SOCKS proxy in the desktop's "
                                            "settings, or set https_proxy.");
    } else if (!proxy.address.isEmpty()) {
        check.text = QStringLiteral("Through the proxy %1, from %2")
                         .arg(model::readableLine(proxy.address), source);
    } else {
        check.text = isVariable ? QStringLiteral("Without a proxy, as no_proxy lists %1")
                                      .arg(providers::ClaudeQuotaSource{}.usageURL.host())
                                : QStringLiteral("Without a proxy, as none is set");
    }
    co_return Checks(1, check);
}

Checks certificateChecks(const LoadedClaude& claude, const NetworkVariables& variables) {
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
    if (!claude) {
        check.state = CheckState::broken;
        check.text = QStringLiteral("The certificates could not be read: %1").arg(claude.error());
        return {check};
    }
    const qsizetype count = (*claude)->certificateCount();
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
