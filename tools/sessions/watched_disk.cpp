#include "sessions/watched_disk.h"

#include <utility>

namespace sessions {
namespace {

class WatchedFile : public base::File {
 public:
  WatchedFile(WatchedDisk& disk, std::string path, std::unique_ptr<base::File> file)
      : disk_(disk), path_(std::move(path)), file_(std::move(file)) {}

  std::int64_t Length() override { return file_->Length(); }
  base::FileIdentity Identity() override { return file_->Identity(); }
  std::string ReadAt(std::int64_t offset, std::size_t count) override {
    disk_.Count();
    return file_->ReadAt(offset, count);
  }
  void Append(std::string_view bytes) override {
    WatchedDisk::Watcher& eyes = disk_.Eyes();
    eyes.BeforeWrite(path_, true);
    disk_.Count();
    WriteSeen write{.path = path_, .before = eyes.BytesOf(path_), .is_append = true};
    file_->Append(bytes);
    write.after = eyes.BytesOf(path_);
    eyes.Wrote(write);
  }

 private:
  WatchedDisk& disk_;
  std::string path_;
  std::unique_ptr<base::File> file_;
};

}  // namespace

void WatchedDisk::Count() {
  if (error_ == 0 || --left_ > 0) return;
  ++failures_;
  throw base::Error(std::exchange(error_, 0));
}

std::optional<base::FileIdentity> WatchedDisk::Identify(const std::string& path) {
  Count();
  return disk_.Identify(path);
}

std::unique_ptr<base::File> WatchedDisk::Open(const std::string& path) {
  Count();
  const bool was_there = disk_.FileExists(path);
  auto file = std::make_unique<WatchedFile>(*this, path, disk_.Open(path));
  watcher_.Opened(path, !was_there);
  return file;
}

std::string WatchedDisk::ReadAll(const std::string& path) {
  Count();
  return disk_.ReadAll(path);
}

void WatchedDisk::Write(const std::string& path, const std::function<void()>& write) {
  Count();
  WriteSeen seen{.path = path, .before = watcher_.BytesOf(path)};
  write();
  seen.after = watcher_.BytesOf(path);
  watcher_.Wrote(seen);
}

void WatchedDisk::Replace(const std::string& path, std::string_view bytes) {
  Write(path, [&] { disk_.Replace(path, bytes); });
}

void WatchedDisk::ReplaceKept(const std::string& path, std::string_view bytes,
                              const std::string& kept) {
  watcher_.BeforeWrite(path, false);
  Write(path, [&] { disk_.ReplaceKept(path, bytes, kept); });
}

bool WatchedDisk::Create(const std::string& path, std::string_view bytes) {
  bool created = false;
  Write(path, [&] { created = disk_.Create(path, bytes); });
  return created;
}

void WatchedDisk::Remove(const std::string& path) {
  Count();
  const std::string bytes = watcher_.BytesOf(path).value_or("");
  disk_.Remove(path);
  watcher_.Removed(path, bytes);
}

void WatchedDisk::Rename(const std::string& path, const std::string& new_path) {
  Count();
  disk_.Rename(path, new_path);
  watcher_.Renamed(path, new_path);
}

void WatchedDisk::MakeFolder(const std::string& path) {
  Count();
  disk_.MakeFolder(path);
}

void WatchedDisk::Keep(const std::string& path, const std::string& second_path) {
  watcher_.BeforeWrite(path, false);
  Count();
  disk_.Keep(path, second_path);
  watcher_.Kept(path, second_path);
}

}  // namespace sessions
