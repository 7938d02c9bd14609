#pragma once

#include <array>
#include <string>

#include "base/controls/group.h"
#include "base/controls/simple_controls.h"
#include "base/windows/desktop.h"
#include "store/session.h"

namespace scan {

inline constexpr int kLastColumn = 52;

// The board of the ball selector: a column for each ball, ten rows of marks.
class FrmDropDown : public base::Form {
 public:
  FrmDropDown();

  base::Button CmdScan{*this, "CmdScan"};
  base::Label LblRecNum{*this, "LblRecNum"};
  base::TextBox txtRecNum{*this, "txtRecNum"};
  base::Group<base::Label> Label1{*this, "Label1", 0, kLastColumn};
  base::Group<base::Label> Label2{*this, "Label2", 0, kLastColumn};
  base::Group<base::Label> Label3{*this, "Label3", 0, kLastColumn};
  base::Group<base::Label> Label4{*this, "Label4", 0, kLastColumn};
  base::Group<base::Label> Label15{*this, "Label15", 0, kLastColumn};
  base::Group<base::Label> Label16{*this, "Label16", 0, kLastColumn};
  base::Group<base::Label> Label7{*this, "Label7", 0, kLastColumn};
  base::Group<base::Label> Label8{*this, "Label8", 0, kLastColumn};
  base::Group<base::Label> Label9{*this, "Label9", 0, kLastColumn};
  base::Group<base::Label> Label11{*this, "Label11", 0, kLastColumn};
  base::Timer Timer1{*this, "Timer1"};

  // The rows from top to bottom.
  static constexpr int kRows = 10;
  base::Group<base::Label>& Row(int row);
};

// Replays the draw file on the board.
class BallSelector {
 public:
  BallSelector(FrmDropDown& window, store::Session& session) : window_(window), session_(session) {}

  void Wire();
  void CmdScan_Click();
  // Drops a ball into its column; the column's older marks move one row down. Error 340 for a ball
  // without a column.
  void MoveBallsDown(const std::string& ball);

 private:
  void ClearTopRow();

  FrmDropDown& window_;
  store::Session& session_;
};

}  // namespace scan
