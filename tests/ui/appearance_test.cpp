#include "support/gui_test_main.h"
#include "support/idle_model.h"
#include "ui/style/appearance.h"
#include "ui/style/colour.h"
#include "ui/style/engine.h"

#include <QtGui/QFont>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtQml/QQmlComponent>

using namespace tallyvane;
using model::AppAppearance;
using platform::ColourPreference;

class AppearanceTest : public tests::HermeticTest {
    Q_OBJECT

    tests::IdleModel m_idle{{}};
    ui::Appearance m_appearance{m_idle.model};

private Q_SLOTS:
    void choosesTheScheme() {
        const auto isDark = [this](AppAppearance choice, ColourPreference system,
                                   Qt::GlobalColor window) {
            m_idle.model.setAppearance(choice);
            m_appearance.setSystemColourScheme(system);
            QGuiApplication::setPalette(QPalette(window));
            return m_appearance.isDark();
        };
        QVERIFY(!isDark(AppAppearance::light, ColourPreference::dark, Qt::black));
        QVERIFY(isDark(AppAppearance::dark, ColourPreference::light, Qt::white));
        QVERIFY(isDark(AppAppearance::system, ColourPreference::dark, Qt::white));
        QVERIFY(!isDark(AppAppearance::system, ColourPreference::light, Qt::black));
        QVERIFY(isDark(AppAppearance::system, ColourPreference::none, Qt::black));
        QVERIFY(!isDark(AppAppearance::system, ColourPreference::none, Qt::white));
    }

    void canBeRead() {
        const auto engine = ui::makeEngine(m_appearance);
        QQmlComponent component(engine.get());
        component.setData("import QtQml\nimport Tallyvane.Style\n"
                          "QtObject { readonly property QtObject theme: Theme }",
                          {});
        const std::unique_ptr<QObject> holder(component.create());
        QVERIFY2(holder, qPrintable(component.errorString()));
        const auto* theme = holder->property("theme").value<QObject*>();
        const auto colour = [=](const QByteArray& name) {
            return theme->property(name).value<QColor>();
        };
        // A ground may be several layers, from back to front.
        const auto check = [&](const QByteArray& ink, double least, const QByteArray& grounds) {
            for (const QByteArray& layers : grounds.split(',')) {
                QImage ground(1, 1, QImage::Format_RGB32);
                for (const QByteArray& layer : layers.split(' ')) {
                    QPainter(&ground).fillRect(ground.rect(), colour(layer));
                }
                QVERIFY2(ui::contrast(colour(ink), ground.pixelColor(0, 0)) >= least,
                         ink + " on " + layers);
            }
        };
        for (const auto choice : {AppAppearance::light, AppAppearance::dark}) {
            m_idle.model.setAppearance(choice);
            check("text", 4.5, "window,panel,card,segment,window notice,panel rowHovered");
            check("text", 4.5, "window controlPressed,card controlPressed");
            check("secondaryText", 4.5, "window,panel,card,panel rowHovered");
            check("destructive", 4.5, "card,card controlPressed");
            check("tertiaryText", 3, "window,panel,card");
            check("warning", 3, "window notice,card");
            check("success", 3, "segment");
            check("indigo", 3, "card");
            for (const char* accent : {"#ffffff", "#ffff00", "#3daee9", "#303060", "#000000"}) {
                QPalette palette;
                palette.setColor(QPalette::Highlight, accent);
                QGuiApplication::setPalette(palette);
                check("accent", 4.5, "window,panel,card");
                check("whiteText", 4.5, "accentFill");
            }
        }
    }

    void announcesEachChange() {
        const QSignalSpy changed(&m_appearance, &ui::Appearance::changed);
        m_idle.model.setAppearance(AppAppearance::light);
        m_appearance.setSystemColourScheme(ColourPreference::dark);
        m_appearance.setMotionReduced(true);
        QCOMPARE(changed.count(), 3);
        QGuiApplication::setFont(QFont(QGuiApplication::font().family(), 20));
        QCOMPARE(qRound(m_appearance.textScale() * 10), 20);
        QTRY_COMPARE(changed.count(), 4);
    }
};

TALLYVANE_GUI_TEST(AppearanceTest)
#include "appearance_test.moc"
