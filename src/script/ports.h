#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/ports/ports.h"

// The doors of a desk that a script stands behind: what the person would answer is queued, what the
// person would see is logged.

namespace script {

// What waits for its turn, and the line of the script that queued it.
template <typename T>
struct Queued {
  T value;
  int line = 0;
};

// A message or input box that was shown, and how it was answered.
struct ShownBox {
  bool is_input = false;
  base::MessageBox message;
  base::Answer answer = base::Answer::kOk;
  base::InputBox input;
  std::optional<std::string> typed;  // nothing when the input box was cancelled
};

class ScriptedBoxes : public base::MessageBoxes {
 public:
  // With no answer queued a box takes its default button. Throws WrongScript when the queued answer
  // is none of the box's buttons.
  base::Answer Ask(const base::MessageBox& box) override;
  // With nothing queued the box is confirmed with its default text.
  std::optional<std::string> Input(const base::InputBox& box) override;

  std::deque<Queued<base::Answer>> answers;
  std::deque<Queued<std::optional<std::string>>> inputs;  // nothing presses Cancel
  std::vector<ShownBox> shown;
};

// Counts the yields and runs what was queued for them, nested in the yielding procedure.
class ScriptedPump : public base::EventPump {
 public:
  void Pump() override;
  // Runs the action of a line of the script in the nth yield from now; 1 is the next one.
  void InYield(int n, std::function<void()> action, int line);
  // The lines of the actions whose yield has not come.
  std::vector<int> Waiting() const;

 private:
  std::int64_t yields_ = 0;
  std::multimap<std::int64_t, Queued<std::function<void()>>> actions_;
};

// The machine's local time, or a time at which the clock stands.
class ScriptedClock : public base::Clock {
 public:
  base::DateTime Now() override;
  std::optional<base::DateTime> standing;
};

class CountedBeeper : public base::Beeper {
 public:
  void Beep() override { ++count; }
  int count = 0;
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

class LoggedPrinter : public base::Printer {
 public:
  void Print(const std::string& text) override { printed.push_back(text); }
  std::vector<std::string> printed;
};

class ChosenRegion : public base::Region {
 public:
  base::DateOrder Dates() override { return order; }
  base::DateOrder order = base::DateOrder::kMonthFirst;
};

struct ScriptedPorts {
  ScriptedBoxes boxes;
  ScriptedPump pump;
  ScriptedClock clock;
  CountedBeeper beeper;
  LoggedShell shell;
  LoggedMail mail;
  LoggedPrinter printer;
  ChosenRegion region;

  base::Ports All(base::FileSystem& files, base::Settings& settings) {
    return {.boxes = boxes,
            .pump = pump,
            .clock = clock,
            .beeper = beeper,
            .shell = shell,
            .mail = mail,
            .printer = printer,
            .region = region,
            .files = files,
            .settings = settings};
  }
};

// The words of the script for what a box shows: "yesno", "exclamation", "cancel".
const char* Name(base::BoxButtons buttons);
const char* Name(base::BoxIcon icon);
const char* Name(base::Answer answer);
// The answer of this name, if there is one.
std::optional<base::Answer> AnswerNamed(const std::string& name);

}  // namespace script
