#include "app/desktop/status_area.h"

#include "model/quota_display.h"
#include "ui/item/gauge_image.h"
#include "ui/item/menu_bar_label.h"

#include <QtCore/QCoreApplication>

namespace tallyvane::app {

using platform::ColourPreference;
using platform::HostProfile;

namespace {

constexpr int firstProvider = 1;
/// After the providers.
enum MenuEntry {
    firstSeparator = firstProvider + static_cast<int>(model::allCases<model::AIProvider>.size()),
    open,
    refresh,
    lastSeparator,
    quit,
    firstPace ///< a line per provider, above the first separator
};

/// The sizes that common panels use. xfce4-panel scales the largest down to 22 pixels, which is
/// sharp from twice that size only.
constexpr int pictureSizes[] = {16, 22, 24, 32, 44};

} // namespace

StatusArea::StatusArea(platform::StatusItem& item, const core::AppModel& model,
                       const platform::SystemAppearance& appearance, const platform::Clock& clock,
                       const std::filesystem::path& iconFolder)
    : m_item(item),
      m_model(model),
      m_appearance(appearance),
      m_clock(clock),
      m_iconFiles(iconFolder) {
    m_item.setTitle(QStringLiteral("Tallyvane"));
    showSnapshot();
    showToolTip();
    showMenu();
    connect(&model, &core::AppModel::snapshotChanged, this, &StatusArea::showSnapshot);
    // The figures change during a refresh only, and their age is told as of its end: a timer for
    // each minute would wake the program and the panel for a text that is rarely read.
    connect(&model, &core::AppModel::isRefreshingChanged, this, &StatusArea::showToolTip);
    connect(&model, &core::AppModel::isRefreshingChanged, this, &StatusArea::showMenu);
    connect(&model, &core::AppModel::onlyProviderChanged, this, &StatusArea::showToolTip);
    connect(&model, &core::AppModel::onlyProviderChanged, this, &StatusArea::showMenu);
    connect(&appearance, &platform::SystemAppearance::changed, this, &StatusArea::showSnapshot);
    connect(&m_panelColours, &platform::PanelColourPreference::changed, this,
            &StatusArea::showSnapshot);
    connect(&m_item, &platform::StatusItem::hostProfileChanged, this, &StatusArea::showSnapshot);
    connect(&m_item, &platform::StatusItem::hostAvailableChanged, this,
            &StatusArea::isShownChanged);
    connect(&m_item, &platform::StatusItem::activated, this,
            [this](QPoint position, const QString& token) {
                const bool isTrusted = m_item.hostProfile().hasTrustedCoordinates;
                Q_EMIT clicked(isTrusted ? std::optional(position) : std::nullopt, token);
            });
    connect(&m_item, &platform::StatusItem::menuItemTriggered, this, &StatusArea::choose);
}

void StatusArea::showSnapshot() {
    const model::QuotaSnapshot snapshot = m_model.snapshot();
    const ui::GaugeValues gauges = ui::gaugeValues(snapshot);
    // With a label beside it the icon needs no figure.
    std::optional<int> figure;
    if (!m_item.hostProfile().showsLabel) {
        figure = model::lowestRemainingPercent(snapshot);
    }
    const auto drawing = [&](int size) {
        return figure ? ui::figureDrawing(*figure, gauges, size) : ui::gaugeDrawing(gauges);
    };
    platform::ItemIcon icon;
    for (const int size : pictureSizes) {
        icon.pixmaps.append({size, ui::networkPixels(ui::paint(drawing(size), size, ink()))});
    }
    icon.symbolicFile = m_iconFiles.add(ui::symbolicSvg(drawing(22)));
    m_item.setIcon(icon);
    m_item.setLabel(model::labelText(snapshot), QStringLiteral("100%"));
}

void StatusArea::showToolTip() {
    m_item.setToolTip(ui::tooltipLines(m_model.snapshot(), m_model.failures(), m_clock.now(),
                                       m_model.recentRates()));
}

void StatusArea::showMenu() {
    const model::QuotaSnapshot snapshot = m_model.snapshot();
    const model::Timestamp now = m_clock.now();
    const QStringList lines = ui::menuLines(snapshot, now);
    QList<platform::ItemMenuEntry> menu;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const auto& entry = snapshot.providers[static_cast<std::size_t>(i)];
        const int provider = std::to_underlying(entry.provider);
        menu.append({.id = firstProvider + provider, .text = lines[i]});
        const QString runOut = ui::runOutMenuLine(entry, now, m_model.recentRates());
        if (!runOut.isEmpty()) {
            menu.append({.id = firstPace + provider, .text = runOut});
        }
    }
    menu += {{.id = firstSeparator, .isSeparator = true},
             {.id = open, .text = tr("Open Tallyvane")},
             {.id = refresh, .text = tr("Refresh"), .isEnabled = !m_model.isRefreshing()},
             {.id = lastSeparator, .isSeparator = true},
             {.id = quit, .text = tr("Quit")}};
    m_item.setMenu(menu);
}

void StatusArea::choose(int entry) {
    if (entry < firstSeparator || entry >= firstPace) {
        const int first = entry < firstSeparator ? firstProvider : firstPace;
        Q_EMIT usagePageRequested(static_cast<model::AIProvider>(entry - first));
        return;
    }
    switch (entry) {
    case open:
        Q_EMIT openRequested();
        break;
    case refresh:
        Q_EMIT refreshRequested();
        break;
    case quit:
        Q_EMIT quitRequested();
        break;
    default:
        break;
    }
}

QColor StatusArea::ink() const {
    const HostProfile host = m_item.hostProfile();
    ColourPreference panel = host.hasXfceColours ? m_panelColours.value() : ColourPreference::none;
    if (panel == ColourPreference::none) {
        panel = m_appearance.colourPreference();
    }
    if (panel == ColourPreference::none && host.isUsuallyDark) {
        panel = ColourPreference::dark;
    }
    switch (panel) {
    case ColourPreference::dark:
        return {0xf2, 0xf2, 0xf2};
    case ColourPreference::light:
        return {0x2e, 0x34, 0x36};
    case ColourPreference::none:
        break;
    }
    return {0x76, 0x76, 0x76}; // a contrast of 4.5 to black and to white
}

} // namespace tallyvane::app

#include "moc_status_area.cpp"
