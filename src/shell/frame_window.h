#pragma once

#include "base/controls/form.h"
#include "base/controls/group.h"
#include "base/controls/simple_controls.h"

namespace shell {

// The frame that holds the working windows: menus, the side bar's tool labels and the status text.
class FrmMain : public base::Form {
 public:
  FrmMain();

  base::MenuItem mnuWindow{*this, "mnuWindow"};
  base::MenuItem MnuMainWindow{*this, "MnuMainWindow", &mnuWindow};
  base::MenuItem MnuStatsWin{*this, "MnuStatsWin", &mnuWindow};
  base::MenuItem MnuSortedWindow{*this, "MnuSortedWindow", &mnuWindow};
  base::MenuItem MnuPrintWindow{*this, "MnuPrintWindow", &mnuWindow};
  base::MenuItem MnuDatabasewindow{*this, "MnuDatabasewindow", &mnuWindow};
  base::MenuItem MnuNumberSelector{*this, "MnuNumberSelector", &mnuWindow};
  base::MenuItem MnuLiveUpdate{*this, "MnuLiveUpdate", &mnuWindow};
  base::MenuItem MnuImportDraw{*this, "MnuImportDraw", &mnuWindow};

  base::MenuItem MnuSets{*this, "MnuSets"};
  base::MenuItem MnuOptions{*this, "MnuOptions", &MnuSets};

  base::MenuItem MnuPlugins{*this, "MnuPlugins"};
  base::Group<base::MenuItem> MnuSepPlugs1{*this, "MnuSepPlugs1", 0, 0, &MnuPlugins};

  base::MenuItem MnuGraph{*this, "MnuGraph"};
  base::MenuItem MnuHgight{*this, "MnuHgight", &MnuGraph};
  base::MenuItem MnuDisplay{*this, "MnuDisplay", &MnuGraph};
  base::MenuItem MnuBlue{*this, "MnuBlue", &MnuDisplay};
  base::MenuItem MnuRWC{*this, "MnuRWC", &MnuDisplay};
  base::MenuItem MnuHC{*this, "MnuHC", &MnuDisplay};
  base::MenuItem MnuNume{*this, "MnuNume", &MnuGraph};
  base::MenuItem MnuStdDev{*this, "MnuStdDev", &MnuNume};
  base::MenuItem MnuLoad{*this, "MnuLoad", &MnuGraph};
  base::MenuItem MnuWheel{*this, "MnuWheel", &MnuGraph};

  base::MenuItem mnuHelp{*this, "mnuHelp"};
  base::MenuItem mnuHelpContents{*this, "mnuHelpContents", &mnuHelp};
  base::MenuItem mnuHelpSearchForHelpOn{*this, "mnuHelpSearchForHelpOn", &mnuHelp};
  base::MenuItem MnuForum{*this, "MnuForum", &mnuHelp};
  base::MenuItem mnuHelpAbout{*this, "mnuHelpAbout", &mnuHelp};

  base::Button Command17{*this, "Command17"};  // brings the main window to the front
  base::Label Label1{*this, "Label1"};
  base::Label Label2{*this, "Label2"};
  base::Label Label3{*this, "Label3"};
  base::Label Label4{*this, "Label4"};
  base::Label Label5{*this, "Label5"};
  base::Label lblStatus{*this, "lblStatus"};
  base::Panel PicTile{*this, "PicTile"};  // the ground behind the working windows
};

}  // namespace shell
