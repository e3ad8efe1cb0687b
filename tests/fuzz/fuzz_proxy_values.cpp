#include "fuzz/fuzz_target.h"
#include "providers/claude/proxy_choice.h"

using namespace tallyvane;

namespace {

const QString password = QStringLiteral("pa55w0rd");
const QString host = QStringLiteral("api.anthropic.com");

/// An independent, coarser test: whether an exception may match the host.
bool mayMatch(const QString& exceptions) {
    return exceptions.contains(u'*') ||
           exceptions.contains(QStringLiteral("com"), Qt::CaseInsensitive);
}

} // namespace

/// A requested proxy is used or rejected but never bypassed, and the password is never shown. Three
/// lines: the text before the password, the text after it, and no_proxy.
void tallyvane::fuzz::check(const QByteArray& input) {
    const QByteArrayList lines = input.split('\n');
    const auto line = [&lines](qsizetype at) { return QString::fromUtf8(lines.value(at)); };
    const QString value = line(0) + u':' + password + u'@' + line(1);
    for (const bool isForAll : {false, true}) {
        const auto choice = providers::chosenProxy({.httpsProxy = isForAll ? QString() : value,
                                                    .allProxy = isForAll ? value : QString(),
                                                    .noProxy = line(2)},
                                                   host, 443);
        if (!choice) {
            require(!choice.error().contains(password) && choice.error().size() <= 100);
            continue;
        }
        const std::optional<QNetworkProxy>& proxy = *choice;
        require(proxy && (proxy->type() == QNetworkProxy::NoProxy
                              ? mayMatch(line(2))
                              : !proxy->hostName().isEmpty() && proxy->port() != 0 &&
                                    !proxy->hostName().contains(password)));
    }
}
