#pragma once

#include <string>
#include <string_view>

// Whole files put in place in one step. Paths are the host's own; a link is followed, and stays.

namespace base::host {

// The new file is written beside the old one, flushed, and renamed over it. On failure the old one
// is whole.
void ReplaceFile(const std::string& path, std::string_view bytes);
// The same for a file that has a second name, or a copy of that name. Whatever stood at the path in
// the moment of the change bears that name afterwards: another program may have put its own there.
void ReplaceKeptFile(const std::string& path, std::string_view bytes, const std::string& kept);
// A file where none is; false, and nothing done, where something bears the name.
bool CreateFile(const std::string& path, std::string_view bytes);
// Gives the file a second name; a copy where the disk has no such names.
void KeepFile(const std::string& path, const std::string& second_path);

}  // namespace base::host
