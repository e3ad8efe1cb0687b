#pragma once

#include "platform/clock.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace tallyvane::ui {

/// What the passing notice of a refresh shows.
class RefreshToastModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the dashboard")
    Q_PROPERTY(State state READ state NOTIFY stateChanged)

public:
    // NOLINTBEGIN(readability-identifier-naming): names in QML begin with a capital
    enum State {
        Hidden,
        Refreshing, ///< a refresh runs
        Refreshed,  ///< it ended less than 1.7 seconds ago
    };
    // NOLINTEND(readability-identifier-naming)
    Q_ENUM(State)

    /// `clock` outlives it.
    explicit RefreshToastModel(platform::Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] State state() const { return m_state; }

    void setRefreshing(bool isRefreshing);
    /// Takes the notice away, unless a refresh runs.
    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void stateChanged();

private:
    void show(State state);

    platform::Clock& m_clock;
    State m_state = Hidden;
    std::unique_ptr<platform::Alarm> m_alarm;
};

} // namespace tallyvane::ui
