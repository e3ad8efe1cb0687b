#include "ui/dashboard/refresh_toast_model.h"

namespace tallyvane::ui {

using namespace std::chrono_literals;

void RefreshToastModel::setRefreshing(bool isRefreshing) {
    m_alarm.reset();
    if (isRefreshing) {
        m_state = Refreshing;
    } else if (m_state == Refreshing) {
        m_alarm = m_clock.after(1700ms, [this] { dismiss(); });
        m_state = Refreshed;
    }
}

void RefreshToastModel::dismiss() {
    if (m_state == Refreshed) {
        m_alarm.reset();
        m_state = Hidden;
    }
}

} // namespace tallyvane::ui

#include "moc_refresh_toast_model.cpp"
