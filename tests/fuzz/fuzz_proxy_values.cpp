// Whatever the variables hold: a proxy that is asked for is used or refused, never gone past, and
// no password is told.

#include "providers/claude/proxy_choice.h"

#include <cstdlib>

using namespace tallyvane;

namespace {

const QString password = QStringLiteral("pa55w0rd");
const QString host = QStringLiteral("api.anthropic.com");

/// Written down anew, and coarser: nothing in the list comes near the host.
bool mayMatch(const QString& exceptions) {
    return exceptions.contains(u'*') ||
           exceptions.contains(QStringLiteral("com"), Qt::CaseInsensitive);
}

} // namespace

/// Three lines: what stands before the password, what stands behind it, and no_proxy.
extern "C" int LLVMFuzzerTestOneInput(const char* data, size_t size) {
    const QByteArray input(data, static_cast<qsizetype>(size));
    const QString before = QString::fromUtf8(input.split('\n').value(0));
    const QString behind = QString::fromUtf8(input.split('\n').value(1));
    const QString exceptions = QString::fromUtf8(input.split('\n').value(2));
    const QString value = before + u':' + password + u'@' + behind;
    for (const bool isForAll : {false, true}) {
        const auto choice = providers::chosenProxy({.httpsProxy = isForAll ? QString() : value,
                                                    .allProxy = isForAll ? value : QString(),
                                                    .noProxy = exceptions},
                                                   host, 443);
        if (!choice) {
            if (choice.error().contains(password) || choice.error().size() > 100) {
                std::abort();
            }
            continue;
        }
        const bool isDirect = *choice && (*choice)->type() == QNetworkProxy::NoProxy;
        if (!*choice || (isDirect && !mayMatch(exceptions)) ||
            (!isDirect && ((*choice)->hostName().isEmpty() || (*choice)->port() == 0 ||
                           (*choice)->hostName().contains(password)))) {
            std::abort();
        }
    }
    return 0;
}
