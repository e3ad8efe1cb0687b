#include "platform/linux/session_bus.h"

#include "platform/linux/bus_call.h"

#include <QtCore/QByteArrayList>

#include <algorithm>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tallyvane::platform {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds greetingTimeout = 3s;
constexpr std::chrono::milliseconds flushTimeout = 1s;

/// Whether the bus accepts a connection but does not answer the first command (D-Bus specification,
/// "Authentication Protocol").
bool isSilent(const sockaddr_un& address, socklen_t size) {
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    constexpr char greeting[] = "\0AUTH\r\n"; // asks for the authentication mechanisms
    bool isSilent = false;
    if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), size) == 0) {
        ::send(socket, greeting, sizeof greeting - 1, MSG_NOSIGNAL);
        pollfd answer{.fd = socket, .events = POLLIN, .revents = 0};
        isSilent = ::poll(&answer, 1, static_cast<int>(greetingTimeout.count())) == 0;
    } else {
        isSilent = errno == EAGAIN; // its queue of connections is full
    }
    ::close(socket);
    return isSilent;
}

} // namespace

bool isSilentBus(const QByteArray& busAddress) {
    // "unix:path=/run/user/1000/bus,guid=…;…": libraries use the first address that works.
    const QByteArray first = busAddress.split(';').first();
    if (!first.startsWith("unix:")) {
        return false;
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
        return isSilent(address, static_cast<socklen_t>(size));
    }
    return false;
}

void flushSessionBus() {
    // The bus answers in order.
    std::ignore = callBusAndBlock(busCall(QStringLiteral("GetId")), flushTimeout);
}

} // namespace tallyvane::platform
