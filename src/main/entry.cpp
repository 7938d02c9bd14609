#include "main/entry.h"

#include "base/language/dates.h"
#include "base/language/numbers.h"
#include "base/language/text.h"
#include "main/draw_lists.h"
#include "main/draw_on_show.h"
#include "main/tips.h"
#include "store/pasted_line.h"

namespace main_window {
namespace {

constexpr int kMainBalls = 6;
constexpr int kRounds = 20;
constexpr int kPassesInARound = 7;
constexpr std::size_t kDateLength = 8;
constexpr std::size_t kShortestLine = 5;
constexpr int kNotice = 4;  // the member of lblProductName1 where notices stand

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

void Entry::Wire() {
  MainWindow& window = place_.window;
  const auto trapped = [this](const char* name, void (Entry::*procedure)()) {
    return base::Trap(place_.reporter, name, *this, procedure);
  };
  window.cmdAdd.on.click = trapped("cmdAdd_Click", &Entry::cmdAdd_Click);
  window.cmdSave.on.click = trapped("cmdSave_Click", &Entry::cmdSave_Click);
  window.cmdClear.on.click = trapped("cmdClear_Click", &Entry::cmdClear_Click);
  window.CmdReset.on.click = trapped("CmdReset_Click", &Entry::CmdReset_Click);
  window.cmdedit.on.click = trapped("cmdedit_Click", &Entry::cmdedit_Click);
  window.TxtBall01.on.mouse_up = trapped("TxtBall01_MouseUp", &Entry::TxtBall01_MouseUp);
}

// --- Adding

void Entry::cmdAdd_Click() {
  if (place_.desktop.IsHeld(place_.window)) return;  // the load would put a draw under it
  store::Session& session = place_.session;
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
  for (int k = 0; k < store::kBalls; ++k) window.BallBox(k).SetEnabled(true);
  for (const int heading : {5, 7, 8, 9, 10}) window.Label7(heading).SetEnabled(true);
}

void Entry::cmdClear_Click() {
  store::Session& session = place_.session;
  MainWindow& window = place_.window;
  session.data_base_changed = true;
  SetDrawOnShow(session, window, 0);
  for (int k = 0; k < store::kBalls; ++k) window.BallBox(k).SetText("");
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
  if (place_.desktop.IsHeld(window)) return;
  const base::Desktop::Hold hold(place_.desktop, window);
  QNDLabels();
  place_.session.data_base_changed = true;
  const bool could_add = window.cmdAdd.Enabled();
  const bool could_reset = window.CmdReset.Enabled();
  window.cmdAdd.SetEnabled(false);
  window.CmdReset.SetEnabled(false);
  bool saved = false;
  base::Trapped(place_.reporter, "cmdSave_Click", [&] { saved = SaveTyped(); });
  if (saved) {
    ShowSavedDraw();
    return;
  }
  window.cmdAdd.SetEnabled(could_add);
  window.CmdReset.SetEnabled(could_reset);
}

bool Entry::SaveTyped() {
  MainWindow& window = place_.window;
  CheckValidData();
  const Typed typed = Boxes();
  place_.Yield();
  PutBack(typed);  // whatever came into the boxes meanwhile
  if (IsStoredAlready() || !BoxesAreValid()) return false;
  SortBoxes();
  if (window.txtDate.Text().size() > kDateLength) {
    place_.Ask(
        {.text = "Date field is incorrect please enter in this format 00/00/00", .title = "Note!"});
    return false;
  }
  return SaveNewRecord();
}

Entry::Typed Entry::Boxes() const {
  MainWindow& window = place_.window;
  Typed typed{.balls = {},
              .day = window.TxtBall07.Text(),
              .date = window.txtDate.Text(),
              .place_on_show = place_.session.shown_place};
  for (int k = 0; k < store::kBalls; ++k) {
    typed.balls[static_cast<std::size_t>(k)] = window.BallBox(k).Text();
  }
  return typed;
}

void Entry::PutBack(const Typed& typed) {
  MainWindow& window = place_.window;
  for (int k = 0; k < store::kBalls; ++k) {
    window.BallBox(k).SetText(typed.balls[static_cast<std::size_t>(k)]);
  }
  window.TxtBall07.SetText(typed.day);
  window.txtDate.SetText(typed.date);
  place_.session.shown_place = typed.place_on_show;
  EnableChanges(place_.session, window);
}

// A draw looked at while one was to be added stands in the boxes as it was read: saving it would
// only double it.
bool Entry::IsStoredAlready() {
  store::Session& session = place_.session;
  const int row = place_.window.ListView1.RowWithKey(session.shown_place);
  if (row == 0) return false;
  base::ListView::Cells cells;
  for (int k = 0; k < store::kBalls; ++k) cells.push_back(place_.window.BallBox(k).Text());
  cells.push_back(place_.window.txtDate.Text());
  cells.push_back(place_.window.TxtBall07.Text());
  if (RecordOfRow(cells) != RecordOfRow(place_.window.ListView1.Row(row))) return false;
  place_.Ask({.text = "This draw is in the database already, nothing was saved"});
  return true;
}

void Entry::CheckValidData() {
  DoTextBox();
  for (int k = 0; k < store::kBalls; ++k) {
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
  for (int k = 0; k < store::kBalls; ++k) {
    base::TextBox& box = window.BallBox(k);
    if (box.Text().size() == 1) box.SetText("0" + box.Text());
  }
  place_.session.day_text = TwoLetterDay(window.TxtBall07.Text());
}

bool Entry::SaveNewRecord() {
  bool saved = false;
  base::Trapped(place_.reporter, "SaveNewRecord", [&] {
    DoTextBox();
    store::Session& session = place_.session;
    store::DrawRecord& draw = session.current_draw;
    session.current_place = 0;
    for (int k = 0; k < store::kBalls; ++k) draw.Ball(k) = place_.window.BallBox(k).Text();
    draw.day = session.day_text;
    draw.date = place_.window.txtDate.Text();
    std::size_t old_size = 0;
    do {
      if (!guard_.MayWrite()) return;
      old_size = session.database.Bytes().size();
    } while (!store::AppendCurrentDraw(session));
    session.database.log.Add(
        {.told = "Draw of " + draw.date + " saved",
         .bytes = {.offset = old_size, .new_bytes = session.database.Bytes().substr(old_size)},
         .pending_before = session.database.pending,
         .place = session.current_place});
    place_.window.cmdClear.SetEnabled(true);
    saved = true;
  });
  return saved;
}

void Entry::ShowSavedDraw() {
  const store::DrawRecord saved = place_.session.current_draw;
  const store::OpenDatabase& database = place_.session.database;
  MainWindow& window = place_.window;
  browsing_.cmdLast_Click();
  // A table that had lost its blank row has been loaded again by that, with the new draw.
  const int place = database.PlaceOf(database.UpperBound());
  if (window.List7.RowWithKey(place) < 0) window.List7.AddItem(store::DrawLine(saved), place);
  if (window.ListView1.RowWithKey(place) == 0) window.ListView1.AddRow(TableRow(saved), place);
  window.List7.SetListIndex(window.List7.ListCount() - 1);
  window.List7.on.click();
  window.ListView1.Select(window.ListView1.RowCount());
  window.ListView1.EnsureVisible(window.ListView1.RowCount());
}

// --- Editing in place

void Entry::cmdedit_Click() {
  MainWindow& window = place_.window;
  if (place_.desktop.IsHeld(window)) return;
  place_.session.data_base_changed = true;
  window.cmdAdd.SetEnabled(true);
  if (IsEditing(window)) {
    SaveEdit();
  } else {
    StartEdit();
  }
  EnableChanges(place_.session, window);
}

// A draw was looked at while one was to be added, and is corrected now: one Save is enough.
void Entry::LeaveAdding() {
  MainWindow& window = place_.window;
  for (base::Button* button : {&window.cmdSave, &window.cmdClear, &window.CmdReset}) {
    button->SetEnabled(false);
  }
  browsing_.EnableTheButtons(true);
  window.CmdScan.SetEnabled(true);
  QNDLabels();
}

void Entry::StartEdit() {
  MainWindow& window = place_.window;
  if (window.cmdSave.Enabled()) LeaveAdding();
  window.cmdedit.SetCaption("Save");
  window.tbar3.SetEnabled(true);
  window.TxtBall01.SetEnabled(true);
  place_.desktop.SetFocus(window.TxtBall01);
}

void Entry::SaveEdit() {
  store::Session& session = place_.session;
  MainWindow& window = place_.window;
  const base::Desktop::Hold hold(place_.desktop, window);
  window.TxtBall01.SetEnabled(false);
  StopEditing(window);
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
  } catch (const base::Error&) {
    window.List7.SetEnabled(true);
    throw;
  }
  window.List7.SetEnabled(true);
}

// Everything is taken as it stands before the first yield: the line, the file that it makes, and
// what to put back where it cannot be stored.
void Entry::ReplaceEditedLine() {
  MainWindow& window = place_.window;
  store::OpenDatabase& database = place_.session.database;
  const int place = place_.session.shown_place;
  const int index = window.List7.RowWithKey(place);
  const int row = window.ListView1.RowWithKey(place);
  if (index < 0 || row == 0) return;
  const std::string line = LineOfBoxes();
  const std::string old_line = window.List7.Row(index);
  const base::ListView::Cells old_row = window.ListView1.Row(row);
  store::DrawRecord edited;
  store::ParseDrawLine(line, edited);
  const Edit edit{
      .bytes = BytesOfLines(window.List7, index, line), .place = place, .date = edited.date};
  const int loads = database.Loads();

  window.List7.RemoveItem(index);
  place_.Yield();
  window.List7.InsertItem(index, line, place);
  // The table is what a close is written from, so it has to know the edit as well.
  PutLine(place, line, TableRow(edited));
  place_.Yield();
  if (neighbours_.DoDataBase(edit) || database.Loads() != loads) return;
  PutLine(place, old_line, old_row);
}

void Entry::PutLine(int place, const std::string& line, const base::ListView::Cells& row) {
  MainWindow& window = place_.window;
  const int index = window.List7.RowWithKey(place);
  if (index >= 0 && window.List7.Row(index) != line) {
    window.List7.RemoveItem(index);
    window.List7.InsertItem(index, line, place);
  }
  const int table_row = window.ListView1.RowWithKey(place);
  if (table_row == 0) return;
  for (int cell = 0; cell < static_cast<int>(row.size()); ++cell) {
    window.ListView1.SetCell(table_row, cell, row[static_cast<std::size_t>(cell)]);
  }
}

std::string Entry::LineOfBoxes() {
  MainWindow& window = place_.window;
  std::string line;
  for (int k = 0; k < store::kBalls; ++k) line += store::PadBall(window.BallBox(k).Text()) + " ";
  return line + window.txtDate.Text() + " 0 " + window.TxtBall07.Text();
}

// --- Pasting

void Entry::TxtBall01_MouseUp() {
  MainWindow& window = place_.window;
  if (window.TxtBall01.Text().size() < kShortestLine) return;
  window.TxtBall01.SetText(store::StripLetters(window.TxtBall01.Text()));
  window.TxtBall01.SetText(store::StripSymbols(window.TxtBall01.Text()));
  window.TxtBall01.SetText(store::StripControls(window.TxtBall01.Text()));

  const base::DateOrder order = place_.World().region.Dates();
  const store::PastedLine line = store::TakeApart(window.TxtBall01.Text(), order);
  window.txtDate.SetText(base::DateText(line.date_part, place_.session.date_format_text, order));
  window.TxtBall07.SetText(base::DateText(line.date_part, "DDDD", order));
  if (!line.balls[0]) {
    for (int k = 0; k < store::kBalls; ++k) window.BallBox(k).SetText("00");
    return;
  }
  for (int k = 0; k < store::kBalls; ++k) {
    const auto& ball = line.balls[static_cast<std::size_t>(k)];
    base::TextBox& box = window.BallBox(k);
    if (ball) box.SetText(*ball);
    if (box.Text().empty()) box.SetText("00");
  }
}

}  // namespace main_window
