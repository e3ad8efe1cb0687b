#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QUrl>

#include <chrono>
#include <filesystem>

namespace tallyvane::providers {

/// Environment variables about proxies; empty if not set.
struct ProxyVariables {
    QString httpsProxy; ///< https_proxy
    QString allProxy;   ///< all_proxy
    QString noProxy;    ///< no_proxy
};

/// Environment variables about proxies and trusted roots; empty if not set.
struct NetworkVariables {
    ProxyVariables proxy;
    QByteArray certificateFile;        ///< $SSL_CERT_FILE: additional roots
    QByteArray certificateDirectories; ///< $SSL_CERT_DIR: replaces the system's; separated by ":"
};

/// Where the Claude figures come from. Needs nothing of Qt Network, unlike the client that asks
/// there, so that a program can have the one and load the other later.
struct ClaudeQuotaSource {
    QUrl usageURL{QStringLiteral("https://api.anthropic.com/api/oauth/usage")};
    QString keychainService = QStringLiteral("Claude Code-credentials");
    std::filesystem::path credentialsFile; ///< .claude/.credentials.json in the home directory
    std::chrono::milliseconds timeout = std::chrono::seconds{15}; ///< for one whole request
    NetworkVariables network;
};

} // namespace tallyvane::providers
