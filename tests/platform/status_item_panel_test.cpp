#include "platform/linux/status_item/status_item.h"
#include "support/test_main.h"
#include "support/xfce_desktop.h"

#include <QtDBus/QDBusConnection>
#include <QtTest/QSignalSpy>

using namespace tallyvane;

namespace {

constexpr int patience = 30000; ///< in milliseconds, for programs that start on a busy machine

/// The first pixel of the colour in the left end of the panel, such as "#C81E64".
std::optional<QPoint> find(const QByteArray& colour) {
    const QByteArray pixels = tests::output("import -window root -crop 100x32+0+0 -depth 8 txt:-");
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
        tests::XfceDesktop desktop;
        platform::StatusItem item(
            QStringLiteral("org.corvelle.Tallyvane"),
            QDBusConnection::connectToBus(desktop.bus.address(), QStringLiteral("program")));
        item.setTitle(QStringLiteral("Tallyvane"));
        item.setMenu({{7, QStringLiteral("Quit")}});
        QSignalSpy activated(&item, &platform::StatusItem::activated);
        QSignalSpy triggered(&item, &platform::StatusItem::menuItemTriggered);

        for (const QByteArray colour : {"C81E64", "1E64C8"}) {
            desktop.startPanel();
            QTRY_VERIFY_WITH_TIMEOUT(item.isHostAvailable(), patience);
            QVERIFY(item.hostProfile().hasTrustedCoordinates);
            QVERIFY(!item.hostProfile().showsLabel);
            // A picture that changes under the panel's eyes.
            const QByteArray argb = QByteArray::fromHex("ff" + colour);
            item.setIcon({{square(16, argb), square(22, argb), square(32, argb)}, {}});
            std::optional<QPoint> at;
            QTRY_VERIFY_WITH_TIMEOUT(at = find('#' + colour), patience);

            activated.clear();
            tests::output("xdotool mousemove " + QByteArray::number(at->x() + 5) + ' ' +
                          QByteArray::number(at->y() + 5) + " click 1");
            QTRY_COMPARE_WITH_TIMEOUT(activated.count(), 1, patience);
            const QPoint position = activated.at(0).at(0).toPoint();
            QVERIFY((position - *at).manhattanLength() < 64);

            triggered.clear();
            tests::output("xdotool click 3");
            // Keys that come before the menu is open go nowhere.
            QTRY_VERIFY_WITH_TIMEOUT(
                (tests::output("xdotool key Down Return"), !triggered.isEmpty()), patience);
            QCOMPARE(triggered.at(0), QVariantList{7});
            desktop.endPanel();
        }
    }
};

TALLYVANE_TEST_MAIN(StatusItemPanelTest)
#include "status_item_panel_test.moc"
