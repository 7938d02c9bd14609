#include "shell/program_folder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace shell {
namespace {

namespace fs = std::filesystem;

class ProgramFolder : public ::testing::Test {
 protected:
  ProgramFolder() {
    std::string pattern = (fs::temp_directory_path() / "program-folder-XXXXXX").string();
    root_ = ::mkdtemp(pattern.data());
    Write(Delivered() / "DataBases" / "UK.dat", "draws");
    Write(Delivered() / "QND.HLP", "help");
    fs::create_directories(Executable());
  }
  ~ProgramFolder() override { fs::remove_all(root_); }

  fs::path Delivered() const { return root_ / "share"; }
  fs::path Executable() const { return root_ / "bin"; }
  fs::path User() const { return root_ / "home" / "desk"; }

  static void Write(const fs::path& path, const std::string& bytes) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
  }
  static std::string Read(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::string Choose() const {
    return ChooseProgramFolder(Executable().string(), Delivered().string(), User().string());
  }

  fs::path root_;
};

TEST_F(ProgramFolder, IsTheExecutablesWhereDataBasesStands) {
  fs::create_directories(Executable() / "DataBases");
  EXPECT_EQ(Choose(), Executable().string());
  EXPECT_FALSE(fs::exists(User()));
}

TEST_F(ProgramFolder, IsFilledAtTheFirstStart) {
  EXPECT_EQ(Choose(), User().string());
  EXPECT_EQ(Read(User() / "DataBases" / "UK.dat"), "draws");
  EXPECT_EQ(Read(User() / "QND.HLP"), "help");
  EXPECT_FALSE(fs::exists(User() / "DataBases.part"));
}

TEST_F(ProgramFolder, BringsNoDeletedDatabaseBack) {
  Choose();
  fs::remove(User() / "DataBases" / "UK.dat");
  Choose();
  EXPECT_FALSE(fs::exists(User() / "DataBases" / "UK.dat"));
}

TEST_F(ProgramFolder, GoesOnAfterAFillingThatWasCutOff) {
  Write(User() / "DataBases.part" / "UK.dat.part", "dr");
  Choose();
  EXPECT_EQ(Read(User() / "DataBases" / "UK.dat"), "draws");
}

TEST_F(ProgramFolder, IsMadeEvenWithNothingToDeliver) {
  fs::remove_all(Delivered());
  EXPECT_EQ(Choose(), User().string());
  EXPECT_TRUE(fs::is_directory(User()));
}

TEST_F(ProgramFolder, DeliveryNeverOverwrites) {
  Write(User() / "DataBases" / "UK.dat", "mine");
  DeliverFiles(Delivered().string(), User().string());
  EXPECT_EQ(Read(User() / "DataBases" / "UK.dat"), "mine");
  EXPECT_EQ(Read(User() / "QND.HLP"), "help");
}

TEST_F(ProgramFolder, DeliveredFilesCanBeWritten) {
  fs::permissions(Delivered() / "DataBases" / "UK.dat", fs::perms::owner_read);
  Choose();
  const fs::perms mode = fs::status(User() / "DataBases" / "UK.dat").permissions();
  EXPECT_NE(mode & fs::perms::owner_write, fs::perms::none);
}

}  // namespace
}  // namespace shell
