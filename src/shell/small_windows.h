#pragma once

#include "base/controls/form.h"
#include "base/controls/group.h"
#include "base/controls/simple_controls.h"

namespace shell {

// The welcome at the start of the program.
class FrmSplash : public base::Form {
 public:
  FrmSplash();
  base::Label lblVersion{*this, "lblVersion"};
  base::Tick ChkNoSplash{*this, "ChkNoSplash"};
  base::Button CmdContinue{*this, "CmdContinue"};
};

// The user's preferences.
class FrmOptions : public base::Form {
 public:
  FrmOptions();
  base::Tick CheckSplash{*this, "CheckSplash"};
  base::Label LblDateFormat{*this, "LblDateFormat"};
  base::Group<base::Option> OptDateFormat{*this, "OptDateFormat", 0, 1};
  base::Tick ChkMsgBox{*this, "ChkMsgBox"};
  base::Label Label3{*this, "Label3"};  // Apply
};

class FrmAbout : public base::Form {
 public:
  FrmAbout();
  base::Label lblTitle{*this, "lblTitle"};
  base::Label lblVersion{*this, "lblVersion"};
  base::Label lblDescription{*this, "lblDescription"};
  base::Button cmdOK{*this, "cmdOK"};
  base::Button cmdSysInfo{*this, "cmdSysInfo"};
};

}  // namespace shell
