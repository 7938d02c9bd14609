#include <ostream>

#include "base/host/host_file_system.h"
#include "base/host/host_paths.h"
#include "tools/wheels/commands.h"
#include "tools/wheels/design.h"
#include "tools/wheels/library_text.h"
#include "tools/wheels/program.h"

namespace wheels::tool {
namespace {

// False, with a message for each flaw, when the design cannot be delivered.
bool IsSound(const Design& design, const std::string& name, std::ostream& err) {
  std::vector<std::string> flaws = Flaws(design);
  if (design.lines.size() > kMostLines) {
    flaws.push_back("more lines than " + std::to_string(kMostLines));
  }
  for (const std::string& flaw : flaws) err << name << ": " << flaw << '\n';
  return flaws.empty();
}

}  // namespace

int Build(const Arguments& arguments, std::ostream& out, std::ostream& err) {
  if (arguments.size() != 2) throw WrongInput("build takes DESIGNS-FOLDER OUT-FILE");
  base::HostFileSystem files;
  const std::string folder = base::ToDeskPath(arguments[0] + "/");
  std::vector<Design> designs;
  std::size_t lines = 0;
  bool all_sound = true;
  for (const std::string& name : files.List(folder, ".txt")) {
    designs.push_back(ReadDesign(name, files.ReadAll(folder + name)));
    all_sound = IsSound(designs.back(), name, err) && all_sound;
    lines += designs.back().lines.size();
  }
  if (designs.empty()) throw WrongInput("there are no designs in " + arguments[0]);
  if (!all_sound) return kFlawed;
  files.Replace(base::ToDeskPath(arguments[1]), LibraryText(designs));
  out << designs.size() << " wheels, " << lines << " lines\n";
  return kDone;
}

}  // namespace wheels::tool
