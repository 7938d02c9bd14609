#pragma once

#include <string>

#include "base/windows/desktop.h"
#include "main/workplace.h"
#include "scan/graph_options.h"
#include "shell/frame_window.h"
#include "store/session.h"

namespace shell {

// The frame's event procedures: placement, menus, tool labels, help.
class Frame {
 public:
  // The windows that the frame opens, and what it asks of the main window.
  class Windows {
   public:
    virtual ~Windows() = default;
    virtual void ShowMainWindow() = 0;
    virtual void ShowOptions() = 0;
    virtual void ShowAbout() = 0;
    // Shows the selected draw again, after the way to show it has changed. Without a main window
    // nothing happens.
    virtual void FillFromListView() = 0;
    virtual void ShowBallSelector() = 0;
    // The menu entry hands the counts of the scan over, the tool label only shows the window.
    virtual void MakeWheel() = 0;
    virtual void ShowWheelWindow() = 0;
    virtual void StandardDeviation() = 0;
    // True once the graph's choices have been filled, which the first use of them does.
    virtual bool GraphStylesFilled() = 0;
    virtual void ChooseStyle(scan::GraphOptions::Style style) = 0;
  };

  Frame(FrmMain& window, base::Desktop& desktop, store::Session& session, Windows& windows,
        base::ErrorReporter& reporter)
      : window_(window),
        desktop_(desktop),
        session_(session),
        windows_(windows),
        reporter_(reporter) {}

  void Wire();

  void MDIForm_Load();
  void MDIForm_Unload();
  // Sets the four graph ticks from the settings, and the flags from the ticks.
  void DoMenus();
  // Stores the four ticks, and sets the flags from them.
  void SaveMenus();
  void MarkMainWindow(bool in_use);
  void MarkWheelWindow(bool in_use);
  void SetHelpFile(std::string path) { help_file_ = std::move(path); }

 private:
  void RestorePlacement();
  void StorePlacement();
  void CopyTicks();
  void MnuHgight_Click();
  void StyleMenu_Click(base::MenuItem& item, scan::GraphOptions::Style style);
  void ShowHelp(base::HelpPage page);

  FrmMain& window_;
  base::Desktop& desktop_;
  store::Session& session_;
  Windows& windows_;
  base::ErrorReporter& reporter_;
  std::string help_file_;
};

}  // namespace shell
