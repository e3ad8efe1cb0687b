#include "support/test_main.h"

namespace tallyvane::tests {

void isolate(const QTemporaryDir& home) {
    const QByteArray path = home.path().toUtf8();
    qputenv("HOME", path);
    qputenv("XDG_DATA_HOME", path + "/data");
    qputenv("XDG_CONFIG_HOME", path + "/config");
    qputenv("XDG_RUNTIME_DIR", path);
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path + "/no-bus");
    qputenv("TZ", "UTC");
    qputenv("LANG", "C.UTF-8");
    for (const char* name :
         {"LC_ALL", "LC_TIME", "DISPLAY", "WAYLAND_DISPLAY", "http_proxy", "HTTP_PROXY",
          "https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY", "no_proxy", "NO_PROXY",
          "SSL_CERT_FILE", "SSL_CERT_DIR", "GAUGEWELL_USE_FIXTURES"}) {
        qunsetenv(name);
    }
}

} // namespace tallyvane::tests
