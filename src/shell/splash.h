#pragma once

#include <functional>

#include "base/windows/desktop.h"
#include "shell/small_windows.h"
#include "shell/version.h"
#include "store/session.h"

namespace shell {

// The start: the splash window reads the preferences, and its button opens the frame.
class Splash {
 public:
  Splash(FrmSplash& window, base::Desktop& desktop, store::Session& session, Version version,
         std::function<void()> show_frame)
      : window_(window),
        desktop_(desktop),
        session_(session),
        version_(version),
        show_frame_(std::move(show_frame)) {}

  void Wire();
  void Form_Load();
  void CmdContinue_Click();

 private:
  FrmSplash& window_;
  base::Desktop& desktop_;
  store::Session& session_;
  Version version_;
  std::function<void()> show_frame_;
};

}  // namespace shell
