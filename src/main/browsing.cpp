#include "main/browsing.h"

#include <array>
#include <functional>

#include "base/language/numbers.h"
#include "base/language/text.h"
#include "main/draw_on_show.h"

namespace main_window {
namespace {

constexpr base::Colour kWhite = 0xFFFFFF;
constexpr base::Colour kHighlight = 0xE0E0E0;
constexpr int kDateCell = 7;
constexpr int kDayCell = 8;

// All seven, or error 13 or 6: never some of one draw and some of another.
std::array<std::uint8_t, store::kBalls> BallsOf(const std::function<std::string(int)>& text) {
  std::array<std::uint8_t, store::kBalls> balls{};
  for (int k = 0; k < store::kBalls; ++k)
    balls[static_cast<std::size_t>(k)] = base::ToByte(text(k));
  return balls;
}

const base::MessageBox kEmptyBuffers{
    .text =
        "An error has occured loading the draw results in to QND's buffers\r\n"
        "QND will now attempt to reload the buffers",
    .title = "Buffers are empty",
    .icon = base::BoxIcon::kCritical};

}  // namespace

void Browsing::Wire() {
  MainWindow& window = place_.window;
  const auto trapped = [this](const char* name, void (Browsing::*procedure)()) {
    return base::Trap(place_.reporter, name, *this, procedure);
  };
  window.cmdFirst.on.click = trapped("cmdFirst_Click", &Browsing::cmdFirst_Click);
  window.cmdPrev.on.click = trapped("cmdPrev_Click", &Browsing::cmdPrev_Click);
  window.cmdNext.on.click = trapped("cmdNext_Click", &Browsing::cmdNext_Click);
  window.cmdLast.on.click = trapped("cmdLast_Click", &Browsing::cmdLast_Click);
  window.List7.on.click = trapped("List7_Click", &Browsing::List7_Click);
  window.ListView1.on.click = [this] { FillFromListView(); };
  window.ListView1.on.key_up = [this](int) { FillFromListView(); };
}

void Browsing::cmdFirst_Click() {
  MainWindow& window = place_.window;
  window.CmdScan.SetCaption("Scan");
  SetEntryButtons(false);
  window.CmdScan.SetEnabled(true);
  EnableTheButtons(true);
  MoveFirst();
  // The scan reads on from here; the number box keeps what the move wrote.
  place_.session.filter_count = 1;
  place_.session.current_draw_number = 1;
  place_.session.draw_count = 1;
}

void Browsing::cmdLast_Click() {
  MainWindow& window = place_.window;
  window.CmdScan.SetCaption("Scan");
  SetEntryButtons(false);
  EnableTheButtons(true);
  MoveLast();
  window.Label27.SetCaption("The last draw entered was " + window.TxtBall07.Text() + " : " +
                            window.txtDate.Text());
  window.CmdScan.SetEnabled(true);
}

void Browsing::cmdNext_Click() {
  const store::Session& session = place_.session;
  if (session.current_draw_number + 1 <= static_cast<float>(session.UpperBound())) {
    MoveNext();
  } else {
    place_.Ask({.text = "This is the last record", .title = "End of File"});
  }
}

void Browsing::cmdPrev_Click() {
  if (place_.window.ListView1.SelectedIndex() == 1) {
    place_.Ask({.text = "This is the first record", .title = place_.window.Caption()});
  } else {
    MovePrev();
  }
}

void Browsing::List7_Click() {
  store::Session& session = place_.session;
  // A line stands for its own draw, also while one above it is being replaced.
  const base::ListBox& lines = place_.window.List7;
  const int number = session.database.NumberOf(lines.Key(lines.ListIndex()));
  session.ReadDraw(number);
  session.current_draw_number = static_cast<float>(number);
  FillTextMainWindow();
  place_.window.TxtStartDrawAt(0).SetText(base::SingleText(session.current_draw_number));
}

void Browsing::MoveFirst() {
  base::ListView& table = place_.window.ListView1;
  if (table.RowCount() == 0 || table.SelectedIndex() < 2) return;
  table.Select(1);
  FillFromListView();
}

void Browsing::MovePrev() {
  base::ListView& table = place_.window.ListView1;
  if (table.SelectedIndex() < 2) return;
  table.Select(table.SelectedIndex() - 1);
  FillFromListView();
}

void Browsing::MoveNext() {
  base::ListView& table = place_.window.ListView1;
  if (table.SelectedIndex() + 1 > table.RowCount()) return;
  table.Select(table.SelectedIndex() + 1);
  FillFromListView();
}

void Browsing::MoveLast() {
  base::ListView& table = place_.window.ListView1;
  table.Select(table.RowCount());
  FillFromListView();
  place_.desktop.SetFocus(table);
}

void Browsing::EnableTheButtons(bool on) {
  MainWindow& window = place_.window;
  for (base::Button* button :
       {&window.cmdAdd, &window.cmdFirst, &window.cmdPrev, &window.cmdNext, &window.cmdLast}) {
    button->SetEnabled(on);
  }
  if (on) EnableChanges(place_.session, window);
}

void Browsing::SetEntryButtons(bool enabled) {
  MainWindow& window = place_.window;
  window.tbar3.SetEnabled(enabled);
  window.cmdSave.SetEnabled(enabled);
  window.cmdClear.SetEnabled(enabled);
}

void Browsing::FillFromListView() {
  base::Trapped(place_.reporter, "FillFromListView", [&] {
    if (place_.window.ListView1.RowCount() > 0) {
      ShowSelectedRow();
    } else {
      place_.Ask(kEmptyBuffers);
      neighbours_.ReloadBuffers();
    }
  });
}

void Browsing::ShowSelectedRow() {
  store::Session& session = place_.session;
  base::ListView& table = place_.window.ListView1;
  const int row = table.SelectedIndex();

  ClearHighlight();
  table.EnsureVisible(row);
  session.selected_list_row = base::ToInt16(row);
  try {
    session.current_balls = BallsOf([&](int k) { return table.Cell(row, k); });
  } catch (const base::Error&) {
    // No box can show it. The draw in the boxes is not the selected one: it cannot be edited from
    // here, and Remove means the row.
    SetDrawOnShow(session, place_.window, table.Key(row));
    place_.window.cmdedit.SetEnabled(false);
    throw;
  }
  Highlight();
  session.shown_day = table.Cell(row, kDayCell);
  session.shown_date = table.Cell(row, kDateCell);
  session.current_draw_number = static_cast<float>(row - 1);
  SetDrawOnShow(session, place_.window, table.Key(row));
  ShowBoxes();
  place_.window.txtRecNum.SetText(base::SingleText(session.current_draw_number));
}

void Browsing::ShowCells(int row) {
  store::Session& session = place_.session;
  const base::ListView& table = place_.window.ListView1;
  session.current_balls = BallsOf([&](int k) { return table.Cell(row, k); });
  session.shown_day = table.Cell(row, kDayCell);
  session.shown_date = table.Cell(row, kDateCell);
  ShowBoxes();
}

void Browsing::ClearHighlight() {
  MainWindow& window = place_.window;
  window.ProgressBar1.Each([](base::Bar& bar) {
    bar.SetBorderStyle(0);
    bar.SetBackColor(kWhite);
  });
  const int old_first_ball = place_.session.current_balls[0];
  if (!window.Label1.Has(old_first_ball)) return;
  window.Label1(old_first_ball).SetForeColor(0);
  window.Label2(old_first_ball).SetForeColor(0);
}

void Browsing::Highlight() {
  MainWindow& window = place_.window;
  if (!place_.session.mnu_hgight_on) return;
  if (base::NumericValue(window.txtRecNum.Text()) <= 1) return;
  for (std::size_t k = 0; k < 6; ++k) {
    const int ball = place_.session.current_balls[k];
    if (!window.ProgressBar1.Has(ball)) continue;
    base::Bar& bar = window.ProgressBar1(ball);
    bar.SetBorderStyle(1);
    bar.SetBackColor(kHighlight);
  }
}

void Browsing::ShowBoxes() {
  MainWindow& window = place_.window;
  for (int k = 0; k < store::kBalls; ++k) {
    window.BallBox(k).SetText(
        base::SingleText(place_.session.current_balls[static_cast<std::size_t>(k)]));
  }
  window.txtDate.SetText(place_.session.shown_date);
  window.TxtBall07.SetText(place_.session.shown_day);
}

void Browsing::FillTextMainWindow() {
  store::Session& session = place_.session;
  try {
    session.current_balls = BallsOf([&](int k) { return session.current_draw.Ball(k); });
  } catch (const base::Error&) {
    SetDrawOnShow(session, place_.window, 0);
    throw;
  }
  session.shown_day = session.current_draw.day;
  session.shown_date = session.current_draw.date;
  SetDrawOnShow(session, place_.window, session.current_place);
  ShowBoxes();
  place_.Yield();
}

void Browsing::GotoDataBasePosition1MainWindow() {
  store::Session& session = place_.session;
  session.draw_count = 1;
  session.file_pos = 1;
  session.database.Read(session.file_pos, session.current_draw);
  session.current_place = session.database.PlaceOf(1);
  session.current_draw_number = static_cast<float>(session.draw_count);
  place_.window.ProgressBar1.Each([&](base::Bar& bar) {
    if (bar.Index() == 0) return;
    bar.SetValue(0);
    session.ball_count[static_cast<std::size_t>(bar.Index())] = 0;
  });
  FillTextMainWindow();
}

}  // namespace main_window
