#include "sessions/folder.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace sessions {

namespace fs = std::filesystem;

Folder::Folder(fs::path root) : root_(std::move(root)) {
  fs::remove_all(root_);
  fs::create_directories(root_ / "DataBases");
}

std::string Folder::NameOf(const std::string& desk_path) const {
  std::string path = desk_path;
  std::replace(path.begin(), path.end(), '\\', '/');
  return fs::path(path).lexically_relative(root_).string();
}

std::optional<std::string> Folder::OnDisk(const std::string& name) const {
  std::ifstream file(root_ / name, std::ios::binary);
  if (!file) return std::nullopt;
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

void Folder::Expect(const std::string& name, std::string bytes) {
  past_[name].push_back(bytes);
  expected_[name] = std::move(bytes);
}

void Folder::ExpectMore() {
  for (auto& [name, bytes] : expected_) {
    const std::optional<std::string> there = OnDisk(name);
    if (name.starts_with("DataBases/Moved ") && there && there->starts_with(bytes)) bytes = *there;
  }
}

std::vector<std::string> Folder::NamesOnDisk() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::recursive_directory_iterator(root_)) {
    if (!entry.is_regular_file() || entry.path().extension() == ".lock") continue;
    names.push_back(entry.path().lexically_relative(root_).string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<std::string> Folder::Differences() {
  std::vector<std::string> told;
  const std::vector<std::string> names = NamesOnDisk();
  for (const auto& [name, bytes] : expected_) {
    const std::optional<std::string> there = OnDisk(name);
    if (!there) {
      told.push_back(name + " is gone");
    } else if (*there != bytes) {
      told.push_back(name + " holds other bytes than were written to it");
    }
  }
  for (const std::string& name : names) {
    if (expected_.contains(name)) continue;
    if (name.find('~') != std::string::npos) told.push_back(name + " was left behind");
    if (name.starts_with("DataBases/Earlier/")) Expect(name, *OnDisk(name));
  }
  return told;
}

void Folder::Write(const std::string& name, std::string_view bytes) {
  std::ofstream(root_ / name, std::ios::binary) << bytes;
  Expect(name, std::string(bytes));
}

void Folder::PutInPlace(const std::string& name, std::string_view bytes) {
  const fs::path beside = root_ / "DataBases" / "beside.tmp";
  std::ofstream(beside, std::ios::binary) << bytes;
  fs::rename(beside, root_ / name);
  Expect(name, std::string(bytes));
}

void Folder::Touch(const std::string& name) {
  fs::last_write_time(root_ / name, fs::file_time_type::clock::now());
}

void Folder::Remove(const std::string& name) {
  fs::remove(root_ / name);
  ExpectNone(name);
}

void Folder::Move(const std::string& name, const std::string& new_name) {
  fs::rename(root_ / name, root_ / new_name);
  Expect(new_name, expected_[name]);
  ExpectNone(name);
}

}  // namespace sessions
