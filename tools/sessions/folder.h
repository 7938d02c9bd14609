#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sessions {

// The program folder of a run on the disk, and beside it what is to be in it: every change that was
// right is noted, so that every other one comes to light.
class Folder {
 public:
  // Empties the folder.
  explicit Folder(std::filesystem::path root);

  const std::filesystem::path& Root() const { return root_; }
  // A path of the desk as a name in this folder: "DataBases/A.dat".
  std::string NameOf(const std::string& desk_path) const;
  // What stands on the disk; nothing where no file is.
  std::optional<std::string> OnDisk(const std::string& name) const;

  // What is to stand there from now on.
  void Expect(const std::string& name, std::string bytes);
  void ExpectNone(const std::string& name) { expected_.erase(name); }
  // A file that was moved a moment ago may have grown by what the desk appended.
  void ExpectMore();
  // Everything that ever stood there, the newest last: an open file goes on reading what another
  // one has taken the place of.
  const std::vector<std::string>& Past(const std::string& name) { return past_[name]; }
  // Each file that is not as it is to be, as a person reads it. What was made meanwhile beside the
  // databases is expected from then on.
  std::vector<std::string> Differences();

  // What another program does.
  void Write(const std::string& name, std::string_view bytes);       // in place
  void PutInPlace(const std::string& name, std::string_view bytes);  // another file of that name
  void Touch(const std::string& name);
  void Remove(const std::string& name);
  void Move(const std::string& name, const std::string& new_name);

 private:
  std::vector<std::string> NamesOnDisk() const;

  std::filesystem::path root_;
  std::map<std::string, std::string> expected_;
  std::map<std::string, std::vector<std::string>> past_;
};

}  // namespace sessions
