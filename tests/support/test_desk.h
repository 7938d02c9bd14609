#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/host/host_file_system.h"
#include "base/ports/ports.h"
#include "shell/desk.h"
#include "store/draw_record.h"

namespace test {

// Settings in memory. `keeps` false is a store that forgets, `broken` one whose Save fails.
class MemorySettings : public base::Settings {
 public:
  std::optional<std::string> Find(std::string_view application, std::string_view section,
                                  std::string_view key) override;
  void Save(std::string_view application, std::string_view section, std::string_view key,
            std::string_view text) override;
  bool broken = false;

 private:
  std::map<std::string, std::string> texts_;
};

// Message boxes that log what they are asked and take their answers from a queue; an empty queue
// answers with the default button, and an input box with its default text.
class LoggedBoxes : public base::MessageBoxes {
 public:
  base::Answer Ask(const base::MessageBox& box) override;
  std::optional<std::string> Input(const base::InputBox& box) override;
  std::deque<base::Answer> answers;
  std::vector<base::MessageBox> shown;
  std::deque<std::optional<std::string>> inputs;  // nothing presses Cancel
  std::vector<base::InputBox> asked;
  // Runs while a box is open, before it is answered.
  std::function<void()> on_ask;
};

// Runs actions nested in the yields.
class ScriptedPump : public base::EventPump {
 public:
  void Pump() override;
  // Runs `action` in the nth yield from now (1 is the next one).
  void At(int n, std::function<void()> action);
  // What never ran: "an action in yield 90" for each, counted as `yields` is.
  std::vector<std::string> Unreached() const;
  int yields = 0;

 private:
  std::multimap<int, std::function<void()>> actions_;
};

// A clock that stands where it is set. Looks queued are told first, one at each look.
class FixedClock : public base::Clock {
 public:
  base::DateTime Now() override;
  base::DateTime now{2000, 1, 1, 0, 0, 0};
  std::deque<base::DateTime> looks;
};

class LoggedBeeper : public base::Beeper {
 public:
  void Beep() override { ++beeps; }
  int beeps = 0;
};

class LoggedShell : public base::ShellOpen {
 public:
  void Open(const base::ShellOpenRequest& request) override { opened.push_back(request); }
  std::vector<base::ShellOpenRequest> opened;
};

class LoggedMail : public base::Mail {
 public:
  void Send(const base::MailMessage& message) override { sent.push_back(message); }
  std::vector<base::MailMessage> sent;
};

class LoggedHelp : public base::HelpViewer {
 public:
  void Open(const std::string& file, base::HelpPage page) override {
    opened.emplace_back(file, page);
  }
  std::vector<std::pair<std::string, base::HelpPage>> opened;
};

class LoggedPrinter : public base::Printer {
 public:
  void Print(const std::string& text) override { printed.push_back(text); }
  std::vector<std::string> printed;
};

class FixedRegion : public base::Region {
 public:
  base::DateOrder Dates() override { return order; }
  base::DateOrder order = base::DateOrder::kDayFirst;
};

// A draw of a six-ball lottery with a bonus.
store::DrawRecord Draw(std::initializer_list<int> balls, std::string_view day = "Sa",
                       std::string_view date = "05/12/05");
// n draws that differ from each other, on the days Saturday and Wednesday in turn, balls 1 to 49.
std::vector<store::DrawRecord> SampleDraws(int n);
std::string Encode(const std::vector<store::DrawRecord>& draws);

// A desk on a temporary program folder with one database, every port logged. At its end it fails
// its test if something waits that was never asked for: an answer, an input, an action, a look at
// the clock. A test in which that is right says so.
class TestDesk {
 public:
  explicit TestDesk(const std::vector<store::DrawRecord>& draws = SampleDraws(40),
                    std::string database = "UK-National-Lottery.dat");
  TestDesk(const TestDesk&) = delete;
  TestDesk& operator=(const TestDesk&) = delete;
  ~TestDesk();

  // Starts the desk and presses through the splash window.
  void Start();
  // Starts a second process on the same folder and settings.
  void Restart();
  shell::Desk& Desk() { return *desk_; }
  main_window::MainWindow& Main() { return *desk_->Main(); }
  store::Session& Session() { return desk_->Session(); }
  base::User& User() { return desk_->User(); }
  shell::FrmMain& Frame() { return *desk_->Frame(); }

  std::string DatabaseBytes() const;
  void WriteDatabase(std::string_view bytes) const;
  std::string ReadFile(const std::string& name) const;  // below the program folder
  // The texts of the boxes shown since the last call.
  std::vector<std::string> TakeBoxTexts();

  std::filesystem::path folder;
  std::string database;
  base::HostFileSystem host_files;
  MemorySettings settings;
  LoggedBoxes boxes;
  ScriptedPump pump;
  FixedClock clock;
  LoggedBeeper beeper;
  LoggedShell shell_open;
  LoggedMail mail;
  LoggedHelp help;
  LoggedPrinter printer;
  FixedRegion region;
  bool may_leave_unused = false;
  // The disk that the desk sees; set before Start to put another in its place.
  base::FileSystem* files = &host_files;

 private:
  std::vector<std::string> Unused() const;
  void TellUnused() const;

  std::unique_ptr<shell::Desk> desk_;
};

}  // namespace test
