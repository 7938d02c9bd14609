#include "base/host/host_paths.h"

#include <dirent.h>
#include <sys/stat.h>

#include <memory>

#include "base/language/code_page.h"
#include "base/language/text.h"

namespace base {
namespace {

bool Exists(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0;
}

// The spelling of `name` (desk text) in a folder that spells it otherwise; empty when it has none.
std::string OtherSpelling(const std::string& folder, std::string_view name) {
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.c_str()), closedir);
  if (!listing) return {};
  while (const dirent* entry = readdir(listing.get())) {
    if (EqualNoCase(FromUtf8(entry->d_name), name)) return entry->d_name;
  }
  return {};
}

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

}  // namespace

std::string ResolveHostPath(std::string_view desk_path) {
  const bool from_root = !desk_path.empty() && IsSeparator(desk_path.front());
  std::string path(from_root ? 1 : 0, '/');
  std::size_t start = 0;
  while (start < desk_path.size()) {
    std::size_t end = start;
    while (end < desk_path.size() && !IsSeparator(desk_path[end])) ++end;
    const std::string_view name = desk_path.substr(start, end - start);
    start = end + 1;
    if (name.empty()) continue;
    if (!path.empty() && path.back() != '/') path += '/';
    const std::string as_spelt = ToUtf8(name);
    if (!Exists(path + as_spelt)) {
      const std::string other = OtherSpelling(path.empty() ? "." : path, name);
      path += other.empty() ? as_spelt : other;
    } else {
      path += as_spelt;
    }
  }
  return path;
}

std::string ToDeskPath(std::string_view host_path) { return FromUtf8(host_path); }

}  // namespace base
