#pragma once

#include <string>

#include "store/browsing.h"
#include "store/entry.h"
#include "store/workplace.h"

namespace store {

// Replacing the database file: after an edit from the draw lines by way of Temp.dat, at the close
// of the window from the draw table. Both put a complete file in the old one's place in one step,
// so that at no moment a draw is on no disk.
class WorkingCopy {
 public:
  WorkingCopy(Workplace place, Browsing& browsing, Entry& entry)
      : place_(place), browsing_(browsing), entry_(entry) {}

  // Replaces the file by Temp.dat plus the lines of List7. Records that a crash left in Temp.dat
  // stay in front. An error goes to the reporter, with the old file whole and open.
  void DoDataBase();
  // Replaces the file by the rows of ListView1 if draws were changed. Errors as above.
  void RewriteFromTable();

 private:
  std::string DataBasePath() const;
  void DropTemp();
  void AppendLines();
  void TakeRow(int row);
  void AppendRows();
  void Reopen();

  Workplace place_;
  Browsing& browsing_;
  Entry& entry_;
};

}  // namespace store
