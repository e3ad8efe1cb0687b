#include "ui/menubar/menu_bar_quota_view_model.h"

#include "model/quota_display.h"

namespace tallyvane::ui {

MenuBarQuotaViewModel::MenuBarQuotaViewModel(const core::AppModel& model) : m_model(model) {
    connect(&model, &core::AppModel::snapshotChanged, this, &MenuBarQuotaViewModel::updateRows);
    connect(&model, &core::AppModel::failuresChanged, this, &MenuBarQuotaViewModel::updateRows);
    connect(&model, &core::AppModel::isRefreshingChanged, this,
            &MenuBarQuotaViewModel::isRefreshingChanged);
    updateRows();
}

void MenuBarQuotaViewModel::updateRows() {
    const core::Failures failures = m_model.failures();
    std::vector<ProviderRow> rows;
    rows.reserve(model::allCases<model::AIProvider>.size());
    for (const model::AIProvider provider : model::allCases<model::AIProvider>) {
        const auto failed = failures.find(provider);
        rows.push_back(
            {.name = model::displayName(provider),
             .usagePage = QUrl(model::usagePage(provider)),
             .summary = model::summaryText(entryFor(m_model.snapshot(), provider)),
             .trouble = failed == failures.end() ? QString() : failed->second.sentences()});
    }
    m_rows.setRecords(std::move(rows));
}

} // namespace tallyvane::ui

#include "moc_menu_bar_quota_view_model.cpp"
