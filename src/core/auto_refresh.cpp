#include "core/auto_refresh.h"

#include "platform/spawn.h"

namespace tallyvane::core {

void AutoRefresh::start(const LaunchContext& context) {
    if (!context.isTestHost && !context.isFixtureMode) {
        platform::spawn(refreshAndWait());
    }
}

void AutoRefresh::stop() {
    m_isStopped = true;
    m_next.reset();
}

QCoro::Task<> AutoRefresh::refreshAndWait() {
    co_await m_model.refresh(providers::AskedBy::timer);
    if (!m_isStopped) {
        m_next = m_clock.after(refreshInterval, [this] { platform::spawn(refreshAndWait()); });
    }
}

} // namespace tallyvane::core
