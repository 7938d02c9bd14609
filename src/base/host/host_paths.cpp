#include "base/host/host_paths.h"

#include <dirent.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <memory>

#include "base/language/code_page.h"
#include "base/language/error.h"
#include "base/language/text.h"

namespace base {
namespace {

// A link counts by its own name, wherever it leads.
bool Exists(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0;
}

using Listing = std::unique_ptr<DIR, int (*)(DIR*)>;

// The names in a folder, none where there is no folder or it may not be listed. Of a disk that
// fails nobody can say how it spells a name, and a new file beside the old one would hide it.
Listing ListingOf(const std::string& folder) {
  Listing listing(opendir(folder.c_str()), closedir);
  while (!listing && errno == EINTR) listing.reset(opendir(folder.c_str()));
  if (listing) return listing;
  const int host_error = errno;
  for (const int silent : {ENOENT, ENOTDIR, EACCES, ELOOP, ENAMETOOLONG}) {
    if (host_error == silent) return listing;
  }
  const Error error(kPathAccess, Error(kPathAccess).Description() + ": " +
                                     FromUtf8(std::strerror(host_error)) + ", " +
                                     ToDeskPath(folder));
  errno = host_error;  // which the error reporter tells
  throw error;
}

// The spelling of `name` (desk text) in a folder that spells it otherwise, the first in order of
// bytes if there are several; empty when it has none.
std::string OtherSpelling(const std::string& folder, std::string_view name) {
  const Listing listing = ListingOf(folder);
  if (!listing) return {};
  std::string spelling;
  while (const dirent* entry = readdir(listing.get())) {
    if (!EqualNoCase(FromUtf8(entry->d_name), name)) continue;
    if (spelling.empty() || spelling > entry->d_name) spelling = entry->d_name;
  }
  return spelling;
}

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

// The path in UTF-8 with "/" between its names, each spelt as it comes.
std::string AsSpelt(std::string_view desk_path) {
  std::string path;
  for (const char c : ToUtf8(desk_path)) {
    if (!IsSeparator(c)) {
      path += c;
    } else if (path.empty() || path.back() != '/') {
      path += '/';
    }
  }
  if (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

}  // namespace

std::string ResolveHostPath(std::string_view desk_path) {
  if (desk_path.find('\0') != std::string_view::npos) throw Error(kPathAccess);
  std::string as_it_stands = AsSpelt(desk_path);
  if (Exists(as_it_stands)) return as_it_stands;
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
