#include "ui/dashboard/refresh_toast_model.h"

#include <utility>

namespace tallyvane::ui {

using namespace std::chrono_literals;

RefreshToastModel::RefreshToastModel(platform::Clock& clock, QObject* parent)
    : QObject(parent), m_clock(clock) {}

void RefreshToastModel::setRefreshing(bool isRefreshing) {
    m_alarm.reset();
    if (isRefreshing) {
        show(Refreshing);
    } else if (m_state == Refreshing) {
        m_alarm = m_clock.after(1700ms, [this] { dismiss(); });
        show(Refreshed);
    }
}

void RefreshToastModel::dismiss() {
    if (m_state == Refreshed) {
        m_alarm.reset();
        show(Hidden);
    }
}

void RefreshToastModel::show(State state) {
    if (std::exchange(m_state, state) != state) {
        Q_EMIT stateChanged();
    }
}

} // namespace tallyvane::ui
