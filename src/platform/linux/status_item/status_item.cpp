#include "platform/linux/status_item/status_item.h"

#include "platform/linux/status_item/dbus_menu.h"
#include "platform/linux/status_item/dbus_structure.h"
#include "platform/linux/status_item/status_host_watcher.h"

#include <QtCore/QFileInfo>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusVariant>

#include <utility>

namespace tallyvane::platform {

/// The protocol's tooltip, (sa(iiay)ss). All hosts show the title; few show the text.
struct ItemToolTip {
    QString iconName;
    QList<ItemPixmap> pixmaps;
    QString title;
    QString text;
};

template <>
inline constexpr std::tuple dbusFields<ItemToolTip>{&ItemToolTip::iconName, &ItemToolTip::pixmaps,
                                                    &ItemToolTip::title, &ItemToolTip::text};

/// (iiay): the width, the height and the pixels.
template <>
inline constexpr std::tuple dbusFields<ItemPixmap>{&ItemPixmap::size, &ItemPixmap::size,
                                                   &ItemPixmap::bytes};

namespace {

constexpr QLatin1StringView itemPath{"/StatusNotifierItem"};
constexpr QLatin1StringView itemInterface{"org.kde.StatusNotifierItem"};
constexpr QLatin1StringView propertiesInterface{"org.freedesktop.DBus.Properties"};
constexpr QLatin1StringView methodsAndSignals{R"(
    <method name="Activate"><arg name="x" type="i"/><arg name="y" type="i"/></method>
    <method name="SecondaryActivate"><arg name="x" type="i"/><arg name="y" type="i"/></method>
    <method name="ContextMenu"><arg name="x" type="i"/><arg name="y" type="i"/></method>
    <method name="Scroll"><arg name="delta" type="i"/><arg name="orientation" type="s"/></method>
    <method name="ProvideXdgActivationToken"><arg name="token" type="s"/></method>
    <signal name="NewTitle"/>
    <signal name="NewIcon"/>
    <signal name="NewIconThemePath"><arg name="path" type="s"/></signal>
    <signal name="NewToolTip"/>
    <signal name="NewStatus"><arg name="status" type="s"/></signal>
    <signal name="XAyatanaNewLabel"><arg name="label" type="s"/><arg name="guide" type="s"/></signal>
)"};

/// Hosts parse markup. Newlines stay: "<br>" makes GTK hosts show an empty tooltip.
QString escaped(QString text) {
    return text.replace(u'&', QLatin1StringView("&amp;")).replace(u'<', QLatin1StringView("&lt;"));
}

} // namespace

StatusItem::StatusItem(const QString& id, const QDBusConnection& bus)
    : m_bus(bus), m_id(id), m_menu(std::make_unique<DBusMenu>(bus)) {
    qDBusRegisterMetaType<ItemPixmap>();
    qDBusRegisterMetaType<QList<ItemPixmap>>();
    qDBusRegisterMetaType<ItemToolTip>();
    m_bus.registerVirtualObject(itemPath, this);
    // Last, because a host may call as soon as the item is registered.
    m_watcher = std::make_unique<StatusHostWatcher>(bus);
    connect(m_menu.get(), &DBusMenu::triggered, this, &StatusItem::menuItemTriggered);
    connect(m_watcher.get(), &StatusHostWatcher::profileChanged, this,
            &StatusItem::hostProfileChanged);
    connect(m_watcher.get(), &StatusHostWatcher::availableChanged, this,
            &StatusItem::hostAvailableChanged);
}

StatusItem::~StatusItem() {
    m_bus.unregisterObject(itemPath);
}

void StatusItem::setTitle(const QString& title) {
    if (std::exchange(m_title, title) != title) {
        send(QStringLiteral("NewTitle"));
    }
}

void StatusItem::setIcon(const ItemIcon& icon) {
    if (icon == m_icon) {
        return;
    }
    const QString oldPath = iconThemePath();
    m_icon = icon;
    if (const QString path = iconThemePath(); path != oldPath) {
        send(QStringLiteral("NewIconThemePath"), {path});
    }
    send(QStringLiteral("NewIcon"));
}

void StatusItem::setLabel(const QString& text, const QString& widest) {
    const bool isNewText = std::exchange(m_label, text) != text;
    const bool isNewWidth = std::exchange(m_widestLabel, widest) != widest;
    if (hostProfile().hasLabelProperty && (isNewText || isNewWidth)) {
        send(QStringLiteral("XAyatanaNewLabel"), {text, widest});
    }
}

void StatusItem::setToolTip(const QStringList& lines) {
    const QString toolTip = lines.join(u'\n');
    if (std::exchange(m_toolTip, toolTip) != toolTip) {
        send(QStringLiteral("NewToolTip"));
    }
}

void StatusItem::setMenu(const QList<ItemMenuEntry>& entries) {
    m_menu->setEntries(entries);
}

HostProfile StatusItem::hostProfile() const {
    return m_watcher->profile();
}

bool StatusItem::isHostAvailable() const {
    return m_watcher->isAvailable();
}

QString StatusItem::iconThemePath() const {
    return hostProfile().iconForm == IconForm::name && !m_icon.symbolicFile.isEmpty()
               ? QFileInfo(m_icon.symbolicFile).path()
               : QString();
}

QVariantMap StatusItem::properties() const {
    QString iconName;
    if (hostProfile().iconForm == IconForm::path) {
        iconName = m_icon.symbolicFile;
    } else if (hostProfile().iconForm == IconForm::name) {
        iconName = QFileInfo(m_icon.symbolicFile).completeBaseName();
    }
    QVariantMap properties{
        {QStringLiteral("Category"), QStringLiteral("ApplicationStatus")},
        {QStringLiteral("Id"), m_id},
        {QStringLiteral("Title"), m_title},
        {QStringLiteral("Status"), QStringLiteral("Active")},
        {QStringLiteral("WindowId"), 0},
        {QStringLiteral("IconName"), iconName},
        {QStringLiteral("IconThemePath"), iconThemePath()},
        {QStringLiteral("IconPixmap"), QVariant::fromValue(m_icon.pixmaps)},
        {QStringLiteral("IconAccessibleDesc"), m_toolTip},
        {QStringLiteral("ToolTip"), QVariant::fromValue(ItemToolTip{.title = escaped(m_toolTip)})},
        // Otherwise clicks do not call Activate.
        {QStringLiteral("ItemIsMenu"), false},
        {QStringLiteral("Menu"), QVariant::fromValue(QDBusObjectPath(QStringLiteral("/MenuBar")))},
    };
    for (const QString& kind : {QStringLiteral("Overlay"), QStringLiteral("Attention")}) {
        properties.insert(kind + QLatin1StringView("IconName"), QString());
        properties.insert(kind + QLatin1StringView("IconPixmap"),
                          QVariant::fromValue(QList<ItemPixmap>()));
    }
    properties.insert(QStringLiteral("AttentionMovieName"), QString());
    if (hostProfile().hasLabelProperty) {
        properties.insert(QStringLiteral("XAyatanaLabel"), m_label);
        properties.insert(QStringLiteral("XAyatanaLabelGuide"), m_widestLabel);
        properties.insert(QStringLiteral("XAyatanaOrderingIndex"), 0U);
    }
    return properties;
}

QString StatusItem::introspect(const QString& /*path*/) const {
    QString text =
        QStringLiteral("<interface name=\"%1\">%2").arg(itemInterface, methodsAndSignals);
    const QVariantMap values = properties();
    for (auto value = values.begin(); value != values.end(); ++value) {
        text += QStringLiteral("<property name=\"%1\" type=\"%2\" access=\"read\"/>\n")
                    .arg(value.key(),
                         QLatin1StringView(QDBusMetaType::typeToSignature(value->metaType())));
    }
    return text + QStringLiteral("</interface>\n");
}

bool StatusItem::handleMessage(const QDBusMessage& call, const QDBusConnection& bus) {
    if (call.interface() == propertiesInterface) {
        bus.send(answerAboutProperties(call));
        return true;
    }
    if (!call.interface().isEmpty() && call.interface() != itemInterface) {
        return false;
    }
    const QString name = call.member();
    const QVariantList arguments = call.arguments();
    const bool hasPosition = call.signature() == QLatin1StringView("ii");
    // Hosts that can show the menu do not call ContextMenu; on others the panel replaces it.
    const bool isActivation = hasPosition && (name == QLatin1StringView("Activate") ||
                                              name == QLatin1StringView("SecondaryActivate") ||
                                              name == QLatin1StringView("ContextMenu"));
    const bool isToken = call.signature() == QLatin1StringView("s") &&
                         name == QLatin1StringView("ProvideXdgActivationToken");
    if (!isActivation && !isToken &&
        !(name == QLatin1StringView("Scroll") && call.signature() == QLatin1StringView("is"))) {
        // QtDBus would answer that the interface is unknown; GNOME's host tries another method only
        // when the method is.
        return call.interface() == itemInterface &&
               bus.send(call.createErrorReply(QDBusError::UnknownMethod, name));
    }
    if (call.isReplyRequired()) {
        bus.send(call.createReply());
    }
    if (isToken) {
        m_activationToken = arguments.at(0).toString();
    } else if (isActivation) {
        Q_EMIT activated({arguments.at(0).toInt(), arguments.at(1).toInt()},
                         std::exchange(m_activationToken, {}));
    }
    return true;
}

QDBusMessage StatusItem::answerAboutProperties(const QDBusMessage& call) const {
    const QVariantMap values = properties();
    const QString interface = call.arguments().value(0).toString();
    if (interface != itemInterface) {
        return call.createErrorReply(QDBusError::UnknownInterface, interface);
    }
    if (call.member() == QLatin1StringView("GetAll")) {
        return call.createReply(values);
    }
    const QString name = call.arguments().value(1).toString();
    if (!values.contains(name)) {
        return call.createErrorReply(QDBusError::UnknownProperty, name);
    }
    if (call.member() != QLatin1StringView("Get")) {
        return call.createErrorReply(QDBusError::PropertyReadOnly, name);
    }
    return call.createReply(QVariant::fromValue(QDBusVariant(values.value(name))));
}

void StatusItem::send(const QString& signal, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createSignal(itemPath, itemInterface, signal);
    message.setArguments(arguments);
    m_bus.send(message);
}

} // namespace tallyvane::platform

#include "moc_status_item.cpp"
