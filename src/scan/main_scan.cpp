#include "scan/main_scan.h"

#include <algorithm>
#include <array>

#include "base/language/error.h"
#include "base/language/numbers.h"
#include "base/language/text.h"
#include "main/tips.h"
#include "scan/draw_details.h"

namespace scan {
namespace {

constexpr const char* kIdle = "Scan";
constexpr const char* kRunning = "Stop";
constexpr int kMakeWheel = 2;
constexpr int kMainBalls = 6;
// Up to here a scan learns the highest ball; from here on a higher one is a change of the rules.
constexpr float kRulesKnownFrom = 200;
constexpr int kSnapshotTest = 3;

const base::MessageBox kNewScan{.text = "This will start a new scan, continue.",
                                .title = "Last Record",
                                .buttons = base::BoxButtons::kYesNo};
const base::MessageBox kRulesChanged{
    .text =
        "QND has detected a range change in the draw results, this will effect the results, do "
        "you wish to zero the current statistics at this point to correct the results",
    .title = "Draw rules have changed",
    .buttons = base::BoxButtons::kYesNo};

}  // namespace

// What the buttons that a scan disables were like before it.
class MainScan::ButtonStates {
 public:
  explicit ButtonStates(main_window::MainWindow& window)
      : buttons_{&window.cmdAdd,  &window.cmdFirst, &window.cmdPrev,
                 &window.cmdNext, &window.cmdLast,  &window.lblbuttons(kMakeWheel)} {
    std::transform(buttons_.begin(), buttons_.end(), enabled_.begin(),
                   [](const base::Control* button) { return button->Enabled(); });
  }
  void GiveBack() const {
    for (std::size_t i = 0; i < buttons_.size(); ++i) buttons_[i]->SetEnabled(enabled_[i]);
  }

 private:
  std::array<base::Control*, 6> buttons_;
  std::array<bool, 6> enabled_{};
};

void MainScan::Wire() {
  place_.window.CmdScan.on.click = [this] { CmdScan_Click(); };
}

void MainScan::CmdScan_Click() { StartOrStop(true); }

void MainScan::StartOrStop(bool may_ask) {
  main_window::MainWindow& window = place_.window;
  const ButtonStates buttons(window);
  window.Check1.SetValue(0);
  window.LabFilterCount.SetCaption("0");
  graph_.MakeTheGraphVisible();
  frequencies_.MostCommonMainWindow();
  window.cmdAdd.SetEnabled(place_.session.database.IsComplete());
  window.lblbuttons(kMakeWheel).SetEnabled(false);
  browsing_.EnableTheButtons(false);
  if (window.CmdScan.Caption() != kIdle) {
    StopSteps();
    return;
  }

  window.CmdScan.SetCaption(kRunning);
  place_.session.filter_count = 1;
  if (may_ask && base::NumericValue(window.txtRecNum.Text()) >= place_.session.UpperBound() - 1) {
    if (!ConfirmNewScan(buttons)) return;
  }
  ScanFromHere();
}

void MainScan::StopSteps() {
  main_window::MainWindow& window = place_.window;
  window.CmdScan.SetCaption(kIdle);
  window.lblbuttons(kMakeWheel).SetEnabled(true);
  browsing_.EnableTheButtons(true);
  frequencies_.ScaleStep();
}

bool MainScan::ConfirmNewScan(const ButtonStates& buttons) {
  main_window::MainWindow& window = place_.window;
  if (place_.Ask(kNewScan) != base::Answer::kYes) {
    place_.Yield();
    window.CmdScan.SetCaption(kIdle);
    buttons.GiveBack();
    return false;
  }
  if (place_.session.current_draw.b[0].empty()) {
    StopSteps();  // a database without draws has nothing to scan
    return false;
  }
  browsing_.GotoDataBasePosition1MainWindow();
  entry_.CmdReset_Click();
  window.CmdScan.SetCaption(kIdle);
  window.txtRecNum.SetText(base::SingleText(place_.session.current_draw_number));
  StartOrStop(false);  // in a file of one or two draws it would ask again for ever
  return true;
}

void MainScan::ScanFromHere() {
  const base::Button& button = place_.window.CmdScan;
  if (button.Caption() == kIdle) {
    ShowWhereItStands();
    return;
  }
  try {
    int first_scan_highest = 0;
    Pass pass = OnePass(first_scan_highest);
    while (pass == Pass::kNext && button.Caption() != kIdle) pass = OnePass(first_scan_highest);
    if (pass == Pass::kNext) ShowWhereItStands();
    if (pass == Pass::kFinish) Finish();
  } catch (const base::Error&) {
    CmdScan_Click();  // counts as a Stop
  }
}

void MainScan::ShowWhereItStands() {
  store::Session& session = place_.session;
  base::ListView& table = place_.window.ListView1;
  FillTheDetailsMainWindow(place_);
  frequencies_.BallFrequancysMainWindow();
  if (session.current_draw_number == 0) session.current_draw_number = 1;
  const int row = base::ToInt16(session.current_draw_number);
  table.Select(row);
  table.EnsureVisible(row);
  session.selected_list_row = 0;
}

MainScan::Pass MainScan::OnePass(int& first_scan_highest) {
  store::Session& session = place_.session;
  main_window::MainWindow& window = place_.window;
  place_.Yield();
  ReadNextDraw();
  CountDraw();
  if (!window.Option6.Value() &&
      session.current_draw_number == base::NumericValue(window.TxtStartDrawAt(1).Text())) {
    return Pass::kSuspend;
  }
  CheckRange(first_scan_highest);
  ShowDraw();
  CountPositions();
  ShowHiddenBoxes();
  if (window.CmdScan.Caption() == kIdle) return Pass::kFinish;
  const bool last =
      session.current_draw_number - 1 == static_cast<float>(window.ListView1.RowCount());
  return last ? Pass::kFinish : Pass::kNext;
}

void MainScan::ReadNextDraw() {
  store::Session& session = place_.session;
  session.ReadDraw(session.current_draw_number);
  session.draw_count = base::AddInt16(session.draw_count, 1);
  session.current_draw_number = session.draw_count;
}

void MainScan::CountDraw() {
  const main_window::MainWindow& window = place_.window;
  if (!window.OpScanRange.Value() ||
      place_.session.current_draw_number >= base::NumericValue(window.TxtStartDrawAt(0).Text())) {
    FillTag();
  }
}

void MainScan::FillTag() {
  store::Session& session = place_.session;
  const std::string_view filter = std::string_view(place_.window.Combo7.Text()).substr(0, 2);
  const bool all_days = filter == "Al";
  if (all_days || filter == std::string_view(session.current_draw.day).substr(0, 2)) {
    browsing_.FillTextMainWindow();
    place_.Yield();
    counts_.FillCommand4TagMainWindow();
    session.scan_tally += 1;
    session.filter_count = all_days ? session.scan_tally : session.filter_count + 1;
  }
  if (!all_days) place_.window.LabFilterCount.SetNumber(session.filter_count - 1);
}

void MainScan::CheckRange(int& first_scan_highest) {
  store::Session& session = place_.session;
  const auto main_balls_end = session.current_balls.begin() + kMainBalls;
  const int highest = *std::max_element(session.current_balls.begin(), main_balls_end);
  if (session.current_draw_number < kRulesKnownFrom) {
    first_scan_highest = std::max(first_scan_highest, highest);
  } else if (highest > first_scan_highest && session.prompt_on_range_change) {
    session.prompt_on_range_change = false;
    if (place_.Ask(kRulesChanged) == base::Answer::kYes) ZeroStatistics();
  }
}

void MainScan::ZeroStatistics() {
  store::Session& session = place_.session;
  main_window::MainWindow& window = place_.window;
  for (int ball = 0; ball <= main_window::kLastBar; ++ball) {
    const auto place = static_cast<std::size_t>(ball);
    window.ProgressBar1(ball).SetValue(0);
    window.ProgressBar1(ball).SetTag("0");
    window.Label2(ball).SetCaption("0");
    session.ball_count[place] = 0;
    for (auto& marks : session.position_marks) marks[place] = 0;
  }
  window.OpScanRange.SetValue(true);
  window.TxtStartDrawAt(0).SetText(window.txtRecNum.Text());
}

void MainScan::ShowDraw() {
  browsing_.ShowBoxes();
  place_.window.txtRecNum.SetText(base::SingleText(place_.session.current_draw_number - 2));
}

void MainScan::CountPositions() {
  store::Session& session = place_.session;
  for (std::size_t k = 0; k < store::kBalls; ++k) {
    const std::size_t ball = session.current_balls[k];
    if (ball >= store::kPositionPlaces) throw base::Error(base::kSubscript);
    session.position_hits[k][ball] += 1;
  }
}

void MainScan::ShowHiddenBoxes() {
  const store::Session& session = place_.session;
  main_window::MainWindow& window = place_.window;
  for (const int k : {5, 4, 3, 2}) {
    base::TextBox& box = window.BallBox(k);
    if (!box.Visible() && session.current_balls[static_cast<std::size_t>(k)] != 0) {
      box.SetVisible(true);
    }
  }
  if (!window.TxtBall07.Visible() && base::ToDouble(session.shown_day) > 0) {
    window.TxtBall07.SetVisible(true);
  }
}

void MainScan::Finish() {
  store::Session& session = place_.session;
  main_window::MainWindow& window = place_.window;
  frequencies_.DueToAppearMainWindow(false);
  window.txtRecNum.SetText(base::SingleText(session.current_draw_number - 2));
  for (int k = 0; k < kMainBalls; ++k) {
    window.Label16(k).SetCaption(
        base::SingleText(session.current_balls[static_cast<std::size_t>(k)]));
  }
  window.ListView1.Select(window.ListView1.RowCount());
  window.ListView1.EnsureVisible(window.ListView1.RowCount());
  session.selected_list_row = 0;
  session.current_draw_number -= 2;
  session.filter_count -= 1;
  frequencies_.BallFrequancysMainWindow();
  window.CmdScan.SetCaption(kIdle);
  TakeSnapshot();
  frequencies_.MostCommonMainWindow();
  window.lblbuttons(kMakeWheel).SetEnabled(true);
  browsing_.EnableTheButtons(true);
  frequencies_.ScaleStep();
  if (session.tips_on) main_window::ShowTip(place_.World().boxes, 6);
}

void MainScan::TakeSnapshot() {
  base::Group<base::Bar>& bars = place_.window.ProgressBar1;
  if (base::NumericValue(bars(kSnapshotTest).Tag()) != 0) return;
  bars.Each([](base::Bar& bar) { bar.SetTag(base::SingleText(bar.Value())); });
}

}  // namespace scan
