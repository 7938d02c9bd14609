#include "scan/scan_filter.h"

#include "base/language/numbers.h"
#include "base/language/text.h"

namespace scan {
namespace {

constexpr char kBackspace = 8;

bool IsDigit(char key) { return key >= '0' && key <= '9'; }

}  // namespace

void ScanFilter::Wire() {
  main_window::MainWindow& window = place_.window;
  const auto trapped = [this](const char* name, void (ScanFilter::*procedure)()) {
    return base::Trap(place_.reporter, name, *this, procedure);
  };
  window.Option6.on.click = [this] { Option6_Click(); };
  window.OpScanRange.on.click = [this] { OpScanRange_Click(); };
  window.Combo7.on.click = trapped("Combo7_Click", &ScanFilter::Combo7_Click);
  window.TxtStartDrawAt.Each([&](base::TextBox& box) {
    box.on.key_press = [](char& key) {
      if (!IsDigit(key) && key != kBackspace) key = 0;
    };
    box.on.key_up = trapped("TxtStartDrawAt_KeyUp", &ScanFilter::TxtStartDrawAt_KeyUp);
  });
}

void ScanFilter::Option6_Click() {
  place_.window.Frame1.BringToFront();
  place_.window.Frame1.SetVisible(true);
  place_.window.Frame4.SetVisible(false);
}

void ScanFilter::OpScanRange_Click() {
  place_.window.Frame4.BringToFront();
  place_.window.Frame4.SetVisible(true);
  place_.window.Frame1.SetVisible(false);
}

void ScanFilter::Combo7_Click() {
  store::Session& session = place_.session;
  browsing_.cmdFirst_Click();
  const std::string filter = base::Left(place_.window.Combo7.Text(), 2);
  if (place_.window.Combo7.Text() == "All Days" || filter == base::Left(session.shown_day, 2)) {
    return;
  }
  place_.Yield();
  while (session.current_draw_number + 1 <= static_cast<float>(session.UpperBound())) {
    session.ReadDraw(session.current_draw_number + 1);
    session.draw_count = base::AddInt16(session.draw_count, 1);
    session.current_draw_number = session.draw_count;
    if (base::Left(session.current_draw.day, 2) != filter) continue;
    browsing_.FillTextMainWindow();
    frequencies_.MostCommonMainWindow();
    return;
  }
}

void ScanFilter::TxtStartDrawAt_KeyUp() {
  base::TextBox& start = place_.window.TxtStartDrawAt(0);
  if (start.Text().empty()) start.SetText("0");
  if (!start.Text().starts_with('0')) GoToStartDraw();
}

void ScanFilter::GoToStartDraw() {
  store::Session& session = place_.session;
  main_window::MainWindow& window = place_.window;
  base::TextBox& start = window.TxtStartDrawAt(0);
  if (base::NumericValue(start.Text()) > window.List7.ListCount() - 1) {
    start.SetText(base::IntegerText(window.List7.ListCount()));
  }
  const int number = base::ToInt16(start.Text());
  window.List7.SetListIndex(number - 1);
  session.ReadDraw(number);
  session.current_draw_number = static_cast<float>(number);
  browsing_.FillTextMainWindow();
  entry_.CmdReset_Click();
  browsing_.GotoDataBasePosition1MainWindow();
  window.CmdScan.SetCaption("Scan");
}

}  // namespace scan
