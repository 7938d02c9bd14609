#include "scan/frequencies.h"

#include "base/language/numbers.h"
#include "base/language/text.h"
#include "main/headings.h"
#include "main/tips.h"
#include "scan/due_list.h"
#include "scan/frequency_report.h"
#include "scan/ranking.h"

namespace scan {
namespace {

constexpr std::size_t kDateColumn = 22;
constexpr std::size_t kDateLength = 8;
constexpr int kLastBallInDueList = 61;
constexpr int kRowsForScale = 3;
constexpr base::Colour kWhite = 0xFFFFFF;

}  // namespace

void Frequencies::Wire() {
  main_window::MainWindow& window = place_.window;
  window.Combo11.on.click =
      base::Trap(place_.reporter, "Combo11_Click", *this, &Frequencies::Combo11_Click);
  window.lblbuttons.Each([this](base::Label& button) {
    button.on.mouse_down = [this, index = button.Index()](base::MouseButton) {
      lblbuttons_MouseDown(index);
    };
  });
}

void Frequencies::BallFrequancysMainWindow() {
  base::Trapped(place_.reporter, "BallFrequancysMainWindow", [this] { WriteReport(); });
}

std::int16_t Frequencies::DrawsScanned() const {
  const store::Session& session = place_.session;
  if (session.current_draw_number > session.filter_count) {
    return base::ToInt16(session.filter_count);
  }
  if (place_.window.OpScanRange.Value()) {
    return base::ToInt16(session.current_draw_number -
                         base::NumericValue(place_.window.TxtStartDrawAt(0).Text()));
  }
  return base::ToInt16(session.current_draw_number);
}

void Frequencies::WriteReport() {
  main_window::MainWindow& window = place_.window;
  const std::string selected_date = base::Mid(window.List7.Text(), kDateColumn, kDateLength);
  if (window.OpScanRange.Value() && !selected_date.empty()) window.txtDate.SetTag(selected_date);

  std::string text = FrequencyHeading(window.txtDate.Tag(), window.txtDate.Text());
  std::int16_t draws = 0;
  try {
    for (int ball = 1; ball <= main_window::kLastBar; ++ball) {
      const float count = window.ProgressBar1(ball).Value();
      if (count == 0) continue;
      draws = DrawsScanned();
      text += FrequencyLine(ball, base::ToInt16(count), draws);
    }
  } catch (const base::Error&) {
    window.TxtResultsBox.SetText(text);  // what was written stays in the box
    throw;
  }
  window.TxtResultsBox.SetText(text);
  ResetWorkTexts();
  window.LabFilterCount.SetCaption(
      draws < window.ListView1.RowCount() - 1 ? base::IntegerText(draws) : "0");
}

void Frequencies::MostCommonMainWindow() {
  main_window::MainWindow& window = place_.window;
  window.LstMainWindowSorted.Clear();
  window.List3.Clear();
  window.TxtResultsBox2.SetVisible(true);

  // The ranking ends before the first ball that never came up.
  int top = 1;
  while (window.ProgressBar1(top + 1).Value() != 0) ++top;
  for (int ball = 1; ball <= top; ++ball) {
    const std::string row = RankingRow(window.ProgressBar1(ball).Value(), ball);
    window.List3.AddItem(row);
    window.LstMainWindowSorted.AddItem(row);
  }
  place_.Yield();

  window.TxtResultsBox2.SetCaption(MostCommonText(window.LstMainWindowSorted.Rows()));
  SelectFirstCounted();
  graph_.DoBarColors();
  ResetWorkTexts();
}

void Frequencies::SelectFirstCounted() {
  base::ListBox& ranking = place_.window.LstMainWindowSorted;
  for (int row = 0; row < ranking.ListCount(); ++row) {
    if (CountOfRow(ranking.Row(row)) == 0) continue;
    ranking.SetListIndex(row);
    return;
  }
}

void Frequencies::DueToAppearMainWindow(bool show_text) {
  main_window::MainWindow& window = place_.window;
  store::Session& session = place_.session;
  window.List1.Clear();
  for (int ball = 1; ball <= main_window::kLastBar; ++ball) {
    const float value = window.ProgressBar1(ball).Value();
    if (value == 0) continue;
    const std::int32_t count = base::ToInt32(value);
    place_.Yield();
    const std::int16_t draws = base::ToInt16(session.filter_count);
    if (ball <= kLastBallInDueList) window.List1.AddItem(DueRow(draws, count, ball));
  }

  session.report_buffer =
      window.TxtResultsBox2.Caption() + "Balls from most common to least common\r\n";
  for (int row = 0; row < window.List1.ListCount(); ++row) {
    window.List1.SetListIndex(row);
    session.report_buffer += DueSentence(window.List1.Text());
  }
  place_.Yield();
  if (show_text) {
    window.TxtResultsBox.SetText(
        DueReport(window.txtDate.Tag(), window.txtDate.Text(), session.report_buffer));
  }
  ResetWorkTexts();
}

void Frequencies::ResetWorkTexts() {
  store::Session& session = place_.session;
  session.data_base_name.clear();
  session.report_buffer.clear();
  session.selected_list_row = 0;
}

void Frequencies::Combo11_Click() {
  main_window::MainWindow& window = place_.window;
  store::Session& session = place_.session;
  const std::string& report = window.Combo11.Text();
  if (report == "List by frequencys") {
    BallFrequancysMainWindow();
  } else if (report == "View numbers due to appear") {
    MostCommonMainWindow();
    DueToAppearMainWindow(true);
  }
  session.data_base_name =
      base::UpToFirst(main_window::DataBaseNameSetting(place_.World().settings), '.');
  place_.World().files.Replace(
      session.program_folder + "\\Databases\\" + session.data_base_name + " " + report + ".txt",
      window.TxtResultsBox.Text());
}

void Frequencies::lblbuttons_MouseDown(int index) {
  main_window::MainWindow& window = place_.window;
  if (window.LstMainWindowSorted.ListCount() == 0) {
    place_.Ask({.text = "Please click scan before creating a wheel",
                .title = "Not enough data to make wheel"});
    if (place_.session.tips_on) main_window::ShowTip(place_.World().boxes, 7);
    return;
  }
  if (index == 0) PrintReport();
  if (index == 2) MakeWheel();
}

void Frequencies::MakeWheel() {
  neighbours_.HandOverToWheels();
  ScaleStep();
}

void Frequencies::PrintReport() {
  main_window::MainWindow& window = place_.window;
  window.lblbuttons(0).SetBackColor(kWhite);
  if (window.Combo11.Text() == "List by frequencys") {
    BallFrequancysMainWindow();
    place_.World().printer.Print("Quorbit Number Desk Frequencies Report\r\n\r\n" +
                                 window.TxtResultsBox.Text());
  } else {
    MostCommonMainWindow();
    place_.World().printer.Print("Quorbit Number Desk Most Common Report\r\n\r\n" +
                                 window.TxtResultsBox.Text());
  }
  place_.Yield();
  ScaleStep();
}

void Frequencies::ScaleStep() {
  main_window::MainWindow& window = place_.window;
  base::ListBox& ranking = window.LstMainWindowSorted;
  if (ranking.ListCount() < kRowsForScale) return;
  ranking.SetListIndex(ranking.ListCount() - 1);
  const float highest = CountOfRow(ranking.Text());
  window.ProgressBar1.Each([highest](base::Bar& bar) { bar.SetMax(highest); });
}

}  // namespace scan
