#pragma once

#include "platform/clock.h"

#include <QtCore/QObject>
#include <QtCore/QProperty>
#include <QtQml/qqmlregistration.h>

namespace tallyvane::ui {

/// What the toast about a refresh shows.
class RefreshToastModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the dashboard")
    Q_PROPERTY(State state READ state NOTIFY stateChanged)

public:
    // NOLINTBEGIN(readability-identifier-naming): names in QML begin with a capital
    enum State {
        Hidden,
        Refreshing, ///< a refresh is running
        Refreshed,  ///< a refresh ended less than 1.7 seconds ago
    };
    // NOLINTEND(readability-identifier-naming)
    Q_ENUM(State)

    /// `clock` must outlive it.
    explicit RefreshToastModel(platform::Clock& clock) : m_clock(clock) {}

    [[nodiscard]] State state() const { return m_state; }

    void setRefreshing(bool isRefreshing);
    /// Hides the toast unless a refresh is running.
    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void stateChanged();

private:
    platform::Clock& m_clock;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(RefreshToastModel, State, m_state, Hidden,
                                         &RefreshToastModel::stateChanged)
    std::unique_ptr<platform::Alarm> m_alarm;
};

} // namespace tallyvane::ui
