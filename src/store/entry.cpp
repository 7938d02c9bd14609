#include "store/entry.h"

#include <algorithm>
#include <array>

#include "base/language/dates.h"
#include "base/language/numbers.h"
#include "base/language/text.h"
#include "store/loading.h"
#include "store/pasted_line.h"
#include "store/tips.h"

namespace store {
namespace {

constexpr int kMainBalls = 6;
constexpr int kRounds = 20;
constexpr int kPassesInARound = 7;
constexpr std::size_t kDateLength = 8;
constexpr std::size_t kShortestLine = 5;
constexpr int kNotice = 4;  // the member of lblProductName1 where notices stand

struct DaySpelling {
  std::string_view begins;
  std::string_view short_form;
};

constexpr std::array<DaySpelling, 14> kShortDays{{
    {"m", "Mon"},
    {"M", "Mon"},
    {"tu", "Tue"},
    {"Tu", "Tue"},
    {"w", "Wed"},
    {"W", "Wed"},
    {"th", "Thu"},
    {"Th", "Thu"},
    {"fr", "Fri"},
    {"Fr", "Fri"},
    {"sa", "Sat"},
    {"Sa", "Sat"},
    {"su", "Sun"},
    {"Su", "Sun"},
}};

constexpr std::array<std::string_view, 7> kDays{"Mo", "Tu", "We", "Th", "Fr", "Sa", "Su"};

std::string BoxName(int k) { return "B" + std::to_string(k + 1); }

// Swaps two boxes whose texts are out of order, the first by way of a number, which costs it its
// leading zero until the next DoTextBox.
void PutTheTextBoxsInOrder(base::TextBox& a, base::TextBox& b) {
  if (a.Text() <= b.Text()) return;
  const std::int16_t first = base::ToInt16(a.Text());
  a.SetText(std::string(b.Text()));
  b.SetText(base::IntegerText(first));
}

}  // namespace

std::string TwoLetterDay(std::string_view text) {
  const std::string_view start = text.substr(0, 2);
  for (std::string_view day : kDays) {
    if (start == day || start == base::Lower(day) || start == base::Upper(day)) {
      return std::string(day);
    }
  }
  return std::string(text);
}

std::string ShortDay(std::string_view text) {
  for (const DaySpelling& day : kShortDays) {
    if (text.starts_with(day.begins)) return std::string(day.short_form);
  }
  return std::string(text);
}

void Entry::Wire() {
  MainWindow& window = place_.window;
  const auto trapped = [this](const char* name, void (Entry::*procedure)()) {
    return
        [this, name, procedure] { Trapped(place_.reporter, name, [&] { (this->*procedure)(); }); };
  };
  window.cmdAdd.on.click = trapped("cmdAdd_Click", &Entry::cmdAdd_Click);
  window.cmdSave.on.click = trapped("cmdSave_Click", &Entry::cmdSave_Click);
  window.cmdClear.on.click = trapped("cmdClear_Click", &Entry::cmdClear_Click);
  window.CmdReset.on.click = trapped("CmdReset_Click", &Entry::CmdReset_Click);
  window.cmdedit.on.click = trapped("cmdedit_Click", &Entry::cmdedit_Click);
  window.TxtBall01.on.mouse_up =
      [run = trapped("TxtBall01_MouseUp", &Entry::TxtBall01_MouseUp)](base::MouseButton) { run(); };
}

// --- Adding

void Entry::cmdAdd_Click() {
  Session& session = place_.session;
  MainWindow& window = place_.window;
  EnableBoxes();
  if (session.tips_on) ShowTip(place_.World().boxes, 5);
  browsing_.cmdLast_Click();
  place_.Yield();
  window.lblProductName1(kNotice).SetCaption("The last entry was on " + window.TxtBall07.Text() +
                                             " the " + window.txtDate.Text());
  cmdClear_Click();
  EnableBoxes();  // a last draw with fewer balls has disabled some on its way
  session.current_draw_number = static_cast<float>(session.UpperBound()) + 1;
  window.cmdSave.SetEnabled(true);
  window.cmdClear.SetEnabled(true);
  window.CmdReset.SetEnabled(true);
  browsing_.EnableTheButtons(false);
  window.CmdScan.SetEnabled(false);
  place_.desktop.SetFocus(window.TxtBall01);
}

void Entry::EnableBoxes() {
  MainWindow& window = place_.window;
  for (int k = 0; k < kBalls; ++k) window.BallBox(k).SetEnabled(true);
  for (const int heading : {5, 7, 8, 9, 10}) window.Label7(heading).SetEnabled(true);
}

void Entry::cmdClear_Click() {
  Session& session = place_.session;
  MainWindow& window = place_.window;
  session.data_base_changed = true;
  for (int k = 0; k < kBalls; ++k) window.BallBox(k).SetText("");
  window.TxtBall07.SetText("");
  window.txtDate.SetText("");
  session.draw_count = base::ToInt16(session.UpperBound());
  session.current_draw_number = session.draw_count;
  window.txtDate.SetEnabled(true);
  window.cmdSave.SetEnabled(true);
  browsing_.EnableTheButtons(false);
  window.CmdScan.SetEnabled(true);
  place_.desktop.SetFocus(window.TxtBall01);
}

void Entry::CmdReset_Click() {
  MainWindow& window = place_.window;
  browsing_.EnableTheButtons(true);
  window.CmdReset.SetEnabled(false);
  neighbours_.ZeroItMainWindow();
  neighbours_.FillCommand4TagMainWindow();
  browsing_.cmdLast_Click();
  window.cmdedit.SetCaption("Edit");
  window.CmdScan.SetEnabled(true);
  browsing_.cmdFirst_Click();
  QNDLabels();
}

void Entry::QNDLabels() {
  place_.window.lblProductName1(kNotice).SetCaption("Quorbit Number Desk");
}

// --- Saving

void Entry::cmdSave_Click() {
  MainWindow& window = place_.window;
  QNDLabels();
  place_.session.data_base_changed = true;
  window.cmdAdd.SetEnabled(false);
  window.CmdReset.SetEnabled(false);
  CheckValidData();
  place_.Yield();
  if (!BoxesAreValid()) return;
  SortBoxes();
  if (window.txtDate.Text().size() > kDateLength) {
    place_.Ask(
        {.text = "Date field is incorrect please enter in this format 00/00/00", .title = "Note!"});
    return;
  }
  if (SaveNewRecord()) ShowSavedDraw();
}

void Entry::CheckValidData() {
  DoTextBox();
  for (int k = 0; k < kBalls; ++k) {
    base::TextBox& box = place_.window.BallBox(k);
    if (base::Mid(box.Text(), 2, 1) == " ") box.SetText("0" + base::Left(box.Text(), 1));
  }
}

bool Entry::BoxesAreValid() {
  MainWindow& window = place_.window;
  for (int k = 0; k < kMainBalls; ++k) {
    if (!CheckSaveBoxes(window.BallBox(k), BoxName(k))) return false;
  }
  if (window.TxtBall07.Text().empty()) {
    place_.Ask({.text = "Please type the day of the draw"});
    return false;
  }
  if (window.TxtBallBB.Text().empty()) window.TxtBallBB.SetText("00");
  if (window.txtDate.Text().empty()) {
    place_.Ask({.text = "Please type the draw date into the date field."});
    place_.desktop.SetFocus(window.txtDate);
    return false;
  }
  return true;
}

bool Entry::CheckSaveBoxes(base::TextBox& box, const std::string& name) {
  std::string complaint;
  if (box.Text().empty()) {
    complaint = "Please type a number into textbox " + name;
  } else if (box.Text().size() == 1) {
    complaint = "Please type a two digit number into textbox " + name + " i.e. 01";
  } else if (base::NumericValue(box.Text()) <= 99) {
    return true;
  } else {
    complaint =
        "Value to high do not exceed " + base::IntegerText(place_.window.Label1.Count() - 1);
  }
  place_.Ask({.text = complaint});
  place_.desktop.SetFocus(box);
  return false;
}

void Entry::SortBoxes() {
  MainWindow& window = place_.window;
  base::Label& counter = window.lblProductName1(kNotice);
  counter.SetCaption("0");
  while (base::NumericValue(counter.Caption()) < kRounds) {
    for (int pass = 0; pass < kPassesInARound; ++pass) {
      PutTheTextBoxsInOrder(window.BallBox(0), window.BallBox(1));
      // An empty slot stays where the typist left it.
      for (int k = 1; k < kMainBalls - 1; ++k) {
        base::TextBox& right = window.BallBox(k + 1);
        if (base::NumericValue(right.Text()) != 0) PutTheTextBoxsInOrder(window.BallBox(k), right);
      }
    }
    DoTextBox();
    counter.SetCaption(base::IntegerText(base::ToInt16(base::NumericValue(counter.Caption()) + 1)));
  }
}

void Entry::DoTextBox() {
  MainWindow& window = place_.window;
  for (int k = 0; k < kBalls; ++k) {
    base::TextBox& box = window.BallBox(k);
    if (box.Text().size() == 1) box.SetText("0" + box.Text());
  }
  place_.session.day_text = TwoLetterDay(window.TxtBall07.Text());
}

void Entry::SaveFields() {
  DrawRecord& draw = place_.session.current_draw;
  MainWindow& window = place_.window;
  for (int k = 0; k < kBalls; ++k) draw.Ball(k) = PadBall(window.BallBox(k).Text());
  draw.day = TwoLetterDay(window.TxtBall07.Text());
  draw.date = window.txtDate.Text();
}

bool Entry::SaveNewRecord() {
  bool saved = false;
  Trapped(place_.reporter, "SaveNewRecord", [&] {
    DoTextBox();
    DrawRecord& draw = place_.session.current_draw;
    for (int k = 0; k < kBalls; ++k) draw.Ball(k) = place_.window.BallBox(k).Text();
    draw.day = place_.session.day_text;
    draw.date = place_.window.txtDate.Text();
    AppendCurrentDraw(place_.session);
    place_.window.cmdClear.SetEnabled(true);
    saved = true;
  });
  return saved;
}

void Entry::ShowSavedDraw() {
  const DrawRecord saved = place_.session.current_draw;
  MainWindow& window = place_.window;
  browsing_.cmdLast_Click();
  window.List7.AddItem(DrawLine(saved));
  window.ListView1.AddRow(TableRow(saved));
  window.List7.SetListIndex(window.List7.ListCount() - 1);
  window.List7.on.click();
}

// --- Editing in place

void Entry::cmdedit_Click() {
  MainWindow& window = place_.window;
  place_.session.data_base_changed = true;
  window.cmdAdd.SetEnabled(true);
  if (window.cmdedit.Caption() == "Edit") {
    StartEdit();
  } else {
    SaveEdit();
  }
}

void Entry::StartEdit() {
  MainWindow& window = place_.window;
  window.cmdedit.SetCaption("Save");
  window.tbar3.SetEnabled(true);
  window.TxtBall01.SetEnabled(true);
  place_.desktop.SetFocus(window.TxtBall01);
}

void Entry::SaveEdit() {
  Session& session = place_.session;
  MainWindow& window = place_.window;
  window.TxtBall01.SetEnabled(false);
  window.cmdedit.SetCaption("Edit");
  window.tbar3.SetEnabled(false);
  window.List7.SetEnabled(false);
  session.selected_list_row = base::ToInt16(session.current_draw_number);
  for (int k = 0; k < kMainBalls; ++k) {
    base::TextBox& box = window.BallBox(k);
    if (box.Text().size() == 1) box.SetText("0" + box.Text());
  }
  if (window.txtDate.Text().size() < kDateLength) {
    place_.Ask({.text = "Please check the date is in this format 00/00/00"});
    return;
  }
  try {
    ReplaceEditedLine();
    place_.Yield();
    neighbours_.DoDataBase();
  } catch (const base::Error&) {
    window.List7.SetEnabled(true);
    throw;
  }
  window.List7.SetEnabled(true);
}

// The table's row of a draw line. While rows and lines are as many they share their numbers; after
// a removal from the table the row is the last one before the line's number that reads alike, 0 for
// none.
int Entry::RowOfLine(int number, const std::string& line) const {
  const base::ListView& table = place_.window.ListView1;
  if (table.RowCount() == place_.window.List7.ListCount()) return number;
  DrawRecord draw;
  ParseDrawLine(line, draw);
  int row = std::min(number, table.RowCount());
  while (row > 0 && table.Row(row) != TableRow(draw)) --row;
  return row;
}

void Entry::ReplaceEditedLine() {
  const int number = place_.session.selected_list_row;
  MainWindow& window = place_.window;
  const std::string line = LineOfBoxes();
  const int row = RowOfLine(number, window.List7.Row(number - 1));
  window.List7.RemoveItem(number - 1);
  place_.Yield();
  window.List7.InsertItem(number - 1, line);
  if (row == 0) return;
  // The table is what a close is written from, so it has to know the edit as well.
  DrawRecord edited;
  ParseDrawLine(line, edited);
  const base::ListView::Cells cells = TableRow(edited);
  for (int cell = 0; cell < static_cast<int>(cells.size()); ++cell) {
    window.ListView1.SetCell(row, cell, cells[static_cast<std::size_t>(cell)]);
  }
}

std::string Entry::LineOfBoxes() {
  MainWindow& window = place_.window;
  std::string line;
  for (int k = 0; k < kBalls; ++k) line += PadBall(window.BallBox(k).Text()) + " ";
  return line + window.txtDate.Text() + " 0 " + window.TxtBall07.Text();
}

// --- Pasting

void Entry::TxtBall01_MouseUp() {
  MainWindow& window = place_.window;
  if (window.TxtBall01.Text().size() < kShortestLine) return;
  window.TxtBall01.SetText(StripLetters(window.TxtBall01.Text()));
  window.TxtBall01.SetText(StripSymbols(window.TxtBall01.Text()));
  window.TxtBall01.SetText(StripControls(window.TxtBall01.Text()));

  const base::DateOrder order = place_.World().region.Dates();
  const PastedLine line = TakeApart(window.TxtBall01.Text(), order);
  window.txtDate.SetText(base::DateText(line.date_part, place_.session.date_format_text, order));
  window.TxtBall07.SetText(base::DateText(line.date_part, "DDDD", order));
  if (!line.balls[0]) {
    for (int k = 0; k < kBalls; ++k) window.BallBox(k).SetText("00");
    return;
  }
  for (int k = 0; k < kBalls; ++k) {
    const auto& ball = line.balls[static_cast<std::size_t>(k)];
    base::TextBox& box = window.BallBox(k);
    if (ball) box.SetText(*ball);
    if (box.Text().empty()) box.SetText("00");
  }
}

}  // namespace store
