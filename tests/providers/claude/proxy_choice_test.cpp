#include "providers/claude/proxy_choice.h"
#include "support/test_main.h"

using namespace tallyvane;

namespace {

/// "-" where the desktop decides, "direct", or the proxy as a URL.
QString text(const std::expected<std::optional<QNetworkProxy>, QString>& choice) {
    if (!choice || !*choice) {
        return choice ? QStringLiteral("-") : choice.error();
    }
    const QNetworkProxy& proxy = **choice;
    if (proxy.type() == QNetworkProxy::NoProxy) {
        return QStringLiteral("direct");
    }
    const bool isSocks = proxy.type() == QNetworkProxy::Socks5Proxy;
    return QStringLiteral("%1://%2%3:%4")
        .arg(isSocks ? QStringLiteral("socks5") : QStringLiteral("http"),
             proxy.user().isEmpty() ? QString() : proxy.user() + u'|' + proxy.password() + u'@',
             proxy.hostName())
        .arg(proxy.port());
}

} // namespace

class ProxyChoiceTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void readsVariables_data() {
        QTest::addColumn<QString>("https");
        QTest::addColumn<QString>("all");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* https, const char* all, const char* expected) {
            QTest::addRow("%s, %s", https, all)
                << QString::fromUtf8(https) << QString::fromUtf8(all)
                << QString::fromUtf8(expected);
        };
        row("", "", "-");
        row(" ", "", "-");
        row("p.example", "q.example", "http://p.example:80");
        row("", "q.example:8080", "http://q.example:8080");
        row("HTTP://p.example:3128/", "", "http://p.example:3128");
        row("socks5://p.example", "", "socks5://p.example:1080");
        row("", "socks5h://p.example:9", "socks5://p.example:9");
        row("user@p.example", "", "http://user|@p.example:80");
        row("http://us%40er:p:%2f@q@p.example:1", "", "http://us@er|p:/@q@p.example:1");
        row("u:p/w@p.example", "", "http://u|p/w@p.example:80");
        row("http://[::1]:8080", "", "http://::1:8080");
        row("http://10.0.0.1", "", "http://10.0.0.1:80");
        for (const char* scheme : {"https", "socks4", "socks4a", "pac+http", "wpad", "direct"}) {
            row((QByteArray(scheme) + "://u:secret@p.example").data(), "",
                ("https_proxy asks for a proxy of the kind \"" + QByteArray(scheme) +
                 "\", which is not supported")
                    .data());
        }
        for (const char* garbage :
             {"http://", "http://:80", "http://u:secret@", "http://p.example:0",
              "http://p.example:65536", "http://p.example:secret", "u:secret@", "p.example/secret",
              "a b", "://secret", "http://[::1", "http://p\r\nq", "wpad:"}) {
            row("", garbage, "all_proxy is set, but not to a proxy");
        }
    }
    void readsVariables() {
        QFETCH(const QString, https);
        QFETCH(const QString, all);
        const providers::ProxyVariables variables{.httpsProxy = https, .allProxy = all};
        QTEST(text(providers::chosenProxy(variables, QStringLiteral("api.example"), 443)),
              "expected");
    }

    void heedsExceptions_data() {
        QTest::addColumn<QString>("exceptions");
        QTest::addColumn<QString>("host");
        QTest::addColumn<bool>("expected"); // whether the proxy is passed by
        const auto row = [](const char* exceptions, const char* host, bool expected) {
            QTest::addRow("%s, %s", exceptions, host)
                << QString::fromUtf8(exceptions) << QString::fromUtf8(host) << expected;
        };
        const char* const name = "api.service.example";
        row("*", name, true);
        row("other.example, *", name, true);
        row("service.example", name, true);
        row(".service.example", name, true);
        row("*.service.example", name, true);
        row("API.Service.Example", name, true);
        row(".api.service.example", name, true);
        row("a.example,,  b.example api.service.example", name, true);
        row("service.example:443", name, true);
        row("service.example:8443", name, false);
        row("service.example:x", name, false);
        row("vice.example", name, false);
        row("api.service.example.org", name, false);
        row(". *. : , ,, [] 0/0 0.0.0.0/0 10.0.0.1", name, false);
        row("10.0.0.1", "10.0.0.1", true);
        row("10.0.0.1:443", "10.0.0.1", true);
        row("10.0.0.0/8", "10.1.2.3", true);
        row("10.0.0.0/8", "11.1.2.3", false);
        row("0.0.1", "10.0.0.1", false);
        row("::1", "::1", true);
        row("[::1]:443", "0:0::1", true);
        row("[::1]:80", "::1", false);
        row("fd00::/8", "fd12::1", true);
    }
    void heedsExceptions() {
        QFETCH(const QString, exceptions);
        QFETCH(const QString, host);
        const QString proxy = QStringLiteral("http://p.example:80");
        const QString choice =
            text(providers::chosenProxy({.httpsProxy = proxy, .noProxy = exceptions}, host, 443));
        QFETCH(const bool, expected);
        QCOMPARE(choice, expected ? QStringLiteral("direct") : proxy);
    }
};

TALLYVANE_TEST_MAIN(ProxyChoiceTest)
#include "proxy_choice_test.moc"
