#pragma once

#include "support/private_bus.h"

#include <optional>

namespace tallyvane::tests {

/// An X server without a screen, to which this process's environment points while it lives.
class VirtualDisplay {
public:
    VirtualDisplay() {
        // The number of a free display, printed when the server listens.
        while (!m_server.canReadLine()) {
            if (!m_server.waitForReadyRead()) {
                qFatal("Xvfb did not start");
            }
        }
        qputenv("DISPLAY", ':' + m_server.readLine().trimmed());
    }
    ~VirtualDisplay() { qunsetenv("DISPLAY"); }

private:
    RunningProgram m_server{"Xvfb -displayfd 1 -screen 0 1280x800x24 -nolisten tcp"};
};

/// A desktop of real programs, in the program's own home: a bus, a display, the settings' daemon
/// and, from startPanel() on, a panel along the top with a status area at its left.
class XfceDesktop {
public:
    XfceDesktop() {
        writeFile(inHome("config/xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml"),
                  R"(<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="true"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="32"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>)");
        m_settings.emplace("/usr/lib/*/xfce4/xfconf/xfconfd");
    }

    void startPanel() { m_panel.emplace("xfce4-panel --disable-wm-check --sm-client-disable"); }
    void endPanel() { m_panel.reset(); }

    const PrivateBus bus;
    const VirtualDisplay display;

private:
    std::optional<RunningProgram> m_settings;
    std::optional<RunningProgram> m_panel;
};

} // namespace tallyvane::tests
