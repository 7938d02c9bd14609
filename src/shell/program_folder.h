#pragma once

#include <string>

namespace shell {

// The folder that holds the user's databases, wheels and reports; host paths throughout.
//
// A folder of the executable in which DataBases stands is a portable copy and is used as it is.
// Otherwise it is the user's own folder, which is filled with what is delivered when it has no
// DataBases yet. Throws std::filesystem::filesystem_error when that folder cannot be made.
std::string ChooseProgramFolder(const std::string& executable_folder,
                                const std::string& delivered_folder,
                                const std::string& user_data_folder);

// Copies every file below `from` that `to` does not have. A file that is there stays as it is, and
// no file is ever seen half copied. Nothing happens when `from` is no folder.
void DeliverFiles(const std::string& from, const std::string& to);

}  // namespace shell
