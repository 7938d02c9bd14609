#pragma once

#include <string>

#include "main/workplace.h"

namespace main_window {

// Stands before every change of the open database: asks the person what the state of the file
// demands, so that nobody's draws are written over.
class Guard {
 public:
  explicit Guard(Workplace place) : place_(place) {}

  // True when the change may be written now. Otherwise the person has been told, and nothing is
  // written: the database is another desk's, cannot be locked, or was changed from outside. Where
  // the person so chooses it is loaded again; what stands in the boxes stays. Errors of the disk
  // are thrown.
  bool MayWrite();
  // The same while the window closes: nothing is loaded again, and where the person leaves the file
  // alone, keeps_own_rows says so.
  bool MayWriteAtClose();
  // Rewrites the file, and tells it where somebody else wrote to it in between.
  void Rewrite(const std::string& bytes);

 private:
  bool IsMine();
  bool AskToWriteAgain();
  bool AskToLoadAgain();
  void LoadAgain();

  Workplace place_;
};

}  // namespace main_window
