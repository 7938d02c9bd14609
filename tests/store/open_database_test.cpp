#include "store/open_database.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/language/error.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace test {
namespace {

using store::OpenDatabase;

std::string PathIn(const TestDesk& desk) {
  return desk.folder.string() + "\\DataBases\\" + desk.database;
}

// Reads the whole file, as a load does.
void Walk(OpenDatabase& database) {
  store::DrawRecord draw;
  database.BeginWalk();
  while (database.Next(draw) < database.Length()) {
  }
  database.EndWalk();
}

TEST(OpenDatabase, TakesADrawBehindThoseThatWereWrittenAgain) {
  TestDesk desk;
  OpenDatabase database(desk.host_files);
  database.Open(PathIn(desk));
  Walk(database);
  std::filesystem::remove(desk.folder / "DataBases" / desk.database);
  ASSERT_EQ(database.Compare(), OpenDatabase::Standing::kGone);
  database.WriteAgain();
  EXPECT_EQ(database.Compare(), OpenDatabase::Standing::kAsRead);
  database.WriteAgain();
  EXPECT_EQ(database.Append(Draw({1, 2, 3, 4, 5, 6})), 41);
  auto expected = SampleDraws(40);
  expected.push_back(Draw({1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

// A file that was written and could not be opened again is known by what was written.
TEST(OpenDatabase, CanBeWalkedAgainAfterARewrite) {
  const std::string written = Encode(SampleDraws(39));
  for (int failing = 1;; ++failing) {
    SCOPED_TRACE("operation " + std::to_string(failing));
    TestDesk desk;
    FailingDisk disk(desk.host_files);
    OpenDatabase database(disk);
    database.Open(PathIn(desk));
    Walk(database);
    disk.FailFromNow(failing, base::Error(base::kPathAccess));
    bool wrote = false;
    try {
      wrote = database.Rewrite(written, {2005, 12, 5}).wrote;
    } catch (const base::Error&) {
    }
    EXPECT_EQ(desk.DatabaseBytes(), wrote ? written : Encode(SampleDraws(40)));
    const bool failed = disk.HasFailed();
    disk.FailFromNow(1000, base::Error(base::kPathAccess));
    Walk(database);
    EXPECT_TRUE(database.IsComplete());
    EXPECT_EQ(database.UpperBound(), wrote ? 39 : 40);
    EXPECT_EQ(database.Compare(), OpenDatabase::Standing::kAsRead);
    database.Append(Draw({1, 2, 3}));
    EXPECT_EQ(desk.DatabaseBytes().size(), wrote ? 40u * 44 : 41u * 44);
    if (!failed) {
      EXPECT_GT(failing, 3) << "no operation was reached";
      return;
    }
  }
}

}  // namespace
}  // namespace test
