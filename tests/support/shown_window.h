#pragma once

#include "support/gui_test_main.h"
#include "support/idle_model.h"
#include "ui/style/appearance.h"
#include "ui/style/engine.h"

#include <QtGui/QFont>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickView>

namespace tallyvane::tests {

/// A window and what it needs. Finds its visible items by their object names and presses keys.
class ShownWindow {
public:
    ShownWindow(const model::QuotaSnapshot& snapshot, model::Timestamp now,
                const history::UsageHistory& history)
        : idle(snapshot, now, history) {}

    /// Sets the text's size and the layout's direction until the next window is gone.
    static void setLook(int points, Qt::LayoutDirection direction) {
        QGuiApplication::setFont(QFont(QGuiApplication::font().family(), points));
        QGuiApplication::setLayoutDirection(direction);
    }

    [[nodiscard]] virtual QQuickView* view() const = 0;
    [[nodiscard]] QQuickItem* root() const { return view()->rootObject(); }

    /// Including those that a Repeater made, which are no QObject children of the root.
    [[nodiscard]] QList<QQuickItem*> items(const char* name) const {
        QList<QQuickItem*> found;
        QList<QQuickItem*> all{root()};
        for (qsizetype i = 0; i < all.size(); ++i) {
            if (all[i]->objectName() == QLatin1StringView(name) && all[i]->isVisible()) {
                found << all[i];
            }
            all += all[i]->childItems();
        }
        return found;
    }
    [[nodiscard]] QQuickItem* item(const char* name) const { return items(name).value(0); }
    [[nodiscard]] QString text(const char* name) const {
        return item(name) != nullptr ? item(name)->property("text").toString() : QString();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers with = {}) const {
        QTest::keyClick(view(), key, with);
    }
    void press(const char* name, Qt::Key key) const {
        item(name)->forceActiveFocus(Qt::TabFocusReason);
        press(key);
    }

    /// The first of these items that is cut off or overlaps another; empty if none is.
    [[nodiscard]] QByteArray misplaced(const QList<const char*>& names) const {
        QList<QRectF> places;
        for (const char* name : names) {
            const QQuickItem* shown = item(name);
            const QRectF place =
                shown != nullptr ? shown->mapRectToScene(shown->boundingRect()) : QRectF();
            const bool overlaps = std::ranges::any_of(
                places, [&](const QRectF& other) { return other.intersects(place); });
            if (place.isEmpty() || place.left() < 0 || place.right() > view()->width() ||
                shown->width() < shown->implicitWidth() || overlaps) {
                return name;
            }
            places << place;
        }
        return {};
    }

    IdleModel idle;
    ui::Appearance appearance{idle.model};
    std::unique_ptr<QQmlEngine> engine = ui::makeEngine(appearance);

protected:
    ~ShownWindow() {
        QGuiApplication::setFont(QFont());
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }
};

} // namespace tallyvane::tests
