#include "ui/menubar/menu_bar_quota_view_model.h"

#include "model/quota_display.h"
#include "ui/item/menu_bar_label.h"

namespace tallyvane::ui {

MenuBarQuotaViewModel::MenuBarQuotaViewModel(const core::AppModel& model, platform::Clock& clock)
    : m_model(model), m_clock(clock) {
    connect(&model, &core::AppModel::snapshotChanged, this, &MenuBarQuotaViewModel::updateRows);
    connect(&model, &core::AppModel::failuresChanged, this, &MenuBarQuotaViewModel::updateRows);
    connect(&model, &core::AppModel::isRefreshingChanged, this,
            &MenuBarQuotaViewModel::isRefreshingChanged);
    updateRows();
}

void MenuBarQuotaViewModel::setShown(bool isShown) {
    m_nextUpdate.reset();
    if (isShown) {
        updateRows();
        // The texts change once a minute.
        m_nextUpdate = m_clock.after(std::chrono::seconds{10}, [this] { setShown(true); });
    }
}

void MenuBarQuotaViewModel::updateRows() {
    const model::Timestamp now = m_clock.now();
    const model::QuotaSnapshot snapshot = m_model.snapshot();
    const core::Failures failures = m_model.failures();
    std::vector<ProviderRow> rows;
    rows.reserve(snapshot.providers.size());
    for (const model::ProviderQuotaSnapshot& entry : snapshot.providers) {
        const model::AIProvider provider = entry.provider;
        const auto failed = failures.find(provider);
        const QString age = oldFiguresAge(entry, now);
        QStringList details = resetTexts(entry, now);
        details += model::runOutTexts(entry, now, m_model.recentRates());
        if (!age.isEmpty()) {
            //: %1 is how long ago, such as "20 min ago"
            details << tr("Last updated %1").arg(age);
        }
        // A line breaks between the details, not within one.
        details.replaceInStrings(QStringLiteral(" "), QString(QChar::Nbsp));
        ProviderRow row{.name = model::displayName(provider),
                        .usagePage = QUrl(model::usagePage(provider)),
                        .summary = model::summaryText(entry),
                        .details = details.join(model::dot),
                        .trouble =
                            failed == failures.end() ? QString() : failed->second.sentences()};
        QStringList spoken = {row.summary, row.details, row.trouble};
        spoken.removeAll(QString());
        row.description = spoken.join(QStringLiteral("; "));
        rows.push_back(std::move(row));
    }
    m_rows.setRecords(std::move(rows));
}

} // namespace tallyvane::ui

#include "moc_menu_bar_quota_view_model.cpp"
