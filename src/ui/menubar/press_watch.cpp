#include "ui/menubar/press_watch.h"

#include <QtGui/QGuiApplication>

#include <utility>
#include <xcb/xinput.h>

namespace tallyvane::ui {

namespace {

constexpr uint32_t firstWheelButton = 4;
constexpr uint32_t lastWheelButton = 7;

xcb_connection_t* x11Connection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

} // namespace

void PressWatch::setWatching(bool isWatching) {
    if (isWatching == m_isWatching) {
        return;
    }
    xcb_connection_t* connection = x11Connection();
    // A request to an extension that the display lacks would end the connection.
    const xcb_query_extension_reply_t* extension =
        connection != nullptr ? xcb_get_extension_data(connection, &xcb_input_id) : nullptr;
    if (extension == nullptr || extension->present == 0) {
        return;
    }
    m_isWatching = isWatching;
    m_extension = extension->major_opcode;
    // Raw events come also while another program has a grab. Qt has agreed on the version.
    const struct {
        xcb_input_event_mask_t head;
        uint32_t events;
    } mask{.head = {.deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1},
           .events = isWatching ? XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS |
                                      XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE
                                : uint32_t{0}};
    for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection)); screen.rem > 0;
         xcb_screen_next(&screen)) {
        xcb_input_xi_select_events(connection, screen.data->root, 1, &mask.head);
    }
    xcb_flush(connection);
    if (isWatching) {
        qGuiApp->installNativeEventFilter(this);
    } else {
        qGuiApp->removeNativeEventFilter(this);
    }
}

bool PressWatch::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/) {
    constexpr int sentByClient = 0x80;
    const auto* event = static_cast<const xcb_ge_generic_event_t*>(message);
    if (type != "xcb_generic_event_t" || (event->response_type & ~sentByClient) != XCB_GE_GENERIC ||
        event->extension != m_extension ||
        (event->event_type != XCB_INPUT_RAW_BUTTON_PRESS &&
         event->event_type != XCB_INPUT_RAW_BUTTON_RELEASE)) {
        return false;
    }
    const uint32_t button = static_cast<const xcb_input_raw_button_press_event_t*>(message)->detail;
    if (button < firstWheelButton || button > lastWheelButton) {
        if (event->event_type == XCB_INPUT_RAW_BUTTON_PRESS) {
            Q_EMIT pressed();
        } else {
            Q_EMIT released();
        }
    }
    return true;
}

} // namespace tallyvane::ui

#include "moc_press_watch.cpp"
