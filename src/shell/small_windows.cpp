#include "shell/small_windows.h"

namespace shell {

FrmSplash::FrmSplash() : Form("frmSplash", base::FormRole::kDialog) {
  SetCaption("Quorbit Number Desk");
  ChkNoSplash.SetCaption("Do not show splash screen again");
  CmdContinue.SetCaption("Continue");
}

FrmOptions::FrmOptions() : Form("FrmOptions", base::FormRole::kDialog) {
  SetCaption("Options");
  CheckSplash.SetCaption("Load splash screen on start");
  LblDateFormat.SetCaption("Please Select you date format below");
  OptDateFormat(0).SetCaption("MM/DD/YYYY (USA)");
  OptDateFormat(1).SetCaption("DD/MM/YYYY (UK)");
  OptDateFormat.Each([](base::Option& option) { option.SetGroup("date format"); });
  ChkMsgBox.SetCaption("Show tips");
  Label3.SetCaption("Apply");
}

FrmAbout::FrmAbout() : Form("frmAbout", base::FormRole::kDialog) {
  SetCaption("About Quorbit Number Desk");
  lblTitle.SetCaption("Quorbit Number Desk");
  lblDescription.SetCaption(
      "Every past draw of a lottery on one desk: what is frequent, what is rare, and what the "
      "figures say today.");
  cmdOK.SetCaption("OK");
  cmdSysInfo.SetCaption("System Info...");
}

}  // namespace shell
