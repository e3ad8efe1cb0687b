#include "platform/linux/session_bus.h"

#include <QtCore/QByteArrayList>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include <algorithm>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using std::chrono::milliseconds;

namespace tallyvane::platform {

namespace {

constexpr milliseconds flushTimeout{1000};

/// Connects to the bus and begins the dialogue of the D-Bus specification ("Authentication
/// Protocol"); whether it accepted that and then said nothing.
bool isSilent(const sockaddr_un& address, socklen_t size, milliseconds patience) {
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    constexpr char greeting[] = "\0AUTH\r\n"; // asks which ways of authentication there are
    bool isSilent = false;
    if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), size) == 0) {
        ::send(socket, greeting, sizeof greeting - 1, MSG_NOSIGNAL);
        pollfd answer{.fd = socket, .events = POLLIN, .revents = 0};
        isSilent = ::poll(&answer, 1, static_cast<int>(patience.count())) == 0;
    } else {
        isSilent = errno == EAGAIN; // so many wait already that it cannot be alive
    }
    ::close(socket);
    return isSilent;
}

} // namespace

void leaveSilentSessionBus(milliseconds patience) {
    // "unix:path=/run/user/1000/bus,guid=…;…", where the first that can be reached is taken.
    const QByteArray first = qgetenv("DBUS_SESSION_BUS_ADDRESS").split(';').first();
    if (!first.startsWith("unix:")) {
        return;
    }
    for (const QByteArray& option : first.mid(5).split(',')) {
        const bool isAbstract = option.startsWith("abstract=");
        if (!isAbstract && !option.startsWith("path=")) {
            continue;
        }
        const QByteArray name =
            QByteArray::fromPercentEncoding((isAbstract ? QByteArray(1, '\0') : QByteArray()) +
                                            option.mid(option.indexOf('=') + 1));
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        if (name.size() >= static_cast<qsizetype>(sizeof address.sun_path)) {
            continue;
        }
        std::ranges::copy(name, address.sun_path);
        const auto size = offsetof(sockaddr_un, sun_path) + static_cast<std::size_t>(name.size());
        if (isSilent(address, static_cast<socklen_t>(size), patience)) {
            qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
        }
        return;
    }
}

void flushSessionBus() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) {
        // The bus answers in order.
        bus.call(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                                QStringLiteral("/org/freedesktop/DBus"),
                                                QStringLiteral("org.freedesktop.DBus"),
                                                QStringLiteral("GetId")),
                 QDBus::Block, static_cast<int>(flushTimeout.count()));
    }
}

} // namespace tallyvane::platform
