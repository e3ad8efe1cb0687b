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

/// One picture in the forms that hosts ask for; each host is given those that it draws well.
struct ItemIcon {
    QList<ItemPixmap> pixmaps; ///< the same picture in several sizes
    /// Absolute path of an SVG file of fills alone, "…-symbolic.svg", or empty. Hosts keep what
    /// they have read: another drawing needs another name.
    QString symbolicFile;

    bool operator==(const ItemIcon&) const = default;
};

/// One line of an item's menu.
struct ItemMenuEntry {
    int id = 0;   ///< above 0 and unique in its menu
    QString text; ///< shown as it stands
    bool isEnabled = true;
    bool isSeparator = false; ///< a line that is only drawn

    bool operator==(const ItemMenuEntry&) const = default;
};

} // namespace tallyvane::platform
