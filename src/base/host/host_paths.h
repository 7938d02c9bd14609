#pragma once

#include <string>
#include <string_view>

namespace base {

// The host's path (UTF-8) for a path as the desk writes it (Windows-1252, either separator). Each
// name is taken as it is spelt if the host has it so, otherwise without regard to case, otherwise
// as it is spelt. Error 75 with the host's own words where the disk fails.
std::string ResolveHostPath(std::string_view desk_path);

// The other way: a host's path as text of the desk.
std::string ToDeskPath(std::string_view host_path);

}  // namespace base
