#pragma once

#include "core/launch_at_login.h"
#include "platform/login_item.h"

#include <QtCore/QObject>
#include <QtCore/QProperty>
#include <QtQml/qqmlregistration.h>

namespace tallyvane::ui {

/// The question whether the program may start at login.
class LaunchPromptModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the main window")
    Q_PROPERTY(bool isShown READ isShown NOTIFY isShownChanged)
    Q_PROPERTY(QString error READ error NOTIFY errorChanged)

public:
    /// `loginItem` must outlive it.
    explicit LaunchPromptModel(platform::LoginItem& loginItem) : m_loginItem(loginItem) {}

    [[nodiscard]] bool isShown() const { return m_isShown; }
    /// Why the last attempt failed; empty if it did not.
    [[nodiscard]] QString error() const { return m_error; }

    void ask() { m_isShown = true; }
    /// Closes the question and changes nothing.
    Q_INVOKABLE void decline() { m_isShown = false; }
    /// Applies the answer and, if that succeeds, closes the question.
    Q_INVOKABLE void accept(bool wanted) {
        const auto done = core::setLaunchAtLogin(m_loginItem, wanted);
        m_error = done ? QString() : done.error();
        m_isShown = !done;
    }

Q_SIGNALS:
    void isShownChanged();
    void errorChanged();

private:
    platform::LoginItem& m_loginItem;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(LaunchPromptModel, bool, m_isShown, false,
                                         &LaunchPromptModel::isShownChanged)
    Q_OBJECT_BINDABLE_PROPERTY(LaunchPromptModel, QString, m_error,
                               &LaunchPromptModel::errorChanged)
};

} // namespace tallyvane::ui
