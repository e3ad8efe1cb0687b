#include "platform/linux/dbus_widget_centre.h"
#include "support/private_bus.h"
#include "support/test_main.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

using namespace tallyvane;

class DBusWidgetCentreTest : public tests::HermeticTest {
    Q_OBJECT

    QList<QVariantList> m_received; // member and arguments of each signal

private Q_SLOTS:
    void tellsTheWidgets() {
        const tests::PrivateBus bus;
        QDBusConnection widget =
            QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("widget"));
        for (const char* member : {"TimelinesReloaded", "AllTimelinesReloaded"}) {
            QVERIFY(widget.connect(QString(), QStringLiteral("/org/corvelle/Tallyvane"),
                                   QStringLiteral("org.corvelle.Tallyvane.Widgets"),
                                   QString::fromLatin1(member), this, SLOT(receive(QDBusMessage))));
        }
        platform::DBusWidgetCentre centre;
        centre.reloadTimelines(QStringLiteral("GaugewellWidget"));
        centre.reloadAllTimelines();
        QTRY_COMPARE(m_received.size(), 2);
        QCOMPARE(m_received.at(0), (QVariantList{QStringLiteral("TimelinesReloaded"),
                                                 QStringLiteral("GaugewellWidget")}));
        QCOMPARE(m_received.at(1), QVariantList{QStringLiteral("AllTimelinesReloaded")});
    }

public Q_SLOTS:
    void receive(const QDBusMessage& signal) {
        m_received.append(QVariantList{signal.member()} + signal.arguments());
    }
};

TALLYVANE_TEST_MAIN(DBusWidgetCentreTest)
#include "dbus_widget_centre_test.moc"
