#include "store/open_database.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "store/session.h"
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

}  // namespace
}  // namespace test
