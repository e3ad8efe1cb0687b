#include "platform/linux/notification_settings_page.h"
#include "support/test_main.h"

#include <QtCore/QFile>

using namespace tallyvane;

class NotificationSettingsPageTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void finds() {
        const QTemporaryDir programs;
        qputenv("PATH", programs.path().toUtf8());
        for (const char* name : {"gnome-control-center", "xfce4-notifyd-config"}) {
            QFile program(programs.filePath(QString::fromLatin1(name)));
            QVERIFY(program.open(QIODevice::WriteOnly));
            program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        }
        const std::pair<const char*, const char*> rows[] = {
            {"GNOME", "gnome-control-center notifications"},
            {"ubuntu:GNOME", "gnome-control-center notifications"},
            {"X-Cinnamon:XFCE", "xfce4-notifyd-config"}, // the first one's is not installed
            {"KDE", ""},
            {"sway", ""},
            {"", ""},
        };
        for (const auto& [desktop, expected] : rows) {
            const auto page = platform::notificationSettingsPage(QString::fromLatin1(desktop));
            const QString call = page ? (QStringList{page->program} + page->arguments).join(u' ')
                                      : programs.filePath({});
            QCOMPARE(call, programs.filePath(QString::fromLatin1(expected)));
        }
    }
};

TALLYVANE_TEST_MAIN(NotificationSettingsPageTest)
#include "notification_settings_page_test.moc"
