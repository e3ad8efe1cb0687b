#include "ui/settings/launch_prompt_model.h"

#include "core/launch_at_login.h"

#include <utility>

namespace tallyvane::ui {

LaunchPromptModel::LaunchPromptModel(platform::LoginItem& loginItem, QObject* parent)
    : QObject(parent), m_loginItem(loginItem) {}

void LaunchPromptModel::ask() {
    setShown(true);
}

void LaunchPromptModel::decline() {
    setShown(false);
}

void LaunchPromptModel::accept(bool wanted) {
    const auto done = core::setLaunchAtLogin(m_loginItem, wanted);
    m_error = done ? QString() : done.error();
    Q_EMIT errorChanged();
    if (done) {
        setShown(false);
    }
}

void LaunchPromptModel::setShown(bool isShown) {
    if (std::exchange(m_isShown, isShown) != isShown) {
        Q_EMIT isShownChanged();
    }
}

} // namespace tallyvane::ui
