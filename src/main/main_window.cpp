#include "main/main_window.h"

#include <array>

#include "store/draw_record.h"

namespace main_window {
namespace {

constexpr int kBarPitch = 192;
constexpr int kBarWidth = 132;
constexpr int kNarrowestBar = 80;
constexpr int kWidestBar = 400;
constexpr int kStripWidth = 19260;
constexpr int kStripHeight = 2000;

struct CaptionOf {
  base::Captioned& control;
  const char* caption;
};

std::string TwoDigits(int ball) { return store::PadBall(std::to_string(ball)); }

}  // namespace

MainWindow::MainWindow() : Form("MainWindow", base::FormRole::kChild) {
  SetCaption("Quorbit Number Desk");
  SetCaptions();
  SetFirstValues();
  PlaceBars();
}

void MainWindow::SetCaptions() {
  const CaptionOf captions[] = {
      {Label7(12), "B1"},
      {Label7(11), "B2"},
      {Label7(10), "B3"},
      {Label7(9), "B4"},
      {Label7(8), "B5"},
      {Label7(7), "B6"},
      {Label7(5), "BB"},
      {Label7(6), "Date \xB7 Day"},
      {lblProductName1(4), "Quorbit Number Desk"},
      {cmdFirst, "First"},
      {cmdPrev, "Previous"},
      {cmdNext, "Next"},
      {cmdLast, "Last"},
      {cmdAdd, "Add"},
      {cmdedit, "Edit"},
      {cmdSave, "Save"},
      {cmdClear, "Clear"},
      {CmdReset, "Reset"},
      {Option5, "UK"},
      {Option3, "US"},
      {TxtGraph, "Move the mouse over the graph to obtain number information"},
      {LblFilterHeading, "Filtered Count"},
      {LabFilterCount, "0"},
      {CmdScan, "Scan"},
      {Label3, "Draw results"},
      {Label4, "Combinations"},
      {Label5, "Graph options"},
      {Label8, "Scan Filter"},
      {Command18, "Remove"},
      {Label18, "Accept"},
      {CmdCancelSave, "Cancel"},
      {LblExtraBall, "XB"},
      {Labscanwinners, "Scan"},
      {LblApplyHint, "Double click an option to apply"},
      {Option6, "Scan Entirety"},
      {OpScanRange, "Scan Selected Range"},
      {LblStartAt, "Start scan at draw number"},
      {LblEndAt, "End scan at draw number"},
      {Check1, "Enable auto scan"},
      {lblbuttons(0), "Print"},
      {lblbuttons(2), "Make Wheel"},
  };
  for (const CaptionOf& entry : captions) entry.control.SetCaption(entry.caption);
  for (int ball = 0; ball <= kLastBar; ++ball) {
    Label1(ball).SetCaption(TwoDigits(ball));
    Label2(ball).SetCaption("0");
  }
}

void MainWindow::SetFirstValues() {
  ListView1.SetHeaders({"B1", "B2", "B3", "B4", "B5", "B6", "BB", "Date", "Day"});
  LstMainWindowSorted.SetSorted();
  List1.SetSorted();

  txtpermcheck.SetText(
      "Type numbers in the boxes below and click scan, this will tell \r\n"
      "you the amount of times you would have won from the draw \r\n"
      "range selected.\r\n");

  Option5.SetGroup("country");
  Option3.SetGroup("country");
  Option6.SetGroup("scan");
  OpScanRange.SetGroup("scan");
  Option6.SetValue(true);
  Frame4.SetVisible(false);
  Picture6.SetVisible(false);
  TxtStartDrawAt(0).SetText("0");
  TxtStartDrawAt(1).SetText("0");
  TxtStartDrawAt(1).SetToolTipText("Set to 0 to scan to the end of database");

  Combo7.SetItems(
      {"All Days", "Saturday", "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday"});
  Combo7.SetListIndex(0);
  Combo7.SetToolTipText(
      "When you click scan QND will only include information for the day selected here");
  Combo11.SetItems({"List by frequencys", "View numbers due to appear"});
  Combo11.SetListIndex(0);
  Check1.SetValue(1);

  tbar3.SetEnabled(false);
  cmdSave.SetEnabled(false);
  cmdClear.SetEnabled(false);
  CmdReset.SetEnabled(false);
  for (base::Control* store :
       {static_cast<base::Control*>(&LstMainWindowSorted), static_cast<base::Control*>(&List1),
        static_cast<base::Control*>(&List3), static_cast<base::Control*>(&Command1)}) {
    store->SetVisible(false);
  }
}

void MainWindow::PlaceBars() {
  HScroll1.SetRange(kNarrowestBar, kWidestBar);
  HScroll1.SetValue(kBarWidth);
  OuterPict.Move(120, 1100, 10600, kStripHeight);
  InnerPict.Move(0, 0, kStripWidth, kStripHeight);
  ProgressBar1.Each([](base::Bar& bar) {
    bar.Move(60 + kBarPitch * bar.Index(), 240, kBarWidth, kStripHeight - 480);
  });
}

base::TextBox& MainWindow::BallBox(int k) {
  const std::array<base::TextBox*, store::kBalls> boxes{
      &TxtBall01, &TxtBall02, &TxtBall03, &TxtBall04, &TxtBall05, &TxtBall06, &TxtBallBB};
  return *boxes.at(static_cast<std::size_t>(k));
}

}  // namespace main_window
