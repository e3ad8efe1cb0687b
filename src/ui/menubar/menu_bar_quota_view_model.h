#pragma once

#include "core/app_model.h"
#include "platform/clock.h"
#include "ui/style/record_list.h"

#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

namespace tallyvane::ui {

/// One provider's row in the panel.
class ProviderRow {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QUrl usagePage MEMBER usagePage)
    Q_PROPERTY(QString summary MEMBER summary)
    Q_PROPERTY(QString details MEMBER details)
    Q_PROPERTY(QString trouble MEMBER trouble)
    Q_PROPERTY(QString description MEMBER description)

public:
    QString name;
    QUrl usagePage;
    QString summary;
    /// When the quotas reset, which of them run out before and, if the figures are old, since when;
    /// may be empty.
    QString details;
    QString trouble;     ///< why the figures are not current and what to do; may be empty
    QString description; ///< these texts, to be read aloud

    bool operator==(const ProviderRow&) const = default;
};

/// What MenuBarQuotaView shows, and the commands it sends. Main thread.
class MenuBarQuotaViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the program's windows")
    Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT)
    Q_PROPERTY(bool isRefreshing READ isRefreshing NOTIFY isRefreshingChanged)

public:
    /// Follows `model`, and the clock while the view is shown; both must outlive it.
    MenuBarQuotaViewModel(const core::AppModel& model, platform::Clock& clock);
    void setShown(bool isShown);

    /// Codex, then Claude, as far as they are shown.
    [[nodiscard]] QAbstractItemModel* rows() { return &m_rows; }
    [[nodiscard]] bool isRefreshing() const { return m_model.isRefreshing(); }

Q_SIGNALS:
    void isRefreshingChanged();
    // The user's commands.
    void openRequested();
    void settingsRequested();
    void refreshRequested();
    void quitRequested();

private:
    void updateRows();

    const core::AppModel& m_model;
    platform::Clock& m_clock;
    std::unique_ptr<platform::Alarm> m_nextUpdate; ///< while the view is shown
    RecordList<ProviderRow> m_rows;
};

} // namespace tallyvane::ui
