#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

namespace tallyvane::platform {

/// A square picture.
struct ItemPixmap {
    int size = 0;     ///< width and height in pixels
    QByteArray bytes; ///< rows from the top, 4 bytes per pixel: alpha, red, green, blue; the
                      ///< colours are not multiplied by alpha

    bool operator==(const ItemPixmap&) const = default;
};

/// One picture in several forms; hosts get those that they draw well.
struct ItemIcon {
    QList<ItemPixmap> pixmaps; ///< the same picture in several sizes
    /// Absolute path of an SVG file, "…-symbolic.svg", that has only fills; may be empty. Hosts
    /// cache files by name, so each drawing needs its own.
    QString symbolicFile;

    bool operator==(const ItemIcon&) const = default;
};

/// One line of an item's menu.
struct ItemMenuEntry {
    int id = 0;   ///< above 0 and unique in its menu
    QString text; ///< shown literally
    bool isEnabled = true;
    bool isSeparator = false;

    bool operator==(const ItemMenuEntry&) const = default;
};

} // namespace tallyvane::platform
