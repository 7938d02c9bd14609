#include "support/failing_disk.h"

namespace test {
namespace {

class FailingFile : public base::File {
 public:
  FailingFile(FailingDisk& disk, std::unique_ptr<base::File> file)
      : disk_(disk), file_(std::move(file)) {}
  std::int64_t Length() override { return file_->Length(); }
  base::FileIdentity Identity() override { return file_->Identity(); }
  std::string ReadAt(std::int64_t offset, std::size_t count) override {
    disk_.Count();
    return file_->ReadAt(offset, count);
  }
  void Append(std::string_view bytes) override {
    try {
      disk_.Count();
    } catch (const base::Error&) {
      if (disk_.Tears()) file_->Append(bytes.substr(0, bytes.size() / 2));
      throw;
    }
    file_->Append(bytes);
  }

 private:
  FailingDisk& disk_;
  std::unique_ptr<base::File> file_;
};

}  // namespace

void FailingDisk::FailFromNow(int n, base::Error error) {
  left_ = n;
  error_ = std::move(error);
  has_failed_ = false;
  tears_ = false;
}

void FailingDisk::TearFromNow(int n, base::Error error) {
  FailFromNow(n, std::move(error));
  tears_ = true;
}

void FailingDisk::Count() {
  if (!error_ || --left_ > 0) return;
  const base::Error error = *error_;
  error_.reset();
  has_failed_ = true;
  throw error;
}

std::unique_ptr<base::File> FailingDisk::Open(const std::string& path) {
  Count();
  return std::make_unique<FailingFile>(*this, disk_.Open(path));
}

std::string FailingDisk::ReadAll(const std::string& path) {
  Count();
  return disk_.ReadAll(path);
}

void FailingDisk::Replace(const std::string& path, std::string_view bytes) {
  Count();
  disk_.Replace(path, bytes);
}

void FailingDisk::ReplaceKept(const std::string& path, std::string_view bytes,
                              const std::string& kept) {
  Count();
  disk_.ReplaceKept(path, bytes, kept);
}

bool FailingDisk::Create(const std::string& path, std::string_view bytes) {
  Count();
  return disk_.Create(path, bytes);
}

void FailingDisk::Remove(const std::string& path) {
  Count();
  disk_.Remove(path);
}

std::optional<base::FileIdentity> FailingDisk::Identify(const std::string& path) {
  Count();
  return disk_.Identify(path);
}

void FailingDisk::Rename(const std::string& path, const std::string& new_path) {
  Count();
  disk_.Rename(path, new_path);
}

void FailingDisk::MakeFolder(const std::string& path) {
  Count();
  disk_.MakeFolder(path);
}

void FailingDisk::Keep(const std::string& path, const std::string& second_path) {
  Count();
  disk_.Keep(path, second_path);
}

}  // namespace test
