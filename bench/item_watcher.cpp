// Plays the status area: item_watcher <program> [<argument>...] starts the program, prints the
// milliseconds until its item registers and its process number, and ends it when its own input
// ends.

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>
#include <QtDBus/QDBusConnection>

#include <cstdio>
#include <unistd.h>

class Watcher final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHostRegistered CONSTANT)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion CONSTANT)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items CONSTANT)

public:
    [[nodiscard]] static bool isHostRegistered() { return true; }
    [[nodiscard]] static int protocolVersion() { return 0; }
    [[nodiscard]] static QStringList items() { return {}; }

    // NOLINTBEGIN(readability-identifier-naming): names on the bus begin with a capital
public Q_SLOTS:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString& /*service*/) {
        Q_EMIT itemRegistered();
    }
    Q_SCRIPTABLE void RegisterStatusNotifierHost(const QString& /*service*/) {}
    // NOLINTEND(readability-identifier-naming)

Q_SIGNALS:
    void itemRegistered();
};

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QStringList command = QCoreApplication::arguments().sliced(1);
    Watcher watcher;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (command.isEmpty() ||
        !bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), &watcher,
                            QDBusConnection::ExportAllContents) ||
        !bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"))) {
        return 2;
    }
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer timer;
    QObject::connect(
        &watcher, &Watcher::itemRegistered, &program,
        [&] {
            std::printf("%.2f %lld\n", static_cast<double>(timer.nsecsElapsed()) / 1e6,
                        static_cast<long long>(program.processId()));
            std::fflush(stdout);
        },
        Qt::SingleShotConnection);
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &program, &QProcess::terminate);
    QObject::connect(&program, &QProcess::finished, &application, &QCoreApplication::quit);
    QTimer::singleShot(std::chrono::minutes{5}, &program, &QProcess::kill);
    timer.start();
    const QString name = command.takeFirst();
    program.start(name, command);
    return QCoreApplication::exec();
}

#include "item_watcher.moc"
