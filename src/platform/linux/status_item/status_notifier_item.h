#pragma once

#include "platform/linux/status_item/host_profile.h"
#include "platform/linux/status_item/item_content.h"

#include <QtCore/QPoint>
#include <QtCore/QStringList>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusVirtualObject>

namespace tallyvane::platform {

/// org.kde.StatusNotifierItem at /StatusNotifierItem, with the label properties that Ayatana added.
/// Its set of properties depends on the host. The setters are those of StatusItem.
class StatusNotifierItem final : public QDBusVirtualObject {
    Q_OBJECT

public:
    StatusNotifierItem(QString id, const QDBusConnection& bus);
    ~StatusNotifierItem() override;

    /// A new host reads everything by itself and is told of nothing.
    void setProfile(const HostProfile& profile) { m_profile = profile; }
    void setTitle(const QString& title);
    void setIcon(const ItemIcon& icon);
    void setLabel(const QString& text, const QString& widest);
    void setToolTip(const QStringList& lines);

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override;

Q_SIGNALS:
    void activated(QPoint position, const QString& activationToken);

private:
    [[nodiscard]] QVariantMap properties() const;
    [[nodiscard]] QString iconThemePath() const;
    [[nodiscard]] QDBusMessage answerAboutProperties(const QDBusMessage& call) const;
    void send(const QString& signal, const QVariantList& arguments = {});

    QDBusConnection m_bus;
    QString m_id;
    HostProfile m_profile;
    QString m_title;
    ItemIcon m_icon;
    QString m_label;
    QString m_widestLabel;
    QString m_toolTip; ///< lines divided by "\n"
    QString m_activationToken;
};

} // namespace tallyvane::platform
