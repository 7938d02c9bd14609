#pragma once

#include "base/windows/desktop.h"
#include "shell/small_windows.h"
#include "shell/version.h"
#include "store/session.h"

// The event procedures of the small windows.

namespace shell {

class Options {
 public:
  Options(FrmOptions& window, base::Desktop& desktop, store::Session& session)
      : window_(window), desktop_(desktop), session_(session) {}

  void Wire();
  void Form_Load();
  void ChkMsgBox_Click();
  void Label3_Click();  // Apply

 private:
  void ChooseDateFormat();
  void SaveDateFormat();
  void TellSplashChange();

  FrmOptions& window_;
  base::Desktop& desktop_;
  store::Session& session_;
  int splash_before_ = 0;
};

class About {
 public:
  About(FrmAbout& window, base::Desktop& desktop) : window_(window), desktop_(desktop) {}

  void Wire(const Version& version);
  void cmdSysInfo_Click();

 private:
  FrmAbout& window_;
  base::Desktop& desktop_;
};

}  // namespace shell
