#pragma once

#include <cstdint>
#include <string>

#include "base/language/dates.h"

// The smaller doors to the world. Each has a quiet default that is complete: it does what a machine
// without that device would do.

namespace base {

// Lets pending events of the window system run, nested in the procedure that yields.
class EventPump {
 public:
  virtual ~EventPump() = default;
  virtual void Pump() {}
};

class Clock {
 public:
  virtual ~Clock() = default;
  // Local time. The default stands still at the start of 2000.
  virtual DateTime Now() { return DateTime{2000, 1, 1, 0, 0, 0}; }
};

class Beeper {
 public:
  virtual ~Beeper() = default;
  virtual void Beep() {}
};

// One hand-over of a file or address to the platform's shell.
struct ShellOpenRequest {
  std::string verb{};
  std::string file{};
  std::string parameters{};
  std::string folder{};
  int show = 1;  // 0 hidden, 1 normal
};

class ShellOpen {
 public:
  virtual ~ShellOpen() = default;
  virtual void Open(const ShellOpenRequest& /*request*/) {}
};

struct MailMessage {
  std::string recipient;
  std::string subject;
  std::string body;
};

class Mail {
 public:
  virtual ~Mail() = default;
  // Hands the message to the desktop's mail program. Throws Error when there is none.
  virtual void Send(const MailMessage& /*message*/) {}
};

class Printer {
 public:
  virtual ~Printer() = default;
  virtual void Print(const std::string& /*text*/) {}
};

enum class HelpPage { kContents, kSearch };

class HelpViewer {
 public:
  virtual ~HelpViewer() = default;
  // Opens the help file (a path of the desk) at its contents or its search.
  virtual void Open(const std::string& /*file*/, HelpPage /*page*/) {}
};

// The tool that describes this machine, if the platform has one.
class SystemInformation {
 public:
  virtual ~SystemInformation() = default;
  // False when no such tool is installed.
  virtual bool Open() { return false; }
};

// What the user's regional settings say.
class Region {
 public:
  virtual ~Region() = default;
  virtual DateOrder Dates() { return DateOrder::kMonthFirst; }
};

}  // namespace base
