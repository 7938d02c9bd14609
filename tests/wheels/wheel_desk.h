#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "support/test_desk.h"
#include "wheels/wheel_wizard.h"

namespace test {

// One wheel of a library, every value as its text.
struct WheelText {
  std::string name;
  std::string pick;
  std::string pool;
  std::string match;
  std::string combos;
  std::string tickets;
  std::vector<std::string> lines;
};

inline std::string LibraryText(const std::vector<WheelText>& wheels) {
  std::string text = "[Wheels]\r\nwheelcount=" + std::to_string(wheels.size()) + "\r\n";
  for (std::size_t i = 0; i < wheels.size(); ++i) {
    const WheelText& wheel = wheels[i];
    text += "[" + std::to_string(i + 1) + "]\r\nWheelname=" + wheel.name +
            "\r\npick=" + wheel.pick + "\r\npool=" + wheel.pool + "\r\nmatch=" + wheel.match +
            "\r\ncombos=" + wheel.combos + "\r\ntickets=" + wheel.tickets + "\r\n";
    for (std::size_t line = 0; line < wheel.lines.size(); ++line) {
      text += std::to_string(line + 1) + "=" + wheel.lines[line] + "\r\n";
    }
  }
  return text;
}

// A wheel of six-number lines that is listed as soon as the window opens.
inline WheelText SixWheel(int pool, std::vector<std::string> lines) {
  std::string digits = std::to_string(pool);
  if (digits.size() == 1) digits.insert(0, 1, ' ');
  const std::string tickets = std::to_string(lines.size());
  return {"[3 of 6] " + digits + " numbers",
          "6",
          std::to_string(pool),
          "3",
          "35",
          tickets,
          std::move(lines)};
}

// Entries of a temperature table of n numbers in which number 1 is the hottest: with n numbers the
// table's item k holds the number n + 1 - k.
inline std::vector<std::string> TableOf(int n) {
  std::vector<std::string> entries;
  for (int number = 1; number <= n; ++number) {
    entries.push_back(std::to_string(200 - number) + (number < 10 ? " 0" : " ") +
                      std::to_string(number));
  }
  return entries;
}

inline std::string TwoDigits(int number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

// A started desk with a wheel library of its own, none when its text is empty, and with the folder
// of the reports.
class WheelDesk : public TestDesk {
 public:
  explicit WheelDesk(const std::string& library = {}) { SetUp(library); }
  explicit WheelDesk(const std::vector<WheelText>& wheels) { SetUp(LibraryText(wheels)); }

  void WriteLibrary(const std::string& text) const {
    std::ofstream(folder / "wheels" / "wheels.ini", std::ios::binary) << text;
  }

  // Opens the window by the frame's label.
  void Open() { User().Click(Frame().Label5); }
  // Opens the window with the counts of a scan.
  void HandOver(const std::vector<std::string>& entries) {
    if (!Desk().Wheels()) Open();
    Desk().Desktop().Dispatch([&] { Window().TakeOver(entries); });
  }
  // The same, then selects a wheel and a number set by their rows.
  void HandOver(const std::vector<std::string>& entries, int wheel, int set) {
    HandOver(entries);
    User().Pick(Window().List1, set);
    User().Pick(Window().List2, wheel);
  }

  wheels::WheelWizard& Window() { return *Desk().Wheels(); }
  const wheels::WheelState& State() { return Desk().WheelState(); }
  base::TextBox& Box(int index) { return Window().TXTActiveNumbers(index); }

  std::vector<std::string> BoxTexts(int count) {
    std::vector<std::string> texts;
    for (int box = 0; box < count; ++box) texts.push_back(Box(box).Text());
    return texts;
  }
  void SetBoxes(const std::vector<std::string>& texts) {
    for (std::size_t box = 0; box < texts.size(); ++box) {
      User().Paste(Box(static_cast<int>(box)), texts[box]);
    }
  }

  // The names of the pages in the folder of the reports.
  std::vector<std::string> Pages() {
    return host_files.List(folder.string() + "/Reports", ".html");
  }

 private:
  void SetUp(const std::string& library) {
    std::filesystem::create_directory(folder / "wheels");
    std::filesystem::create_directory(folder / "Reports");
    if (!library.empty()) WriteLibrary(library);
    clock.now = {2005, 12, 5, 14, 3, 9};
    Start();
  }
};

// A desk with a wheel of seven places chosen and its boxes blank.
class OpenDesk : public WheelDesk {
 public:
  OpenDesk() : WheelDesk({SixWheel(7, {"1 2 3 4 5 6", "2 3 4 5 6 7", "1 3 5 7 2 4"})}) {
    Open();
    User().Pick(Window().List2, 0);
  }
};

// A wheel of seven places and two lines.
inline WheelText Seven() { return SixWheel(7, {"1 2 3 4 5 6", "2 3 4 5 6 7"}); }

// A desk without tips.
class QuietDesk : public WheelDesk {
 public:
  using WheelDesk::WheelDesk;
  void Scan() {
    Session().tips_on = false;
    User().Click(Main().CmdScan);
    TakeBoxTexts();
  }
  void MakeWheel() { User().Click(Main().lblbuttons(2)); }
};

}  // namespace test
