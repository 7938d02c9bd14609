#pragma once

#include "base/ports/file_system.h"
#include "base/ports/message_boxes.h"
#include "base/ports/settings.h"
#include "base/ports/world.h"

namespace base {

// Every door that a desk is built with. The references must outlive the desk.
struct Ports {
  MessageBoxes& boxes;
  EventPump& pump;
  Clock& clock;
  Beeper& beeper;
  ShellOpen& shell;
  Mail& mail;
  Printer& printer;
  HelpViewer& help;
  SystemInformation& system_information;
  Region& region;
  FileSystem& files;
  Settings& settings;
};

// One quiet door of each kind, for tests and as a base to replace single doors of.
struct QuietPorts {
  MessageBoxes boxes;
  EventPump pump;
  Clock clock;
  Beeper beeper;
  ShellOpen shell;
  Mail mail;
  Printer printer;
  HelpViewer help;
  SystemInformation system_information;
  Region region;
  NoFiles files;
  Settings settings;

  Ports All() {
    return Ports{boxes,  pump,  clock,   beeper, shell, mail, printer, help, system_information,
                 region, files, settings};
  }
};

}  // namespace base
