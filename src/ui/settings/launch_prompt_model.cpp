#include "ui/settings/launch_prompt_model.h"

#include "core/launch_at_login.h"

namespace tallyvane::ui {

void LaunchPromptModel::accept(bool wanted) {
    const auto done = core::setLaunchAtLogin(m_loginItem, wanted);
    m_error = done ? QString() : done.error();
    m_isShown = !done;
}

} // namespace tallyvane::ui
