#include "script/session_folders.h"

#include <stdlib.h>

#include "script/wrong_script.h"

namespace script {
namespace fs = std::filesystem;
namespace {

// Copies a folder so that its owner may write every file, which the delivered ones may not allow.
void CopyWritable(const fs::path& from, const fs::path& to) {
  fs::copy(from, to, fs::copy_options::recursive);
  for (const auto& entry : fs::recursive_directory_iterator(to)) {
    fs::permissions(entry, fs::perms::owner_write, fs::perm_options::add);
  }
}

}  // namespace

fs::path DeliveredFolder() {
  std::error_code unknown;
  const fs::path program = fs::read_symlink("/proc/self/exe", unknown);
  const fs::path beside = program.parent_path() / ".." / "share" / "number-desk";
  if (!unknown && fs::is_directory(beside / "DataBases")) return beside.lexically_normal();
  return DESK_DATA_DIR;
}

SessionFolders::SessionFolders(const std::string& program_folder,
                               const std::string& settings_folder) {
  try {
    Prepare(program_folder, settings_folder);
  } catch (const fs::filesystem_error& error) {
    RemoveTemporary();
    throw WrongScript(error.what());
  } catch (...) {
    RemoveTemporary();
    throw;
  }
}

SessionFolders::~SessionFolders() { RemoveTemporary(); }

void SessionFolders::Prepare(const std::string& program_folder,
                             const std::string& settings_folder) {
  if (program_folder.empty()) {
    program_ = Temporary("program");
    CopyWritable(DeliveredFolder(), program_);
  } else {
    if (!fs::is_directory(program_folder)) {
      throw WrongScript("the folder " + program_folder + " does not exist");
    }
    program_ = fs::canonical(program_folder);
  }
  settings_ = settings_folder.empty() ? Temporary("settings") : fs::absolute(settings_folder);
  fs::create_directories(settings_);
}

fs::path SessionFolders::Temporary(const char* name) {
  if (temporary_.empty()) {
    std::string pattern = (fs::temp_directory_path() / "number-desk-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw WrongScript("no temporary folder can be made: " + pattern);
    temporary_ = pattern;
  }
  return temporary_ / name;
}

void SessionFolders::RemoveTemporary() noexcept {
  if (temporary_.empty()) return;
  std::error_code ignored;
  fs::remove_all(temporary_, ignored);
}

}  // namespace script
