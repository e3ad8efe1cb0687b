#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>
#include <QtWidgets/QSystemTrayIcon>

/// The least that a program with an item in the status area is made of: what ours is measured by.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QPixmap picture(22, 22);
    picture.fill(Qt::darkGray);
    QSystemTrayIcon item{QIcon(picture)};
    item.show();
    return QApplication::exec();
}
