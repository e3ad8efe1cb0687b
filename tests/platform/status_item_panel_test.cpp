#include "platform/linux/status_item/status_item.h"
#include "support/private_bus.h"
#include "support/test_main.h"
#include "support/virtual_display.h"

#include <QtCore/QDir>
#include <QtCore/QSettings>
#include <QtDBus/QDBusConnection>
#include <QtTest/QSignalSpy>

using namespace tallyvane;

namespace {

constexpr int patience = 30000; ///< in milliseconds, for programs that start on a busy machine

/// A program of the desktop, from its start to its end.
class Program : public QProcess {
    Q_OBJECT

public:
    Program(const QString& path, const QStringList& arguments) {
        setProcessChannelMode(MergedChannels); // its warnings are not ours
        start(path, arguments);
        waitForStarted();
    }
    ~Program() override {
        terminate();
        waitForFinished();
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
};

class XfcePanel : public Program {
public:
    XfcePanel()
        : Program(QStringLiteral("xfce4-panel"),
                  {QStringLiteral("--disable-wm-check"), QStringLiteral("--sm-client-disable")}) {}
};

/// One panel at the top, with a status area alone.
void configurePanel() {
    const QDir folder(qEnvironmentVariable("XDG_CONFIG_HOME") +
                      QStringLiteral("/xfce4/xfconf/xfce-perchannel-xml"));
    folder.mkpath(QStringLiteral("."));
    QFile file(folder.filePath(QStringLiteral("xfce4-panel.xml")));
    file.open(QIODevice::WriteOnly);
    file.write(R"(<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="32"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>)");
}

QString xfconfDaemon() {
    const QSettings service(QStringLiteral("/usr/share/dbus-1/services/org.xfce.Xfconf.service"),
                            QSettings::IniFormat);
    return service.value(QStringLiteral("D-BUS Service/Exec")).toString();
}

QByteArray output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    const bool hasEnded =
        QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; });
    return hasEnded ? process.readAllStandardOutput() : QByteArray();
}

/// Moves mouse and keys.
void use(const QStringList& commands) {
    output(QStringLiteral("xdotool"), commands);
}

/// The first pixel of the colour in the left end of the panel, such as "#C81E64".
std::optional<QPoint> find(const QByteArray& colour) {
    const QByteArray pixels =
        output(QStringLiteral("import"),
               {QStringLiteral("-window"), QStringLiteral("root"), QStringLiteral("-crop"),
                QStringLiteral("100x32+0+0"), QStringLiteral("-depth"), QStringLiteral("8"),
                QStringLiteral("txt:-")});
    // A line per pixel, such as "13,7: (200,30,100)  #C81E64  srgb(200,30,100)".
    const qsizetype at = pixels.indexOf(colour);
    if (at < 0) {
        return std::nullopt;
    }
    const QByteArray line = pixels.mid(pixels.lastIndexOf('\n', at) + 1, 16);
    const QList<QByteArray> position = line.left(line.indexOf(':')).split(',');
    return QPoint(position.at(0).toInt(), position.at(1).toInt());
}

/// A square of one colour, as the item's picture is sent.
platform::ItemPixmap square(int size, const QByteArray& argb) {
    return {size, argb.repeated(size * size)};
}

} // namespace

class StatusItemPanelTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void livesInARealPanel() {
        const tests::PrivateBus bus;
        const tests::VirtualDisplay display;
        configurePanel();
        const Program xfconf(xfconfDaemon(), {});
        platform::StatusItem item(
            QStringLiteral("org.corvelle.Tallyvane"),
            QDBusConnection::connectToBus(bus.address(), QStringLiteral("program")));
        item.setTitle(QStringLiteral("Tallyvane"));
        item.setMenu({{7, QStringLiteral("Quit")}});
        QSignalSpy activated(&item, &platform::StatusItem::activated);
        QSignalSpy triggered(&item, &platform::StatusItem::menuItemTriggered);

        for (const QByteArray colour : {"C81E64", "1E64C8"}) {
            const XfcePanel panel;
            QTRY_VERIFY_WITH_TIMEOUT(item.isHostAvailable(), patience);
            QVERIFY(item.hostProfile().hasTrustedCoordinates);
            QVERIFY(!item.hostProfile().showsLabel);
            // A picture that changes under the panel's eyes.
            const QByteArray argb = QByteArray::fromHex("ff" + colour);
            item.setIcon({{square(16, argb), square(22, argb), square(32, argb)}, {}});
            std::optional<QPoint> at;
            QTRY_VERIFY_WITH_TIMEOUT(at = find('#' + colour), patience);

            activated.clear();
            use({QStringLiteral("mousemove"), QString::number(at->x() + 5),
                 QString::number(at->y() + 5), QStringLiteral("click"), QStringLiteral("1")});
            QTRY_COMPARE_WITH_TIMEOUT(activated.count(), 1, patience);
            const QPoint position = activated.at(0).at(0).toPoint();
            QVERIFY((position - *at).manhattanLength() < 64);

            triggered.clear();
            use({QStringLiteral("click"), QStringLiteral("3")});
            const QStringList choice{QStringLiteral("key"), QStringLiteral("Down"),
                                     QStringLiteral("Return")};
            // Keys that come before the menu is open go nowhere.
            QTRY_VERIFY_WITH_TIMEOUT((use(choice), !triggered.isEmpty()), patience);
            QCOMPARE(triggered.at(0), QVariantList{7});
        }
    }
};

TALLYVANE_TEST_MAIN(StatusItemPanelTest)
#include "status_item_panel_test.moc"
