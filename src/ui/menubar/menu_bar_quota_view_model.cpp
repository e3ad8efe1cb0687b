#include "ui/menubar/menu_bar_quota_view_model.h"

#include "core/app_model.h"
#include "model/quota_display.h"

namespace tallyvane::ui {

ProviderRow::ProviderRow(const core::AppModel& model, model::AIProvider provider, QObject* parent)
    : QObject(parent), m_model(model), m_provider(provider) {
    connect(&model, &core::AppModel::snapshotChanged, this, &ProviderRow::summaryChanged);
}

QString ProviderRow::name() const {
    return model::displayName(m_provider);
}

QUrl ProviderRow::usagePage() const {
    return QUrl(model::usagePage(m_provider));
}

QString ProviderRow::summary() const {
    return model::summaryText(entryFor(m_model.snapshot(), m_provider));
}

MenuBarQuotaViewModel::MenuBarQuotaViewModel(const core::AppModel& model) : m_model(model) {
    for (const model::AIProvider provider : model::allCases<model::AIProvider>) {
        m_rows.append(new ProviderRow(model, provider, this));
    }
    connect(&model, &core::AppModel::isRefreshingChanged, this,
            &MenuBarQuotaViewModel::isRefreshingChanged);
}

bool MenuBarQuotaViewModel::isRefreshing() const {
    return m_model.isRefreshing();
}

} // namespace tallyvane::ui
