#include "shell/notices.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/desk_acts.h"
#include "support/ordinary_user.h"
#include "support/test_desk.h"

namespace test {
namespace {

using Act = shell::Notice::Act;

struct Told {
  std::string text;
  std::string link;
  Act act;
  bool operator==(const Told&) const = default;
};

// So that a test that fails tells what was told.
void PrintTo(const Told& told, std::ostream* out) {
  *out << '"' << told.text << "\" \"" << told.link << '"';
}

std::vector<Told> NoticesOf(TestDesk& desk) {
  std::vector<Told> notices;
  for (const shell::Notice& notice : desk.Desk().Notices()) {
    notices.push_back({notice.text, notice.link, notice.act});
  }
  return notices;
}

const Told kOneRemoval{"1 removal not stored yet.", "Store now", Act::kStorePending};

TEST(Notices, SayNothingOfADatabaseThatIsAsItWasRead) {
  TestDesk desk;
  StartQuietly(desk);
  EXPECT_EQ(NoticesOf(desk), std::vector<Told>());
}

TEST(Notices, SayWhatWaitsForTheFileAndWhatCanBeTakenBack) {
  TestDesk desk;
  StartQuietly(desk);
  RemoveRow(desk, 3);
  EXPECT_EQ(NoticesOf(desk),
            (std::vector<Told>{kOneRemoval, {"Draw of 03/01/00 removed.", "Undo", Act::kUndo}}));
  RemoveRow(desk, 3);
  EXPECT_EQ(NoticesOf(desk)[0].text, "2 removals not stored yet.");
  EditRow(desk, 3, "98");
  EXPECT_EQ(NoticesOf(desk)[0].text, "3 changes not stored yet.");
  EXPECT_EQ(NoticesOf(desk)[1].text, "Draw of 05/01/00 changed.");
  desk.Desk().Undo();
  desk.Desk().Undo();
  EXPECT_EQ(NoticesOf(desk)[0], kOneRemoval);
  desk.Desk().StorePending();
  EXPECT_EQ(NoticesOf(desk),
            (std::vector<Told>{{"Draw of 03/01/00 removed.", "Undo", Act::kUndo}}));
  desk.Desk().Undo();
  EXPECT_EQ(NoticesOf(desk), std::vector<Told>());
}

TEST(Notices, SayThatADrawWasSaved) {
  TestDesk desk;
  StartQuietly(desk);
  SaveDraw(desk, Draw({1, 2, 3, 4, 5, 6, 7}, "We", "07/10/15"));
  EXPECT_EQ(NoticesOf(desk), (std::vector<Told>{{"Draw of 07/10/15 saved.", "Undo", Act::kUndo}}));
}

TEST(Notices, SayThatAnotherDeskHoldsTheDatabase) {
  TestDesk desk;
  store::OpenDatabase other(desk.host_files);
  other.Open(desk.folder.string() + "\\DataBases\\" + desk.database);
  StartQuietly(desk);
  EXPECT_EQ(NoticesOf(desk),
            (std::vector<Told>{{"In use by another desk: nothing can be stored", "", Act::kNone}}));
}

TEST(Notices, SayThatNothingCanBeStored) {
  TestDesk desk;
  AsOrdinaryUser(desk.folder.string(), [&] {
    std::filesystem::permissions(desk.folder / "DataBases", std::filesystem::perms(0500));
    StartQuietly(desk);
    EXPECT_EQ(NoticesOf(desk),
              (std::vector<Told>{{"Nothing can be stored in this folder", "", Act::kNone}}));
    std::filesystem::permissions(desk.folder / "DataBases", std::filesystem::perms(0700));
  });
}

TEST(Notices, SayNothingWithoutAMainWindow) {
  TestDesk desk;
  StartQuietly(desk);
  EditDraw(desk, 3, "98");
  desk.User().Close(desk.Main());
  EXPECT_EQ(NoticesOf(desk), std::vector<Told>());
}

}  // namespace
}  // namespace test
