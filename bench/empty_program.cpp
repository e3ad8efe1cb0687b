#include <QtCore/qglobal.h>

int main() {
    return qVersion() != nullptr ? 0 : 1;
}
