#pragma once

#include "base/controls/form.h"
#include "base/controls/group.h"
#include "base/controls/list_controls.h"
#include "base/controls/simple_controls.h"

namespace main_window {

inline constexpr int kLastBar = 99;

// The main window as controls, in the order in which they stand on the screen. Many subjects serve
// it; each is a class that is given this one.
class MainWindow : public base::Form {
 public:
  MainWindow();

  // The draw on show.
  base::Group<base::Label> Label7{*this, "Label7", 5, 12};  // headings: 12..7 are B1..B6, 5 is BB
  base::TextBox TxtBall01{*this, "TxtBall01"};
  base::TextBox TxtBall02{*this, "TxtBall02"};
  base::TextBox TxtBall03{*this, "TxtBall03"};
  base::TextBox TxtBall04{*this, "TxtBall04"};
  base::TextBox TxtBall05{*this, "TxtBall05"};
  base::TextBox TxtBall06{*this, "TxtBall06"};
  base::TextBox TxtBallBB{*this, "TxtBallBB"};
  base::TextBox txtDate{*this, "txtDate"};
  base::TextBox TxtBall07{*this, "TxtBall07"};  // the day, which fills itself from the date
  base::TextBox txtRecNum{*this, "txtRecNum"};
  base::Label Label27{*this, "Label27"};
  base::Group<base::Label> lblProductName1{*this, "lblProductName1", 4, 4};

  // Browsing and entry.
  base::Button cmdFirst{*this, "cmdFirst"};
  base::Button cmdPrev{*this, "cmdPrev"};
  base::Button cmdNext{*this, "cmdNext"};
  base::Button cmdLast{*this, "cmdLast"};
  base::Button cmdAdd{*this, "cmdAdd"};
  base::Button cmdedit{*this, "cmdedit"};
  base::Button cmdSave{*this, "cmdSave"};
  base::Button cmdClear{*this, "cmdClear"};
  base::Button CmdReset{*this, "CmdReset"};
  base::Panel tbar3{*this, "tbar3"};
  base::Option Option5{*this, "Option5"};
  base::Option Option3{*this, "Option3"};

  // The graph: a strip of bars, a ball's number above and its count below.
  base::Label TxtGraph{*this, "TxtGraph"};
  base::Label LblFilterHeading{*this, "LblFilterHeading"};
  base::Label LabFilterCount{*this, "LabFilterCount"};
  base::Button CmdScan{*this, "CmdScan"};
  base::Panel OuterPict{*this, "OuterPict"};
  base::Panel InnerPict{*this, "InnerPict"};
  base::Group<base::Label> Label1{*this, "Label1", 0, kLastBar};
  base::Group<base::Bar> ProgressBar1{*this, "ProgressBar1", 0, kLastBar};
  base::Group<base::Label> Label2{*this, "Label2", 0, kLastBar};
  base::Group<base::Label> Label11{*this, "Label11", 0, kLastBar};  // a ball's average
  base::Scroll HBar{*this, "HBar"};
  base::Scroll HScroll1{*this, "HScroll1"};  // the width of the bars
  base::Button Command1{*this, "Command1"};  // takes the focus off the strip's scroll bar

  // Details of the balls on show: text, count, average.
  base::Group<base::Label> Label16{*this, "Label16", 0, 6};
  base::Group<base::Label> Label9{*this, "Label9", 0, 6};
  base::Group<base::Label> Label10{*this, "Label10", 0, 6};

  // The tab strip and its four panels.
  base::Label Label3{*this, "Label3"};
  base::Label Label4{*this, "Label4"};
  base::Label Label5{*this, "Label5"};
  base::Label Label8{*this, "Label8"};

  base::Panel Picture4{*this, "Picture4"};  // draw results
  base::ListView ListView1{*this, "ListView1"};
  base::ListBox List7{*this, "List7"};

  base::Button Command18{*this, "Command18"};  // removes the selected row

  base::Panel Picture6{*this, "Picture6"};  // the row editor, in front of the table
  base::Group<base::TextBox> TxtChange{*this, "TxtChange", 0, 8};
  base::Label Label18{*this, "Label18"};
  base::Button CmdCancelSave{*this, "CmdCancelSave"};

  base::Panel Picture3{*this, "Picture3"};  // combinations
  base::Group<base::TextBox> Txtb1{*this, "Txtb1", 0, 6};
  base::Label LblExtraBall{*this, "LblExtraBall"};
  base::Label Labscanwinners{*this, "Labscanwinners"};
  base::TextBox txtpermcheck{*this, "txtpermcheck"};

  base::Panel Picture5{*this, "Picture5"};  // graph options
  base::ListBox LstGraphStyles{*this, "LstGraphStyles"};
  base::ListBox LstMainWinSettings{*this, "LstMainWinSettings"};
  base::Label LblApplyHint{*this, "LblApplyHint"};

  base::Panel PicScanFilter{*this, "PicScanFilter"};  // scan filter
  base::Option Option6{*this, "Option6"};
  base::Option OpScanRange{*this, "OpScanRange"};
  base::Panel Frame1{*this, "Frame1"};
  base::Panel Frame4{*this, "Frame4"};
  base::Label LblStartAt{*this, "LblStartAt"};
  base::Label LblEndAt{*this, "LblEndAt"};
  base::Group<base::TextBox> TxtStartDrawAt{*this, "TxtStartDrawAt", 0, 1};
  base::ComboBox Combo7{*this, "Combo7"};
  base::Tick Check1{*this, "Check1"};

  // The report.
  base::Label TxtResultsBox2{*this, "TxtResultsBox2"};
  base::ComboBox Combo11{*this, "Combo11"};
  base::Group<base::Label> lblbuttons{*this, "lblbuttons", 0, 2};
  base::TextBox TxtResultsBox{*this, "TxtResultsBox"};

  // Stores that nobody sees.
  base::ListBox List1{*this, "List1"};                              // due rows, sorted
  base::ListBox LstMainWindowSorted{*this, "LstMainWindowSorted"};  // ranking rows, sorted
  base::ListBox List3{*this, "List3"};                              // ranking rows by ball

  // The box of ball k: 0..5 are B1..B6, 6 is BB.
  base::TextBox& BallBox(int k);

 private:
  void SetCaptions();
  void SetFirstValues();
  void PlaceBars();
};

}  // namespace main_window
