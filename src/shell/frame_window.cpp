#include "shell/frame_window.h"

#include "base/ports/message_boxes.h"

namespace shell {
namespace {

constexpr base::Colour kIdleMark = 0x80000003;
constexpr base::Colour kIdleMainMark = 0xC0C0C0;

struct CaptionOf {
  base::Captioned& control;
  const char* caption;
};

}  // namespace

FrmMain::FrmMain() : Form("frmMain", base::FormRole::kFrame) {
  SetCaption(base::kProgramTitle);
  const CaptionOf captions[] = {
      {mnuWindow, "&Tool Windows"},
      {MnuMainWindow, "Main Window"},
      {MnuStatsWin, "Statistic Window"},
      {MnuSortedWindow, "Sorted Window"},
      {MnuPrintWindow, "Print Window"},
      {MnuDatabasewindow, "Database Window"},
      {MnuNumberSelector, "Ball Selector"},
      {MnuLiveUpdate, "Live Update"},
      {MnuImportDraw, "Import Draw Results"},
      {MnuSets, "Settings"},
      {MnuOptions, "Options"},
      {MnuPlugins, "Plugins"},
      {MnuSepPlugs1(0), "-"},
      {MnuGraph, "Graph"},
      {MnuHgight, "Highlight Current Draw"},
      {MnuDisplay, "Graph Appearance"},
      {MnuBlue, "Blue (Default)"},
      {MnuRWC, "Hot Warm Cold"},
      {MnuHC, "Hot and Cold"},
      {MnuNume, "Numerical Data"},
      {MnuStdDev, "Standard Deviation"},
      {MnuLoad, "Load database"},
      {MnuWheel, "Make Wheel"},
      {mnuHelp, "&Help"},
      {mnuHelpContents, "&Contents"},
      {mnuHelpSearchForHelpOn, "&Search For Help On..."},
      {MnuForum, "Forum"},
      {mnuHelpAbout, "&About "},
      {Command17, "Main"},
      {Label1, "Statistics"},
      {Label2, "Sorted"},
      {Label3, "Reports"},
      {Label4, "Database Window"},
      {Label5, "Wheels"},
  };
  for (const CaptionOf& entry : captions) entry.control.SetCaption(entry.caption);

  // What leads to a window that this version does not have.
  for (base::Control* later : std::initializer_list<base::Control*>{
           &MnuStatsWin, &MnuSortedWindow, &MnuPrintWindow, &MnuDatabasewindow, &MnuLiveUpdate,
           &MnuImportDraw, &MnuLoad, &MnuForum, &Label1, &Label2, &Label3, &Label4}) {
    later->SetEnabled(false);
  }
  for (base::Label* tool : {&Label1, &Label2, &Label3, &Label4, &Label5}) {
    tool->SetBackColor(kIdleMark);
  }
  Command17.SetBackColor(kIdleMainMark);
  Command17.SetEnabled(false);
}

}  // namespace shell
