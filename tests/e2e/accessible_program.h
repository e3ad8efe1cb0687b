#pragma once

#include "support/tallyvane_program.h"

#include <QtCore/QTemporaryDir>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusReply>

#include <algorithm>
#include <vector>

namespace tallyvane::tests {

/// The bus of assistive programs, on the session bus that the environment points to.
class AccessibilityBus {
public:
    AccessibilityBus() = default;
    ~AccessibilityBus() { QDBusConnection::disconnectFromBus(connection.name()); }
    AccessibilityBus(const AccessibilityBus&) = delete;
    AccessibilityBus& operator=(const AccessibilityBus&) = delete;

private:
    static QString address() {
        output("gdbus wait --session --timeout 30 org.a11y.Bus");
        const QByteArray answer = output("gdbus call --session --dest org.a11y.Bus --object-path "
                                         "/org/a11y/bus --method org.a11y.Bus.GetAddress");
        return QString::fromUtf8(answer.mid(2, answer.lastIndexOf('\'') - 2));
    }

    // The bus ends later than its launcher, and takes the socket of its folder away.
    const QTemporaryDir m_folder;
    const RunningProgram m_launcher{"env XDG_RUNTIME_DIR=" + m_folder.path().toUtf8() +
                                    " /usr/libexec/at-spi-bus-launcher --launch-immediately"};

public:
    const QDBusConnection connection =
        QDBusConnection::connectToBus(address(), QStringLiteral("accessibility"));
};

/// What assistive programs see of all programs on their bus, and do with it: AT-SPI 2, as
/// at-spi2-core 2.46 has it.
class AccessiblePrograms {
public:
    explicit AccessiblePrograms(const QDBusConnection& bus) : m_bus(bus) {}

    /// What every control is called, from the top, followed by " (on)" for one that is checked or
    /// selected, and by its description or content after " | ", unless
    /// that is its name again.
    [[nodiscard]] QStringList texts() const {
        QStringList texts;
        for (const Control& control : controls()) {
            const QDBusReply<QString> text =
                call(control, "org.a11y.atspi.Text", "GetText", {0, -1});
            const QString content = property(control, "Description") + text.value();
            texts << control.name + QLatin1String(control.has(checked | selected) ? " (on)" : "") +
                         (content.isEmpty() || content == control.name
                              ? QString()
                              : QLatin1String(" | ") + content);
        }
        return texts;
    }

    /// Does what the first control of this name is for, as soon as it is there. Returns whether it
    /// was before `patience` was over.
    [[nodiscard]] bool press(const QString& name) const {
        const auto isDone = [&] {
            const auto all = controls();
            const auto found = std::ranges::find(all, name, &Control::name);
            if (found == all.end()) {
                return false;
            }
            const auto action = [&](const char* method, int index) {
                return call(*found, "org.a11y.atspi.Action", method, {index});
            };
            // Newer versions of Qt can also give the focus to what has no state.
            const bool isFocus =
                QDBusReply<QString>(action("GetName", 0)).value() == QLatin1StringView("SetFocus");
            return QDBusReply<bool>(action("DoAction", isFocus ? 1 : 0)).value();
        };
        return QTest::qWaitFor(isDone, patience);
    }

private:
    /// Members of a set of states, by the numbers of AtspiStateType.
    enum State : uint {
        checked = 1U << 4U,
        selected = 1U << 23U,
        visible = 1U << 30U,
    };
    struct Control {
        QString service;
        QDBusObjectPath path;
        QString name;
        uint states = 0;

        [[nodiscard]] bool has(uint anyOf) const { return (states & anyOf) != 0; }
    };

    /// Everything that is visible and has a name.
    [[nodiscard]] std::vector<Control> controls() const {
        std::vector<Control> controls;
        collectBelow({.service = QStringLiteral("org.a11y.atspi.Registry"),
                      .path = QDBusObjectPath("/org/a11y/atspi/accessible/root")},
                     controls);
        return controls;
    }
    void collectBelow(const Control& parent, std::vector<Control>& controls) const {
        const QDBusMessage answer = call(parent, "org.a11y.atspi.Accessible", "GetChildren");
        if (answer.type() != QDBusMessage::ReplyMessage) {
            return; // gone meanwhile
        }
        const auto children = answer.arguments().constFirst().value<QDBusArgument>();
        children.beginArray();
        while (!children.atEnd()) {
            Control control;
            children.beginStructure();
            children >> control.service >> control.path;
            children.endStructure();
            control.name = property(control, "Name");
            const QDBusReply<QList<uint>> states =
                call(control, "org.a11y.atspi.Accessible", "GetState");
            control.states = states.value().value(0);
            if (control.has(visible) && !control.name.isEmpty()) {
                controls.push_back(control);
            }
            collectBelow(control, controls);
        }
        children.endArray();
    }

    [[nodiscard]] QString property(const Control& of, const char* name) const {
        const QDBusReply<QVariant> value =
            call(of, "org.freedesktop.DBus.Properties", "Get",
                 {QStringLiteral("org.a11y.atspi.Accessible"), QLatin1String(name)});
        return value.value().toString();
    }
    [[nodiscard]] QDBusMessage call(const Control& of, const char* interface, const char* method,
                                    const QVariantList& arguments = {}) const {
        QDBusMessage message = QDBusMessage::createMethodCall(
            of.service, of.path.path(), QLatin1String(interface), QLatin1String(method));
        message.setArguments(arguments);
        return m_bus.call(message);
    }

    const QDBusConnection m_bus;
};

} // namespace tallyvane::tests
