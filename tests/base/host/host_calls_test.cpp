#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <sstream>

#include "base/host/host_file_system.h"
#include "base/language/error.h"
#include "support/system_calls.h"
#include "support/temp_folder.h"

// What the files of the host ask of it, call for call, and what they make of each call that fails.

namespace test {
namespace {

namespace fs = std::filesystem;

// The files of a folder by their names, links by where they lead.
using Files = std::map<std::string, std::string>;

constexpr int kErrors[] = {EIO, ENOSPC, EACCES};

const std::string kOld = "the old bytes";
const std::string kNew = "the new bytes, which are more";
const std::string kBeside = ".new~" + std::to_string(getpid());
const std::string kLinkToA = "-> a";

std::string BytesOf(const fs::path& path) {
  if (fs::is_symlink(path)) return "-> " + fs::read_symlink(path).string();
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

// A folder with these files in it.
class Folder {
 public:
  explicit Folder(const Files& files) {
    for (const auto& [name, bytes] : files) {
      if (bytes == kLinkToA) {
        fs::create_symlink("a", Path(name));
      } else {
        std::ofstream(Path(name), std::ios::binary) << bytes;
      }
    }
  }
  const std::string& Root() const { return folder_.Path(); }
  std::string Path(const std::string& name) const { return Root() + "/" + name; }
  Files Now() const {
    Files files;
    for (const auto& entry : fs::directory_iterator(Root())) {
      files[entry.path().filename()] = BytesOf(entry.path());
    }
    return files;
  }

 private:
  TempFolder folder_;
};

// One thing to do with the files of a folder. One that gives something back looks at it itself.
struct Operation {
  const char* name;
  Files before;
  Files after;
  std::function<void(base::FileSystem&, const Folder&)> act;
  // What else may be left by a failure, apart from what was there before.
  std::optional<Files> also = {};
  // What becomes of it in a folder that may not be listed, where names are taken as they come.
  std::optional<Files> unlisted = {};
};

void Replace(base::FileSystem& files, const Folder& folder) {
  files.Replace(folder.Path("a"), kNew);
}

std::vector<Operation> Operations() {
  return {
      {"Replace", {{"a", kOld}}, {{"a", kNew}}, Replace},
      {"Replace of none", {}, {{"a", kNew}}, Replace},
      {"Replace of what is spelt otherwise",
       {{"A", kOld}},
       {{"A", kNew}},
       Replace,
       std::nullopt,
       Files{{"A", kOld}, {"a", kNew}}},
      {"Replace behind a link",
       {{"a", kOld}, {"l", kLinkToA}},
       {{"a", kNew}, {"l", kLinkToA}},
       [](base::FileSystem& files, const Folder& folder) {
         files.Replace(folder.Path("l"), kNew);
       }},
      {"Replace beside what was left",
       {{"a", kOld}, {"a" + kBeside, "x"}},
       {{"a", kNew}},
       Replace,
       Files{{"a", kOld}}},
      {"ReplaceKept",
       {{"a", kOld}, {"k", "another"}},
       {{"a", kNew}, {"k", kOld}},
       [](base::FileSystem& files, const Folder& folder) {
         files.ReplaceKept(folder.Path("a"), kNew, folder.Path("k"));
       }},
      {"Create",
       {{"b", kOld}},
       {{"a", kNew}, {"b", kOld}},
       [](base::FileSystem& files, const Folder& folder) {
         EXPECT_TRUE(files.Create(folder.Path("a"), kNew));
       }},
      {"Append",
       {{"a", kOld}},
       {{"a", kOld + kNew}},
       [](base::FileSystem& files, const Folder& folder) {
         files.Open(folder.Path("a"))->Append(kNew);
       }},
      {"Open",
       {{"a", kOld}},
       {{"a", kOld}},
       [](base::FileSystem& files, const Folder& folder) {
         const auto file = files.Open(folder.Path("a"));
         EXPECT_EQ(file->ReadAt(0, 100), kOld);
         EXPECT_EQ(file->Length(), static_cast<std::int64_t>(kOld.size()));
       }},
      {"Open of none",
       {},
       {{"a", ""}},
       [](base::FileSystem& files, const Folder& folder) { files.Open(folder.Path("a")); },
       Files{{"a", ""}}},
      {"ReadAll",
       {{"a", kOld}},
       {{"a", kOld}},
       [](base::FileSystem& files, const Folder& folder) {
         EXPECT_EQ(files.ReadAll(folder.Path("a")), kOld);
       }},
      {"Remove",
       {{"a", kOld}},
       {},
       [](base::FileSystem& files, const Folder& folder) { files.Remove(folder.Path("a")); }},
  };
}

// What came of an operation of whose calls one went wrong.
struct Outcome {
  bool was_reached = false;
  bool was_told = false;
  Files left;
};

Outcome Try(const Operation& operation, const std::function<void(SystemCalls&)>& go_wrong) {
  const Folder folder(operation.before);
  base::HostFileSystem files;
  Outcome outcome;
  {
    SystemCalls calls;
    go_wrong(calls);
    try {
      operation.act(files, folder);
    } catch (const base::Error&) {
      outcome.was_told = true;
    }
    outcome.was_reached = calls.HasStruck();
  }
  outcome.left = folder.Now();
  return outcome;
}

// Every call of the operation in turn goes wrong, until there is none that could. Says how many
// could.
int TryEach(const Operation& operation, const std::function<void(SystemCalls&, int)>& go_wrong,
            const std::function<void(const Outcome&)>& judge) {
  for (int n = 1;; ++n) {
    SCOPED_TRACE(operation.name + std::string(", call ") + std::to_string(n));
    const Outcome outcome = Try(operation, [&](SystemCalls& calls) { go_wrong(calls, n); });
    if (!outcome.was_reached) {
      EXPECT_FALSE(outcome.was_told);
      EXPECT_EQ(outcome.left, operation.after);
      return n - 1;
    }
    judge(outcome);
  }
}

// Either it is done, or an error is thrown and nothing is.
TEST(HostCalls, AFailureIsToldAndLeavesTheOldFileWhole) {
  for (const Operation& operation : Operations()) {
    for (const int error : kErrors) {
      SCOPED_TRACE(std::strerror(error));
      int told = 0;
      const int reached = TryEach(
          operation, [&](SystemCalls& calls, int n) { calls.FailFromNow(n, error); },
          [&](const Outcome& outcome) {
            if (!outcome.was_told) {
              if (error == EACCES && outcome.left == operation.unlisted) return;
              EXPECT_EQ(outcome.left, operation.after);
              return;
            }
            ++told;
            EXPECT_TRUE(outcome.left == operation.before || outcome.left == operation.also)
                << testing::PrintToString(outcome.left);
          });
      EXPECT_GT(reached, 0);
      EXPECT_GT(told, 0);
    }
  }
}

TEST(HostCalls, AnInterruptedCallIsMadeAgain) {
  const auto judge = [](const Operation& operation, const Outcome& outcome) {
    EXPECT_TRUE(outcome.was_reached);
    EXPECT_FALSE(outcome.was_told);
    EXPECT_EQ(outcome.left, operation.after);
  };
  for (const Operation& operation : Operations()) {
    const int reached = TryEach(
        operation, [](SystemCalls& calls, int n) { calls.FailFromNow(n, EINTR); },
        [&](const Outcome& outcome) { judge(operation, outcome); });
    EXPECT_GT(reached, 0) << operation.name;
    SCOPED_TRACE(operation.name + std::string(", each kind of call"));
    judge(operation, Try(operation, [](SystemCalls& calls) { calls.InterruptEachKind(); }));
  }
}

TEST(HostCalls, AShortReadOrWriteIsCompleted) {
  int reached = 0;
  for (const Operation& operation : Operations()) {
    reached += TryEach(
        operation, [](SystemCalls& calls, int n) { calls.ShortenFromNow(n); },
        [&](const Outcome& outcome) {
          EXPECT_FALSE(outcome.was_told);
          EXPECT_EQ(outcome.left, operation.after);
        });
  }
  EXPECT_GT(reached, 0);
}

// The place of a call among those that were seen; the first or the last of its kind. Behind all of
// them if it was not seen.
using Texts = std::vector<std::string>;

std::ptrdiff_t FirstOf(const Texts& texts, const std::string& text) {
  return std::find(texts.begin(), texts.end(), text) - texts.begin();
}

std::ptrdiff_t LastOf(const Texts& texts, const std::string& text) {
  const auto found = std::find(texts.rbegin(), texts.rend(), text);
  return found == texts.rend() ? FirstOf(texts, text) : texts.rend() - found - 1;
}

// What a new file holds is on the disk before it bears the old one's name, and the name before
// anybody is told that it is done.
TEST(HostCalls, ReplaceFlushesTheFileBeforeAndTheFolderAfterTheRename) {
  for (const Files& before : {Files{}, Files{{"a", kOld}}}) {
    const Folder folder(before);
    base::HostFileSystem files;
    SystemCalls calls;
    files.Replace(folder.Path("a"), kNew);
    const Texts texts = calls.Texts(folder.Root());
    SCOPED_TRACE(testing::PrintToString(texts));
    const auto rename = FirstOf(texts, "rename a" + kBeside + " a");
    EXPECT_LT(LastOf(texts, "write a" + kBeside), FirstOf(texts, "fsync a" + kBeside));
    EXPECT_LT(FirstOf(texts, "fsync a" + kBeside), rename);
    EXPECT_LT(rename, FirstOf(texts, "fsync ."));
    EXPECT_LT(FirstOf(texts, "fsync ."), std::ssize(texts));
  }
}

// --- Replacing a file that is kept

class KeptFile : public testing::Test {
 protected:
  // The state is kept, then the file replaced, with one thing or another in between.
  Files ReplaceWith(const std::function<void()>& in_between) {
    files_.Keep(folder_.Path("a"), folder_.Path("k"));
    in_between();
    files_.ReplaceKept(folder_.Path("a"), kNew, folder_.Path("k"));
    return folder_.Now();
  }
  void PutInPlace() {
    std::ofstream(folder_.Path("b"), std::ios::binary) << "another";
    fs::rename(folder_.Path("b"), folder_.Path("a"));
  }

  Folder folder_{{{"a", kOld}}};
  base::HostFileSystem files_;
};

TEST_F(KeptFile, BearsItsNameAfterwards) {
  EXPECT_EQ(ReplaceWith([] {}), (Files{{"a", kNew}, {"k", kOld}}));
  EXPECT_EQ(fs::hard_link_count(folder_.Path("k")), 1u);
}

TEST_F(KeptFile, GivesItsNameToWhatAnotherProgramHadPutThere) {
  EXPECT_EQ(ReplaceWith([&] { PutInPlace(); }), (Files{{"a", kNew}, {"k", "another"}}));
}

TEST_F(KeptFile, ComesBackWhereAnotherProgramHasRemovedIt) {
  EXPECT_EQ(ReplaceWith([&] { fs::remove(folder_.Path("a")); }), (Files{{"a", kNew}, {"k", kOld}}));
}

TEST_F(KeptFile, IsReplacedOnADiskThatExchangesNoNames) {
  for (const int error : {EINVAL, ENOSYS, EOPNOTSUPP}) {
    std::ofstream(folder_.Path("a"), std::ios::binary) << kOld;
    fs::remove(folder_.Path("k"));
    SystemCalls calls;
    calls.Lack("renameat2", error);
    EXPECT_EQ(ReplaceWith([] {}), (Files{{"a", kNew}, {"k", kOld}}));
  }
}

TEST_F(KeptFile, OfAnotherDiskTakesACopyOfWhatWasReplaced) {
  files_.Keep(folder_.Path("a"), folder_.Path("k"));
  PutInPlace();
  SystemCalls calls;
  calls.FailFromNow(1, EXDEV, "rename");
  files_.ReplaceKept(folder_.Path("a"), kNew, folder_.Path("k"));
  EXPECT_TRUE(calls.HasStruck());
  EXPECT_EQ(folder_.Now(), (Files{{"a", kNew}, {"k", "another"}}));
}

// What another program had put there would bear no name that anybody looks at.
TEST_F(KeptFile, StaysWhereWhatWasReplacedCannotBeKept) {
  files_.Keep(folder_.Path("a"), folder_.Path("k"));
  PutInPlace();
  SystemCalls calls;
  calls.Lack("rename", EXDEV);
  EXPECT_THROW(files_.ReplaceKept(folder_.Path("a"), kNew, folder_.Path("k")), base::Error);
  EXPECT_EQ(folder_.Now(), (Files{{"a", "another"}, {"k", kOld}}));
}

// --- Creating

TEST(HostCalls, CreateTakesNoNameFromAnybody) {
  for (const bool knows_the_call : {true, false}) {
    const Folder folder({{"a", kOld}});
    base::HostFileSystem files;
    SystemCalls calls;
    if (!knows_the_call) calls.Lack("renameat2", EINVAL);
    EXPECT_FALSE(files.Create(folder.Path("a"), kNew));
    EXPECT_EQ(folder.Now(), (Files{{"a", kOld}}));
  }
}

TEST(HostCalls, CreateDoesWithoutTheCallsThatADiskLacks) {
  for (const bool knows_second_names : {true, false}) {
    const Folder folder({});
    base::HostFileSystem files;
    SystemCalls calls;
    calls.Lack("renameat2", ENOSYS);
    if (!knows_second_names) calls.Lack("link", EPERM);
    EXPECT_TRUE(files.Create(folder.Path("a"), kNew));
    EXPECT_EQ(folder.Now(), (Files{{"a", kNew}}));
  }
}

// --- Appending

TEST(HostCalls, AppendFlushesWhatItWrote) {
  const Folder folder({{"a", kOld}});
  base::HostFileSystem files;
  const auto file = files.Open(folder.Path("a"));
  SystemCalls calls;
  file->Append(kNew);
  const Texts texts = calls.Texts(folder.Root());
  SCOPED_TRACE(testing::PrintToString(texts));
  EXPECT_LT(LastOf(texts, "write a"), LastOf(texts, "fsync a"));
  EXPECT_EQ(texts.back(), "fsync a");
}

// A record that the disk took only in part, or may have, would stand in front of the next one.
TEST(HostCalls, AFailedAppendIsCutBackAndThatIsFlushed) {
  for (const char* failing : {"write", "fsync"}) {
    const Folder folder({{"a", kOld}});
    base::HostFileSystem files;
    const auto file = files.Open(folder.Path("a"));
    SystemCalls calls;
    calls.FailFromNow(1, ENOSPC, failing);
    EXPECT_THROW(file->Append(kNew), base::Error);
    const Texts texts = calls.Texts(folder.Root());
    SCOPED_TRACE(testing::PrintToString(texts));
    EXPECT_LT(LastOf(texts, std::string(failing) + " a"), std::ssize(texts));
    EXPECT_LT(LastOf(texts, "write a"), FirstOf(texts, "ftruncate a"));
    EXPECT_LT(FirstOf(texts, "ftruncate a"), LastOf(texts, "fsync a"));
    EXPECT_EQ(file->ReadAt(0, 100), kOld);
    EXPECT_EQ(file->Length(), static_cast<std::int64_t>(kOld.size()));
  }
}

// Cutting back would take it away as well.
TEST(HostCalls, AFailedAppendLeavesWhatAnotherProgramWroteBehindIt) {
  const Folder folder({{"a", kOld}});
  base::HostFileSystem files;
  const auto file = files.Open(folder.Path("a"));
  {
    SystemCalls calls;
    calls.ActBefore(3, [&] {
      std::ofstream(folder.Path("a"), std::ios::binary | std::ios::app) << "more";
      calls.FailFromNow(1, ENOSPC, "fsync");
    });
    EXPECT_THROW(file->Append(kNew), base::Error);
    EXPECT_TRUE(calls.HasStruck());
  }
  EXPECT_EQ(BytesOf(folder.Path("a")), kOld + kNew + "more");
}

// It would be made longer again, by zeros.
TEST(HostCalls, AFailedAppendLeavesAFileThatAnotherProgramHasCut) {
  const Folder folder({{"a", kOld}});
  base::HostFileSystem files;
  const auto file = files.Open(folder.Path("a"));
  {
    SystemCalls calls;
    calls.ActBefore(3, [&] {
      fs::resize_file(folder.Path("a"), 3);
      calls.FailFromNow(1, ENOSPC, "fsync");
    });
    EXPECT_THROW(file->Append(kNew), base::Error);
  }
  EXPECT_EQ(BytesOf(folder.Path("a")), kOld.substr(0, 3));
}

TEST(HostCalls, AnAppendGoesBehindWhatAnotherProgramHasJustWritten) {
  const Folder folder({{"a", kOld}});
  base::HostFileSystem files;
  const auto file = files.Open(folder.Path("a"));
  SystemCalls calls;
  calls.ActBefore(
      2, [&] { std::ofstream(folder.Path("a"), std::ios::binary | std::ios::app) << "more"; });
  file->Append(kNew);
  EXPECT_EQ(calls.Seen()[1].name, "write");
  EXPECT_EQ(BytesOf(folder.Path("a")), kOld + "more" + kNew);
}

// A program that the desk starts gets none of its files.
TEST(HostCalls, EveryFileIsClosedInAProgramThatIsStarted) {
  int opened = 0;
  for (const Operation& operation : Operations()) {
    const Folder folder(operation.before);
    base::HostFileSystem files;
    SystemCalls calls;
    operation.act(files, folder);
    for (const SystemCall& call : calls.Seen()) {
      if (call.name != "open" && call.name != "openat") continue;
      ++opened;
      EXPECT_NE(call.flags & O_CLOEXEC, 0) << operation.name << ": " << call.Text();
    }
  }
  EXPECT_GT(opened, 0);
}

}  // namespace
}  // namespace test
