#pragma once

#include <string>

#include "main/browsing.h"
#include "main/guard.h"
#include "main/workplace.h"

namespace main_window {

// An edit of one draw, on its way to the file.
struct Edit {
  std::string bytes;  // of the whole file
  int place = 0;
  std::string date;
};

// Replacing the database file: after an edit from the draw lines, at the close of the window from
// the draw table. The bytes are made in memory and put in the old file's place in one step, so that
// at no moment a draw is on no disk.
class WorkingCopy {
 public:
  WorkingCopy(Workplace place, Browsing& browsing)
      : place_(place), browsing_(browsing), guard_(place) {}

  // Replaces the file by an edited one; true when it is what the file holds now. Otherwise the
  // person was told why, and the file is as it was. Yields, and finds nothing of what happens then.
  bool DoDataBase(const Edit& edit);
  // At the close: replaces the file by the rows of the table if draws were changed. An error goes
  // to the reporter, with the old file whole.
  void RewriteFromTable();
  // The same while the window stays open: what waits in the table goes to the file.
  void StorePending();

 private:
  void SetTempAside();
  void GoThroughLines();
  bool Write(const Edit& edit);
  void ShowEdited();
  void GoThroughRows();
  void WriteRows(const std::string& bytes);
  void KeepOwnRows(const std::string& bytes);
  void ShowStored();
  void TellNotWhole();

  Workplace place_;
  Browsing& browsing_;
  Guard guard_;
};

}  // namespace main_window
