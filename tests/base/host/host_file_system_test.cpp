#include "base/host/host_file_system.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "base/host/host_paths.h"
#include "base/language/error.h"
#include "support/failing_disk.h"
#include "support/ordinary_user.h"
#include "support/small_disk.h"
#include "support/system_calls.h"
#include "support/temp_folder.h"

namespace test {
namespace {

namespace fs = std::filesystem;

int ErrorOf(const std::function<void()>& act) {
  try {
    act();
  } catch (const base::Error& error) {
    return error.Number();
  }
  return 0;
}

class HostFiles : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return folder_.Path() + "\\" + name; }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_.Path())) {
      names.push_back(entry.path().filename());
    }
    return names;
  }
  TempFolder folder_;
  base::HostFileSystem files_;
};

TEST_F(HostFiles, TakeEitherSeparatorAndAnyCase) {
  fs::create_directory(folder_.Path() + "/DataBases");
  files_.Replace(Path("\\Databases/Mine.dat"), "x");
  EXPECT_TRUE(files_.FileExists(Path("/DATABASES\\mine.DAT")));
  EXPECT_EQ(fs::file_size(folder_.Path() + "/DataBases/Mine.dat"), 1u);
  EXPECT_TRUE(files_.FolderExists(Path("databases")));
  EXPECT_FALSE(files_.FileExists(Path("databases")));
}

TEST_F(HostFiles, PreferTheExactSpelling) {
  files_.Replace(Path("a"), "small");
  files_.Replace(folder_.Path() + "/A2", "");
  fs::rename(folder_.Path() + "/A2", folder_.Path() + "/A");
  EXPECT_EQ(files_.ReadAll(Path("a")), "small");
  EXPECT_EQ(files_.ReadAll(Path("A")), "");
}

TEST_F(HostFiles, TranslateNamesFromTheCodePage) {
  files_.Replace(Path("\xA3.dat"), "x");
  EXPECT_TRUE(fs::exists(folder_.Path() + "/\xC2\xA3.dat"));
}

TEST_F(HostFiles, MatchLettersOfTheCodePageInAnyCase) {
  files_.Replace(Path("\xC9t\xE9.dat"), "x");
  EXPECT_TRUE(files_.FileExists(Path("\xE9T\xC9.DAT")));
}

TEST_F(HostFiles, TakeTheFirstOfSeveralSpellings) {
  for (const char* name : {"/ab", "/aB", "/Ab"}) std::ofstream(folder_.Path() + name) << name;
  EXPECT_EQ(files_.ReadAll(Path("AB")), "/Ab");
}

TEST_F(HostFiles, KeepNamesThatTheHostLacks) {
  EXPECT_EQ(base::ResolveHostPath(Path("\\No\\/Such\\")), folder_.Path() + "/No/Such");
  EXPECT_EQ(base::ResolveHostPath(""), "");
  EXPECT_EQ(base::ResolveHostPath("\\/"), "/");
  EXPECT_EQ(base::ResolveHostPath("no such folder\\a"), "no such folder/a");
}

// A folder whose name the code page lacks is still found by what the desk makes of that name.
TEST_F(HostFiles, FindNamesThatTheCodePageLacks) {
  const std::string host_path = folder_.Path() + "/\xD0\x96";
  fs::create_directory(host_path);
  EXPECT_EQ(base::ToDeskPath(host_path), folder_.Path() + "/?");
  EXPECT_EQ(base::ResolveHostPath(base::ToDeskPath(host_path)), host_path);
}

TEST_F(HostFiles, OpeningCreatesAnEmptyFile) {
  const auto file = files_.Open(Path("new.dat"));
  EXPECT_EQ(file->Length(), 0);
  EXPECT_TRUE(files_.FileExists(Path("new.dat")));
}

TEST_F(HostFiles, AppendGoesBehindWhatIsThere) {
  files_.Replace(Path("a"), "one");
  const auto file = files_.Open(Path("a"));
  file->Append("two");
  EXPECT_EQ(file->ReadAt(0, 100), "onetwo");
  EXPECT_EQ(file->ReadAt(3, 2), "tw");
  EXPECT_EQ(file->ReadAt(50, 2), "");
}

TEST_F(HostFiles, ReplaceLeavesNothingBeside) {
  files_.Replace(Path("a"), "one");
  files_.Replace(Path("a"), "two");
  EXPECT_EQ(files_.ReadAll(Path("a")), "two");
  EXPECT_EQ(Names(), std::vector<std::string>{"a"});
}

TEST_F(HostFiles, ReplaceKeepsALinkAndTheMode) {
  files_.Replace(Path("real"), "one");
  chmod((folder_.Path() + "/real").c_str(), 0600);
  fs::create_symlink("real", folder_.Path() + "/link");
  files_.Replace(Path("link"), "two");
  EXPECT_TRUE(fs::is_symlink(folder_.Path() + "/link"));
  EXPECT_EQ(files_.ReadAll(Path("real")), "two");
  EXPECT_EQ(fs::status(folder_.Path() + "/real").permissions(), fs::perms(0600));
}

TEST_F(HostFiles, ReplaceFollowsALinkThatLeadsNowhereYet) {
  fs::create_symlink("real", folder_.Path() + "/link");
  files_.Replace(Path("link"), "one");
  EXPECT_TRUE(fs::is_symlink(folder_.Path() + "/link"));
  EXPECT_EQ(files_.ReadAll(Path("real")), "one");
}

TEST_F(HostFiles, ReplaceKeepsAModeThatNewFilesMayNotHave) {
  files_.Replace(Path("a"), "one");
  for (const mode_t mode : {0644u, 0666u}) {
    chmod((folder_.Path() + "/a").c_str(), mode);
    const mode_t mask = umask(077);
    files_.Replace(Path("a"), "two");
    umask(mask);
    EXPECT_EQ(fs::status(folder_.Path() + "/a").permissions(), fs::perms(mode));
  }
}

TEST_F(HostFiles, ReplaceTakesAwayWhatAKilledProcessLeft) {
  const std::string left = folder_.Path() + "/a.new~" + std::to_string(getpid());
  files_.Replace(Path("b"), "other");
  fs::create_symlink("b", left);
  files_.Replace(Path("a"), "one");
  EXPECT_EQ(files_.ReadAll(Path("a")), "one");
  EXPECT_EQ(files_.ReadAll(Path("b")), "other");
  EXPECT_FALSE(fs::is_symlink(left));
}

TEST_F(HostFiles, OnlyARegularFileIsAFile) {
  files_.Replace(Path("a"), "one");
  fs::create_symlink("a", folder_.Path() + "/link");
  ASSERT_EQ(mkfifo((folder_.Path() + "/pipe").c_str(), 0600), 0);
  EXPECT_TRUE(files_.FileExists(Path("link")));
  EXPECT_FALSE(files_.FileExists(Path("pipe")));
  EXPECT_EQ(ErrorOf([&] { files_.Replace(Path("pipe"), "x"); }), 75);
}

TEST_F(HostFiles, RefuseATextTooLongToHold) {
  files_.Replace(Path("a"), "");
  ASSERT_EQ(truncate((folder_.Path() + "/a").c_str(), 1LL << 31), 0);
  EXPECT_EQ(ErrorOf([&] { files_.ReadAll(Path("a")); }), 7);
}

TEST_F(HostFiles, TellTheClassicErrors) {
  fs::create_directory(folder_.Path() + "/sub");
  EXPECT_EQ(ErrorOf([&] { files_.ReadAll(Path("none")); }), 53);
  EXPECT_EQ(ErrorOf([&] { files_.Remove(Path("none")); }), 53);
  EXPECT_EQ(ErrorOf([&] { files_.ReadAll(Path("nowhere/a")); }), 76);
  EXPECT_EQ(ErrorOf([&] { files_.Remove(Path("nowhere/a")); }), 76);
  EXPECT_EQ(ErrorOf([&] { files_.ReadAll(Path("sub")); }), 75);
  EXPECT_EQ(ErrorOf([&] { files_.Remove(Path("sub")); }), 75);
  EXPECT_EQ(ErrorOf([&] { files_.Open(Path("sub")); }), 75);
  EXPECT_EQ(ErrorOf([&] { files_.Replace(Path("sub"), "x"); }), 75);
  EXPECT_EQ(ErrorOf([&] { files_.Open(Path("nowhere/a")); }), 76);
  EXPECT_EQ(ErrorOf([&] { files_.Replace(Path("nowhere/a"), "x"); }), 76);
}

TEST_F(HostFiles, CarryTheHostsOwnWords) {
  try {
    files_.Open(Path("nowhere/a"));
    FAIL();
  } catch (const base::Error& error) {
    EXPECT_EQ(error.Description(), "Path not found: No such file or directory, " +
                                       base::ToDeskPath(folder_.Path() + "/nowhere/a"));
  }
}

TEST_F(HostFiles, AMissingFileNeedsNoMoreWords) {
  try {
    files_.ReadAll(Path("none"));
    FAIL();
  } catch (const base::Error& error) {
    EXPECT_EQ(error.Description(), "File not found");
  }
}

TEST_F(HostFiles, AFileThatMayNotBeWrittenOpensForReading) {
  files_.Replace(Path("a"), "one");
  chmod((folder_.Path() + "/a").c_str(), 0400);
  AsOrdinaryUser(folder_.Path(), [&] {
    const auto file = files_.Open(Path("a"));
    EXPECT_EQ(file->ReadAt(0, 3), "one");
    EXPECT_EQ(ErrorOf([&] { file->Append("x"); }), 70);
    EXPECT_EQ(ErrorOf([&] { files_.Replace(Path("a"), "x"); }), 70);
    EXPECT_EQ(files_.ReadAll(Path("a")), "one");
  });
}

TEST_F(HostFiles, AFileThatMayNotBeReadIsTold) {
  files_.Replace(Path("a"), "one");
  chmod((folder_.Path() + "/a").c_str(), 0);
  AsOrdinaryUser(folder_.Path(), [&] {
    EXPECT_EQ(ErrorOf([&] { files_.Open(Path("a")); }), 70);
    EXPECT_EQ(ErrorOf([&] { files_.ReadAll(Path("a")); }), 70);
  });
}

TEST_F(HostFiles, AFolderThatMayNotBeWrittenTakesNoFile) {
  files_.Replace(Path("a"), "one");
  chmod(folder_.Path().c_str(), 0500);
  AsOrdinaryUser(folder_.Path(), [&] {
    EXPECT_EQ(ErrorOf([&] { files_.Open(Path("new")); }), 70);
    EXPECT_EQ(ErrorOf([&] { files_.Replace(Path("a"), "x"); }), 70);
    EXPECT_EQ(ErrorOf([&] { files_.Remove(Path("a")); }), 70);
    EXPECT_EQ(files_.ReadAll(Path("a")), "one");
  });
  chmod(folder_.Path().c_str(), 0700);
}

TEST_F(HostFiles, ListFilesByTheirEnding) {
  for (const char* name : {"b.DAT", "a.dat", "c.txt"}) files_.Replace(Path(name), "");
  fs::create_directory(folder_.Path() + "/d.dat");
  EXPECT_EQ(files_.List(folder_.Path(), ".dat"), (std::vector<std::string>{"a.dat", "b.DAT"}));
  EXPECT_TRUE(files_.List(Path("nowhere"), ".dat").empty());
}

TEST_F(HostFiles, ATornDiskKeepsHalfOfAnAppend) {
  FailingDisk disk(files_);
  const auto file = disk.Open(Path("a"));
  disk.TearFromNow(2, base::Error(base::kDiskFull));
  file->Append("whole");
  EXPECT_EQ(ErrorOf([&] { file->Append("torn"); }), 61);
  EXPECT_TRUE(disk.HasFailed());
  EXPECT_EQ(files_.ReadAll(Path("a")), "wholeto");
}

constexpr std::int64_t kSmall = 65536;

TEST_F(HostFiles, AFullDiskCutsAnAppendBack) {
  const auto file = files_.Open(Path("a"));
  file->Append(std::string(1000, 'x'));
  const int told = [&] {
    const SmallDisk disk(kSmall);
    return ErrorOf([&] { file->Append(std::string(200000, 'y')); });
  }();
  EXPECT_EQ(told, 61);
  EXPECT_EQ(file->Length(), 1000);
  EXPECT_EQ(file->ReadAt(0, 2000), std::string(1000, 'x'));
}

TEST_F(HostFiles, AFullDiskLeavesTheOldFileWhole) {
  files_.Replace(Path("a"), "old");
  const int told = [&] {
    const SmallDisk disk(kSmall);
    return ErrorOf([&] { files_.Replace(Path("a"), std::string(200000, 'y')); });
  }();
  EXPECT_EQ(told, 61);
  EXPECT_EQ(files_.ReadAll(Path("a")), "old");
  EXPECT_EQ(Names(), std::vector<std::string>{"a"});
}

// What a disk answers that is mounted for reading only.
TEST_F(HostFiles, AWriteProtectedDiskIsRead) {
  files_.Replace(Path("a"), "one");
  SystemCalls calls;
  const auto refused = [&](const char* call, const std::function<void()>& act) {
    calls.FailFromNow(1, EROFS, call);
    const int told = ErrorOf(act);
    EXPECT_TRUE(calls.HasStruck()) << call;
    return told;
  };
  std::unique_ptr<base::File> file;
  EXPECT_EQ(refused("open", [&] { file = files_.Open(Path("a")); }), 0);
  EXPECT_EQ(file->ReadAt(0, 9), "one");
  EXPECT_EQ(ErrorOf([&] { file->Append("x"); }), 70);
  EXPECT_EQ(refused("open", [&] { files_.Open(Path("new")); }), 70);
  EXPECT_EQ(refused("faccessat", [&] { files_.Replace(Path("a"), "x"); }), 70);
  EXPECT_EQ(refused("open", [&] { files_.Replace(Path("new"), "x"); }), 70);
  EXPECT_EQ(refused("unlink", [&] { files_.Remove(Path("a")); }), 70);
  EXPECT_EQ(files_.ReadAll(Path("a")), "one");
  EXPECT_EQ(Names(), std::vector<std::string>{"a"});
}

}  // namespace
}  // namespace test
