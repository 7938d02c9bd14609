#include "support/system_calls.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <thread>

#include "support/killed_process.h"
#include "support/temp_folder.h"

namespace test {
namespace {

using Texts = std::vector<std::string>;

class Calls : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return folder_.Path() + "/" + name; }
  int Make(const std::string& name) const { return mkdir(Path(name).c_str(), 0700); }
  bool Has(const std::string& name) const { return std::filesystem::exists(Path(name)); }
  TempFolder folder_;
};

TEST_F(Calls, AreSeenInOrderWithTheirPaths) {
  SystemCalls calls;
  const int file = open(Path("a").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  EXPECT_EQ(pwrite(file, "one", 3, 0), 3);
  EXPECT_EQ(fsync(file), 0);
  EXPECT_EQ(close(file), 0);
  EXPECT_EQ(rename(Path("a").c_str(), Path("b").c_str()), 0);
  EXPECT_EQ(calls.Texts(folder_.Path()),
            (Texts{"open a", "pwrite a", "fsync a", "close a", "rename a b"}));
  EXPECT_EQ(calls.Seen()[0].flags, O_RDWR | O_CREAT | O_CLOEXEC);
}

TEST_F(Calls, OfTheStandardLibraryAreSeen) {
  std::filesystem::create_symlink("b", Path("a"));
  SystemCalls calls;
  EXPECT_EQ(std::filesystem::read_symlink(Path("a")), "b");
  const Texts texts = calls.Texts(folder_.Path());
  EXPECT_NE(std::find(texts.begin(), texts.end(), "readlink a"), texts.end());
}

TEST_F(Calls, OfAnotherThreadDoNotCount) {
  SystemCalls calls;
  calls.FailFromNow(1, EIO);
  std::thread([&] { EXPECT_EQ(Make("a"), 0); }).join();
  EXPECT_FALSE(calls.HasStruck());
  EXPECT_TRUE(calls.Seen().empty());
}

TEST_F(Calls, FailOnceAndDoNothing) {
  SystemCalls calls;
  calls.FailFromNow(2, ENOSPC);
  EXPECT_EQ(Make("a"), 0);
  EXPECT_FALSE(calls.HasStruck());
  EXPECT_EQ(Make("b"), -1);
  EXPECT_EQ(errno, ENOSPC);
  EXPECT_TRUE(calls.HasStruck());
  EXPECT_EQ(Make("c"), 0);
  EXPECT_TRUE(Has("a"));
  EXPECT_FALSE(Has("b"));
  EXPECT_TRUE(Has("c"));
}

TEST_F(Calls, OfOneNameAreCountedAlone) {
  SystemCalls calls;
  calls.FailFromNow(1, EIO, "rename");
  EXPECT_EQ(Make("a"), 0);
  EXPECT_EQ(rename(Path("a").c_str(), Path("b").c_str()), -1);
  EXPECT_EQ(errno, EIO);
  EXPECT_EQ(rename(Path("a").c_str(), Path("b").c_str()), 0);
}

TEST_F(Calls, AreInterruptedOnceOfEachKind) {
  SystemCalls calls;
  calls.InterruptEachKind();
  EXPECT_EQ(Make("a"), -1);
  EXPECT_EQ(errno, EINTR);
  EXPECT_EQ(Make("a"), 0);
  EXPECT_EQ(unlink(Path("b").c_str()), -1);
  EXPECT_EQ(errno, EINTR);
  EXPECT_EQ(unlink(Path("b").c_str()), -1);
  EXPECT_EQ(errno, ENOENT);
}

TEST_F(Calls, MoveHalfOfTheBytesWhenShortened) {
  const int file = open(Path("a").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  {
    SystemCalls calls;
    calls.ShortenFromNow(2);
    EXPECT_EQ(pwrite(file, "12345678", 8, 0), 8);
    EXPECT_EQ(fsync(file), 0);
    char bytes[8];
    EXPECT_EQ(pread(file, bytes, 8, 0), 4);
    EXPECT_EQ(pread(file, bytes, 8, 0), 8);
  }
  close(file);
}

TEST_F(Calls, ACloseThatFailsHasClosed) {
  const int file = open(Path("a").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  {
    SystemCalls calls;
    calls.FailFromNow(1, EINTR);
    EXPECT_EQ(close(file), -1);
    EXPECT_EQ(errno, EINTR);
  }
  EXPECT_EQ(fcntl(file, F_GETFD), -1);
}

TEST_F(Calls, KillTheirProcessBeforeAndAfter) {
  const auto moment = [&](int n) {
    return KillAtMoment(
        n, [&] { Make("prepared"); }, [&] { return Make("a") == 0; });
  };
  EXPECT_EQ(moment(0), Ending::kKilled);
  EXPECT_TRUE(Has("prepared"));
  EXPECT_FALSE(Has("a"));
  EXPECT_EQ(moment(1), Ending::kKilled);
  EXPECT_TRUE(Has("a"));
  std::filesystem::remove(Path("a"));
  EXPECT_EQ(moment(2), Ending::kDone);
  EXPECT_TRUE(Has("a"));
  EXPECT_EQ(moment(2), Ending::kFailed);
}

}  // namespace
}  // namespace test
