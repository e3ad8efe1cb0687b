#pragma once

#include "support/home_files.h"

#include <QtCore/QTemporaryDir>
#include <QtNetwork/QSslCertificate>

#include <cerrno>
#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace tallyvane::tests {

/// A machine without a network around it, in which names lead where a test says: the main thread
/// and all that it starts afterwards have a loopback device and a copy of /etc of their own.
class PrivateNetwork {
public:
    PrivateNetwork() {
        const QByteArray copy = m_directory.filePath(QStringLiteral("etc")).toUtf8();
        if (::unshare(CLONE_NEWNET | CLONE_NEWNS) != 0 || !startLoopback() ||
            std::system(("mount --make-rprivate / && cp -a /etc " + copy + " && rm -r " + copy +
                         "/ssl/certs/* && mount --bind " + copy + " /etc")
                            .data()) != 0) {
            m_error = errno != 0 ? errno : ENOTSUP;
            return;
        }
        replace("/etc/hosts", "127.0.0.1 localhost\n");
    }

    /// Whether the system let this user have it; if not, `errno` says why.
    [[nodiscard]] bool isUsable() const {
        errno = m_error;
        return m_error == 0;
    }

    /// Makes the machine trust a certificate, under a file name of its own.
    static void trust(const QSslCertificate& certificate, const QByteArray& name) {
        replace("/etc/ssl/certs/" + name + ".pem", certificate.toPem());
    }

    static void replace(const QByteArray& path, const QByteArray& content) {
        writeFile(QString::fromUtf8(path), content);
    }

private:
    static bool startLoopback() {
        const int socket = ::socket(AF_INET, SOCK_DGRAM, 0);
        ifreq request{.ifr_ifrn = {"lo"}, .ifr_ifru = {}};
        request.ifr_flags = IFF_UP;
        const bool isUp = ::ioctl(socket, SIOCSIFFLAGS, &request) == 0;
        ::close(socket);
        return isUp;
    }

    QTemporaryDir m_directory;
    int m_error = 0;
};

} // namespace tallyvane::tests
