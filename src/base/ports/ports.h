#pragma once

#include "base/ports/file_system.h"
#include "base/ports/message_boxes.h"
#include "base/ports/settings.h"
#include "base/ports/world.h"

namespace base {

// The quiet door of a kind. It keeps nothing, so all desks may share it.
template <typename Door>
Door& Quiet() {
  static Door door;
  return door;
}

// Every door that a desk is built with, to be filled by name; what is not named stays quiet. The
// doors must outlive the desk.
struct Ports {
  MessageBoxes& boxes = Quiet<MessageBoxes>();
  EventPump& pump = Quiet<EventPump>();
  Clock& clock = Quiet<Clock>();
  Beeper& beeper = Quiet<Beeper>();
  ShellOpen& shell = Quiet<ShellOpen>();
  Mail& mail = Quiet<Mail>();
  Printer& printer = Quiet<Printer>();
  HelpViewer& help = Quiet<HelpViewer>();
  SystemInformation& system_information = Quiet<SystemInformation>();
  Region& region = Quiet<Region>();
  FileSystem& files = Quiet<NoFiles>();
  Settings& settings = Quiet<Settings>();
};

}  // namespace base
