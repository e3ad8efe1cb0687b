#pragma once

#include "platform/login_item.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace tallyvane::ui {

/// The question, asked once, whether the program shall start at login.
class LaunchPromptModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the main window")
    Q_PROPERTY(bool isShown READ isShown NOTIFY isShownChanged)
    Q_PROPERTY(QString error READ error NOTIFY errorChanged)

public:
    /// `loginItem` outlives it.
    explicit LaunchPromptModel(platform::LoginItem& loginItem, QObject* parent = nullptr);

    [[nodiscard]] bool isShown() const { return m_isShown; }
    /// Why the last attempt failed; empty when none did.
    [[nodiscard]] QString error() const { return m_error; }

    void ask();
    /// Ends the question without a change.
    Q_INVOKABLE void decline();
    /// Applies the answer, and ends the question when that succeeds.
    Q_INVOKABLE void accept(bool wanted);

Q_SIGNALS:
    void isShownChanged();
    void errorChanged();

private:
    void setShown(bool isShown);

    platform::LoginItem& m_loginItem;
    bool m_isShown = false;
    QString m_error;
};

} // namespace tallyvane::ui
