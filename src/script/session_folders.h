#pragma once

#include <filesystem>
#include <string>

namespace script {

// The folders that a run works in. What the command line does not name is made for the run and
// removed with this object: the program folder as a copy of the delivered one, the settings empty.
class SessionFolders {
 public:
  // Empty texts ask for temporary folders. Throws WrongScript when the program folder that was
  // named does not exist or a folder cannot be made.
  SessionFolders(const std::string& program_folder, const std::string& settings_folder);
  ~SessionFolders();
  SessionFolders(const SessionFolders&) = delete;
  SessionFolders& operator=(const SessionFolders&) = delete;

  // Host paths, absolute.
  const std::filesystem::path& ProgramFolder() const { return program_; }
  const std::filesystem::path& SettingsFolder() const { return settings_; }

 private:
  void Prepare(const std::string& program_folder, const std::string& settings_folder);
  std::filesystem::path Temporary(const char* name);
  void RemoveTemporary() noexcept;

  std::filesystem::path temporary_;  // the parent of all that is made for the run
  std::filesystem::path program_;
  std::filesystem::path settings_;
};

// The folder of what is delivered beside the program, installed or in the build tree.
std::filesystem::path DeliveredFolder();

}  // namespace script
