#include "shell/program_folder.h"

#include <filesystem>

namespace shell {
namespace {

namespace fs = std::filesystem;

constexpr const char* kDataBases = "DataBases";
constexpr const char* kPartial = ".part";

// Beside its place first, so that a kill leaves no half file under the real name.
void CopyWhole(const fs::path& from, const fs::path& to) {
  fs::path partial = to;
  partial += kPartial;
  fs::copy_file(from, partial, fs::copy_options::overwrite_existing);
  fs::permissions(partial, fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::add);
  fs::rename(partial, to);
}

}  // namespace

void DeliverFiles(const std::string& from, const std::string& to) {
  if (!fs::is_directory(from)) return;
  fs::create_directories(to);
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(from)) {
    const fs::path target = fs::path(to) / fs::relative(entry.path(), from);
    if (entry.is_directory()) {
      fs::create_directories(target);
    } else if (!fs::exists(target)) {
      CopyWhole(entry.path(), target);
    }
  }
}

std::string ChooseProgramFolder(const std::string& executable_folder,
                                const std::string& delivered_folder,
                                const std::string& user_data_folder) {
  if (fs::is_directory(fs::path(executable_folder) / kDataBases)) return executable_folder;
  const fs::path user = user_data_folder;
  fs::create_directories(user);
  if (fs::is_directory(user / kDataBases) || !fs::is_directory(delivered_folder)) {
    return user_data_folder;
  }
  // DataBases comes into being whole: it is the sign that the folder has been filled.
  const fs::path delivered = delivered_folder;
  const fs::path partial = user / (std::string(kDataBases) + kPartial);
  DeliverFiles((delivered / kDataBases).string(), partial.string());
  for (const fs::directory_entry& entry : fs::directory_iterator(delivered)) {
    const fs::path target = user / entry.path().filename();
    if (entry.path().filename() == kDataBases) continue;
    if (entry.is_directory()) {
      DeliverFiles(entry.path().string(), target.string());
    } else if (!fs::exists(target)) {
      CopyWhole(entry.path(), target);
    }
  }
  if (fs::is_directory(partial)) fs::rename(partial, user / kDataBases);
  return user_data_folder;
}

}  // namespace shell
