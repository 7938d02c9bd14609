#pragma once

#include <QPointer>
#include <chrono>
#include <functional>

#include "base/ports/ports.h"

class QWidget;

namespace ui {

class HelpView;

// Message boxes over whichever window is in front. Before the person is asked, every window shows
// what its controls say.
class ScreenBoxes : public base::MessageBoxes {
 public:
  base::Answer Ask(const base::MessageBox& box) override;
  std::optional<std::string> Input(const base::InputBox& box) override;
};

// Lets pending events run. With nothing to wait for it costs a look at the clock: the window system
// is really asked at most once in four milliseconds. Clicks nest up to a depth; below that only
// painting and timers go on.
class ScreenPump : public base::EventPump {
 public:
  void Pump() override;

 private:
  std::chrono::steady_clock::time_point last_{};
  int depth_ = 0;
};

class ScreenClock : public base::Clock {
 public:
  base::DateTime Now() override;
};

class ScreenBeeper : public base::Beeper {
 public:
  void Beep() override;
};

// Files and addresses go to the program that the user's desktop has for them.
class ScreenShell : public base::ShellOpen {
 public:
  void Open(const base::ShellOpenRequest& request) override;
};

class ScreenMail : public base::Mail {
 public:
  void Send(const base::MailMessage& message) override;
};

class ScreenHelp : public base::HelpViewer {
 public:
  explicit ScreenHelp(base::FileSystem& files) : files_(files) {}
  ~ScreenHelp() override;
  void Open(const std::string& file, base::HelpPage page) override;
  void Close();

 private:
  base::FileSystem& files_;
  std::string file_;
  QPointer<HelpView> view_;
};

class ScreenInformation : public base::SystemInformation {
 public:
  bool Open() override;
};

class ScreenRegion : public base::Region {
 public:
  base::DateOrder Dates() override;
};

// The order of day and month in a short date format such as "M/d/yy". Formats that begin with the
// year count by what follows.
base::DateOrder OrderOf(const std::string& short_format);

// All doors on the screen. The references must outlive it.
class Platform {
 public:
  Platform(base::FileSystem& files, base::Settings& settings)
      : files_(files), settings_(settings), help_(files) {}

  base::Ports All();
  ScreenHelp& Help() { return help_; }

 private:
  base::FileSystem& files_;
  base::Settings& settings_;
  ScreenBoxes boxes_;
  ScreenPump pump_;
  ScreenClock clock_;
  ScreenBeeper beeper_;
  ScreenShell shell_;
  ScreenMail mail_;
  base::Printer printer_;
  ScreenHelp help_;
  ScreenInformation information_;
  ScreenRegion region_;
};

}  // namespace ui
