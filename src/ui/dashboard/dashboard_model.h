#pragma once

#include "core/app_model.h"
#include "core/program_setting.h"
#include "model/weekday_time_format.h"
#include "ui/dashboard/provider_card.h"
#include "ui/dashboard/refresh_toast_model.h"
#include "ui/style/record_list.h"

namespace tallyvane::ui {

/// What the dashboard shows. Texts that depend on the time are kept up to date as it passes.
class DashboardModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the main window")
    Q_PROPERTY(QAbstractItemModel* cards READ cards CONSTANT)
    Q_PROPERTY(QString updated READ updated NOTIFY changed)
    Q_PROPERTY(QString lastError READ lastError NOTIFY changed)
    Q_PROPERTY(QString advice READ advice NOTIFY changed)
    Q_PROPERTY(QString foundProgram READ foundProgram NOTIFY changed)
    Q_PROPERTY(bool isRefreshing READ isRefreshing NOTIFY isRefreshingChanged)
    Q_PROPERTY(tallyvane::ui::RefreshToastModel* toast READ toast CONSTANT)
    Q_PROPERTY(QUrl website READ website CONSTANT)
    Q_PROPERTY(QString websiteName READ websiteName CONSTANT)

public:
    /// `model` and `clock` must outlive it. `website` is the maker's.
    DashboardModel(const core::AppModel& model, platform::Clock& clock,
                   model::WeekdayTimeFormat weekdayTime, const QUrl& website,
                   core::ProgramSetting codexProgram);

    /// Of ProviderCardRow: Codex, then Claude, as far as they are shown.
    [[nodiscard]] QAbstractItemModel* cards() { return &m_cards; }
    [[nodiscard]] QString updated() const { return m_shown.updated; } ///< "Updated 5 min ago"
    /// Empty if there is none.
    [[nodiscard]] QString lastError() const { return m_shown.lastError.text(); }
    /// What the user can do about lastError(); may be empty.
    [[nodiscard]] QString advice() const { return m_shown.failure.advice.text(); }
    /// A program that would help, with "~" for the home directory; may be empty.
    [[nodiscard]] QString foundProgram() const {
        return m_codexProgram.shortened(m_shown.failure.foundProgram);
    }
    /// Uses that program from now on.
    Q_INVOKABLE void useFoundProgram();
    [[nodiscard]] bool isRefreshing() const { return m_model.isRefreshing(); }
    [[nodiscard]] RefreshToastModel* toast() { return &m_toast; }
    [[nodiscard]] QUrl website() const { return m_website; }
    [[nodiscard]] QString websiteName() const { return m_website.host(); }

Q_SIGNALS:
    void changed();
    void isRefreshingChanged();
    void refreshRequested(); ///< by the user

private:
    struct Shown {
        QString updated;
        model::Message lastError;
        providers::QuotaFailure failure; ///< the one behind lastError, if it is a provider's

        bool operator==(const Shown&) const = default;
    };

    void update();

    const core::AppModel& m_model;
    platform::Clock& m_clock;
    model::WeekdayTimeFormat m_weekdayTime;
    QUrl m_website;
    core::ProgramSetting m_codexProgram;
    RefreshToastModel m_toast;
    RecordList<ProviderCardRow> m_cards;
    Shown m_shown;
    std::unique_ptr<platform::Alarm> m_nextChange;
};

} // namespace tallyvane::ui
