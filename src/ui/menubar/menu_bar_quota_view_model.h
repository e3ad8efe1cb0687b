#pragma once

#include "model/quota_snapshot.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtQml/QQmlListProperty>
#include <QtQml/qqmlregistration.h>

namespace tallyvane::core {
class AppModel;
}

namespace tallyvane::ui {

/// One provider's line in the panel.
class ProviderRow : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the panel's view model has them")
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(QUrl usagePage READ usagePage CONSTANT)
    Q_PROPERTY(QString summary READ summary NOTIFY summaryChanged)

public:
    ProviderRow(const core::AppModel& model, model::AIProvider provider, QObject* parent);

    [[nodiscard]] QString name() const;
    [[nodiscard]] QUrl usagePage() const;
    [[nodiscard]] QString summary() const;

Q_SIGNALS:
    void summaryChanged();

private:
    const core::AppModel& m_model;
    model::AIProvider m_provider;
};

/// What the panel shows and what it asks for. Follows the model, which outlives it. Main thread.
class MenuBarQuotaViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the program has one")
    Q_PROPERTY(QQmlListProperty<tallyvane::ui::ProviderRow> rows READ rows CONSTANT)
    Q_PROPERTY(bool isRefreshing READ isRefreshing NOTIFY isRefreshingChanged)

public:
    explicit MenuBarQuotaViewModel(const core::AppModel& model);

    /// Codex, then Claude.
    [[nodiscard]] QQmlListProperty<ProviderRow> rows() { return {this, &m_rows}; }
    [[nodiscard]] bool isRefreshing() const;

Q_SIGNALS:
    void isRefreshingChanged();
    // The user's commands.
    void openRequested();
    void refreshRequested();
    void quitRequested();

private:
    const core::AppModel& m_model;
    QList<ProviderRow*> m_rows; ///< children of this
};

} // namespace tallyvane::ui
