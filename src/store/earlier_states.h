#pragma once

#include <string>
#include <vector>

#include "base/language/dates.h"
#include "base/ports/file_system.h"

namespace store {

// Earlier states of a database: before a file is rewritten it gets a second name in the folder
// Earlier beside it, "NAME 2005-12-05 14-30-00.dat", a second one of the same second with " (2)".

// The name without folder and ".dat".
std::string DatabaseName(const std::string& path);
// "NAME WORDS 2005-12-05 14-30-00", beside the file or in a folder there, as a path that is free.
std::string FreeName(base::FileSystem& files, const std::string& path, const std::string& words,
                     const base::DateTime& now);

std::string FolderOfStates(const std::string& path);
// The path of a new state. Its folder may not be there yet.
std::string FreeState(base::FileSystem& files, const std::string& path, const base::DateTime& now);
// Keeps the file that a path leads to now; its new path. Throws where the disk refuses.
std::string KeepEarlierState(base::FileSystem& files, const std::string& path,
                             const base::DateTime& now);
// The names of the states kept of a database, the newest first.
std::vector<std::string> EarlierStates(base::FileSystem& files, const std::string& path);
std::string PathOfState(const std::string& path, const std::string& name);
// Those of the names, newest first, that are of no more use: neither among the last 20 nor the
// first of one of the last 30 days.
std::vector<std::string> Outlived(const std::vector<std::string>& names, base::Date today);
// Removes what is of no more use. What cannot be removed stays.
void PruneEarlierStates(base::FileSystem& files, const std::string& path, base::Date today);

}  // namespace store
