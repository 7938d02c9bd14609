#include <ostream>

#include "base/host/host_file_system.h"
#include "base/host/host_paths.h"
#include "base/host/profile.h"
#include "tools/wheels/commands.h"
#include "tools/wheels/design.h"
#include "tools/wheels/library_check.h"
#include "tools/wheels/program.h"

namespace wheels::tool {

int Check(const Arguments& arguments, std::ostream& out, std::ostream& err) {
  if (arguments.size() != 1) throw WrongInput("check takes FILE");
  base::HostFileSystem files;
  const base::Profile library(files.ReadAll(base::ToDeskPath(arguments[0])));
  const LibraryCheck result = CheckLibrary(library);
  for (const std::string& problem : result.problems) err << problem << '\n';
  out << result.wheels << " wheels, " << result.lines
      << " lines: " << (result.problems.empty() ? "all proved" : "not proved") << '\n';
  return result.problems.empty() ? kDone : kFlawed;
}

}  // namespace wheels::tool
