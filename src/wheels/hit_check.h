#pragma once

#include <cstdint>
#include <string>

#include "base/controls/list_controls.h"
#include "wheels/page.h"
#include "wheels/wheel_place.h"

namespace wheels {

// Signs, letters, line feeds and tabs turned into blanks, each at most 30 times, and double blanks
// made single. What is left is numbers between blanks, but for double quotes and carriage returns.
std::string ReplCrap(std::string text);
// A number in three digits: "007", "012", "123".
std::string dolenth(std::int16_t number);
// A text with one blank behind; an empty one stays empty.
std::string doSl(const std::string& text);

// The cells of a row, two blanks apart.
std::string LineText(const base::ListView::Cells& row);

// Holds the numbers drawn against every line of the wheel.
class HitCheck {
 public:
  explicit HitCheck(WheelPlace place) : place_(place) {}

  void Wire();
  void CheckForWins();
  // Asks for the numbers, writes the page at this path and opens it.
  void MakeReport(const std::string& path);
  // Holds the numbers against a row, counted from 1, and leaves what was hit in the state. Error 13
  // at a cell that is no number.
  void GetHits(int line);
  std::string GetCurrentLine(int line) const;

 private:
  // False when the user gave none.
  bool AskForNumbers();
  std::string Ask(const std::string& prompt, const std::string& default_text);
  void TakeNumbers();
  void ReadLine(const base::ListView::Cells& row);
  void ClearIt();
  void WriteHead(Page& page) const;
  void WriteRow(Page& page, int line);

  WheelPlace place_;
};

}  // namespace wheels
