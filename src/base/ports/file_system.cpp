#include "base/ports/file_system.h"

#include "base/language/error.h"

namespace base {

bool NoFiles::FileExists(const std::string&) { return false; }
bool NoFiles::FolderExists(const std::string&) { return false; }
bool NoFiles::IsTaken(const std::string&) { return false; }
std::optional<FileIdentity> NoFiles::Identify(const std::string&) { return std::nullopt; }
std::unique_ptr<File> NoFiles::Open(const std::string&) { throw Error(kPathNotFound); }
std::string NoFiles::ReadAll(const std::string&) { throw Error(kFileNotFound); }
void NoFiles::Replace(const std::string&, std::string_view) { throw Error(kPathNotFound); }
void NoFiles::ReplaceKept(const std::string&, std::string_view, const std::string&) {
  throw Error(kPathNotFound);
}
bool NoFiles::Create(const std::string&, std::string_view) { throw Error(kPathNotFound); }
void NoFiles::Remove(const std::string&) { throw Error(kFileNotFound); }
void NoFiles::Rename(const std::string&, const std::string&) { throw Error(kFileNotFound); }
void NoFiles::MakeFolder(const std::string&) { throw Error(kPathNotFound); }
void NoFiles::Keep(const std::string&, const std::string&) { throw Error(kFileNotFound); }
LockAttempt NoFiles::TryLock(const std::string&) { return {}; }
std::vector<std::string> NoFiles::List(const std::string&, const std::string&) { return {}; }

}  // namespace base
