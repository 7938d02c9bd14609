#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "support/desk_acts.h"
#include "support/system_calls.h"
#include "support/test_desk.h"

// Another program changes the file right before one of the file calls by which the desk changes it:
// behind the comparison, behind the state that is kept, before the last rename. What that program
// wrote is there afterwards, and so is what the desk said it stored.

namespace test {
namespace {

using Draws = std::vector<store::DrawRecord>;

constexpr int kDraws = 40;
constexpr int kMostCalls = 500;

std::filesystem::path PathOf(const TestDesk& desk) {
  return desk.folder / "DataBases" / desk.database;
}

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Whether a file below the program folder holds these bytes.
bool IsKept(const TestDesk& desk, const std::string& bytes) {
  for (const auto& entry : std::filesystem::recursive_directory_iterator(desk.folder)) {
    if (entry.is_regular_file() && BytesOf(entry.path()).find(bytes) != std::string::npos) {
      return true;
    }
  }
  return false;
}

const std::string& Foreign() {
  static const std::string bytes = Encode({Draw({41, 42, 43, 44, 45, 46, 47}, "We", "07/12/05")});
  return bytes;
}

const store::DrawRecord& Added() {
  static const store::DrawRecord draw = Draw({1, 2, 3, 4, 5, 6, 7}, "Sa", "10/12/05");
  return draw;
}

struct Outside {
  const char* name;
  std::function<void(const TestDesk&)> act;
  bool leaves_draws;  // those of the desk as well
};

const std::vector<Outside>& Outsides() {
  static const std::vector<Outside> all{
      {"appends",
       [](const TestDesk& desk) {
         std::ofstream(PathOf(desk), std::ios::binary | std::ios::app) << Foreign();
       },
       true},
      {"puts another file in place",
       [](const TestDesk& desk) {
         const std::filesystem::path beside = desk.folder / "DataBases" / "foreign";
         std::ofstream(beside, std::ios::binary) << Foreign();
         std::filesystem::rename(beside, PathOf(desk));
       },
       false},
      {"moves the file and puts another in place",
       [](const TestDesk& desk) {
         std::filesystem::rename(PathOf(desk), desk.folder / "away");
         std::ofstream(PathOf(desk), std::ios::binary) << Foreign();
       },
       true},
  };
  return all;
}

// A change of the database: what is prepared, the act, a draw that it writes and one that it keeps.
struct Change {
  const char* name;
  std::function<void(TestDesk&)> prepare;
  std::function<void(TestDesk&)> run;
  store::DrawRecord written;
};

store::DrawRecord EighthWith(const char* ball) {
  store::DrawRecord draw = SampleDraws(kDraws)[7];
  draw.b[5] = ball;
  return draw;
}

const std::vector<Change>& Changes() {
  const auto remove = [](TestDesk& desk) { RemoveRow(desk, 3); };
  static const std::vector<Change> all{
      {"save", [](TestDesk& desk) { TypeDraw(desk, Added()); },
       [](TestDesk& desk) { desk.User().Click(desk.Main().cmdSave); }, Added()},
      {"edit", [](TestDesk& desk) { TypeEdit(desk, 8, "99"); },
       [](TestDesk& desk) { desk.User().Click(desk.Main().cmdedit); }, EighthWith("99")},
      {"close", remove, [](TestDesk& desk) { desk.User().Close(desk.Main()); },
       SampleDraws(kDraws)[3]},
      {"StorePending", remove, [](TestDesk& desk) { desk.Desk().StorePending(); },
       SampleDraws(kDraws)[3]},
      {"undo", [](TestDesk& desk) { EditDraw(desk, 8, "99"); },
       [](TestDesk& desk) { desk.Desk().Undo(); }, SampleDraws(kDraws)[7]},
  };
  return all;
}

// False if the change has no nth call.
bool PlaysInBetween(const Change& change, const Outside& outside, int n, base::Answer answer) {
  TestDesk desk;
  StartQuietly(desk);
  change.prepare(desk);
  desk.boxes.on_ask = [&] {
    if (desk.boxes.shown.back().buttons == base::BoxButtons::kYesNo) {
      desk.boxes.answers.push_back(answer);
    }
  };
  std::string call;
  bool outside_came_last = false;
  {
    SystemCalls calls;
    std::string before;
    calls.ActBefore(n, [&] {
      before = BytesOf(PathOf(desk));
      outside.act(desk);
    });
    change.run(desk);
    if (!calls.HasStruck()) return false;
    call = calls.Texts(desk.folder.string())[static_cast<std::size_t>(n - 1)];
    outside_came_last = before.find(Encode({change.written})) != std::string::npos;
  }
  SCOPED_TRACE(std::string(change.name) + ", another program " + outside.name + " before call " +
               std::to_string(n) + ", " + call);
  const bool told = !desk.TakeBoxTexts().empty();
  EXPECT_TRUE(IsKept(desk, Foreign()));
  if (!told && (outside.leaves_draws || !outside_came_last)) {
    EXPECT_TRUE(IsKept(desk, Encode({change.written})));
  }
  desk.Desk().Stop();
  EXPECT_TRUE(IsKept(desk, Foreign())) << "at the end";
  return true;
}

TEST(InBetween, NobodysDrawsAreLost) {
  for (const Change& change : Changes()) {
    for (const Outside& outside : Outsides()) {
      for (const base::Answer answer : {base::Answer::kYes, base::Answer::kNo}) {
        int n = 1;
        while (n < kMostCalls && PlaysInBetween(change, outside, n, answer)) ++n;
        EXPECT_GT(n, 5);
        RecordProperty(std::string(change.name) + ", " + outside.name, n - 1);
      }
    }
  }
}

// Saves the typed draw while another program acts right before this call.
void SaveWhile(TestDesk& desk, const char* call, const std::function<void()>& act) {
  SystemCalls calls;
  calls.ActBefore(1, act, call);
  desk.User().Click(desk.Main().cmdSave);
  EXPECT_TRUE(calls.HasStruck());
}

void PutCopyInPlace(const TestDesk& desk) {
  const std::filesystem::path beside = desk.folder / "copy";
  std::ofstream(beside, std::ios::binary) << desk.DatabaseBytes();
  std::filesystem::rename(beside, PathOf(desk));
}

// A program that synchronises puts a copy in place: the draw goes to the copy.
TEST(InBetween, ASaveGoesToACopyThatHasTakenThePlace) {
  TestDesk desk;
  StartQuietly(desk);
  TypeDraw(desk, Added());
  SaveWhile(desk, "write", [&] { PutCopyInPlace(desk); });
  EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>());
  Draws draws = SampleDraws(kDraws);
  draws.push_back(Added());
  EXPECT_EQ(desk.DatabaseBytes(), Encode(draws));
  EXPECT_EQ(desk.Main().ListView1.RowCount(), kDraws + 1);
}

// The draw that the copy ends with is the one before.
TEST(InBetween, ASaveOfATwinGoesToACopyThatHasTakenThePlace) {
  Draws draws = SampleDraws(kDraws);
  draws.push_back(Added());
  TestDesk desk(draws);
  StartQuietly(desk);
  TypeDraw(desk, Added());
  SaveWhile(desk, "write", [&] { PutCopyInPlace(desk); });
  EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>());
  draws.push_back(Added());
  EXPECT_EQ(desk.DatabaseBytes(), Encode(draws));
}

// A copy that was made when the draw stood in the file already: it is saved, and once.
TEST(InBetween, ASaveThatACopyHasTakenAlongIsSaved) {
  TestDesk desk;
  StartQuietly(desk);
  TypeDraw(desk, Added());
  SaveWhile(desk, "fsync", [&] { PutCopyInPlace(desk); });
  EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>());
  Draws draws = SampleDraws(kDraws);
  draws.push_back(Added());
  EXPECT_EQ(desk.DatabaseBytes(), Encode(draws));
  EditDraw(desk, 8, "99");
  draws[7].b[5] = "99";
  EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>());
  EXPECT_EQ(desk.DatabaseBytes(), Encode(draws));
}

// The draw stands behind whole records: it is saved, and whoever changes something next is asked.
TEST(InBetween, ASaveBehindDrawsThatWereCutOffIsSaved) {
  TestDesk desk;
  StartQuietly(desk);
  TypeDraw(desk, Added());
  const std::string fewer = Encode(SampleDraws(kDraws - 2));
  {
    SystemCalls calls;
    calls.ActBefore(
        1, [&] { std::filesystem::resize_file(PathOf(desk), fewer.size()); }, "write");
    desk.User().Click(desk.Main().cmdSave);
    EXPECT_TRUE(calls.HasStruck());
  }
  EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>());
  EXPECT_EQ(desk.DatabaseBytes(), fewer + Encode({Added()}));
  desk.boxes.answers = {base::Answer::kNo};
  EditDraw(desk, 8, "99");
  EXPECT_EQ(desk.TakeBoxTexts().size(), 1u);
}

TEST(InBetween, ASaveBehindATornDrawCountsAsNotSaved) {
  TestDesk desk;
  StartQuietly(desk);
  TypeDraw(desk, Added());
  desk.boxes.answers = {base::Answer::kNo};
  {
    SystemCalls calls;
    calls.ActBefore(
        1, [&] { std::filesystem::resize_file(PathOf(desk), desk.DatabaseBytes().size() - 20); },
        "write");
    desk.User().Click(desk.Main().cmdSave);
    EXPECT_TRUE(calls.HasStruck());
  }
  EXPECT_EQ(desk.TakeBoxTexts().size(), 1u);
}

// A program that writes the file anew in place, over the draw that was just appended.
TEST(InBetween, ADrawThatWasWrittenOverCountsAsNotSaved) {
  TestDesk desk;
  StartQuietly(desk);
  TypeDraw(desk, Added());
  desk.boxes.answers = {base::Answer::kNo};
  {
    SystemCalls calls;
    calls.ActBefore(
        1, [&] { desk.WriteDatabase(Encode(SampleDraws(kDraws - 1))); }, "fsync");
    desk.User().Click(desk.Main().cmdSave);
    EXPECT_TRUE(calls.HasStruck());
  }
  EXPECT_EQ(desk.TakeBoxTexts().size(), 1u);
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(kDraws - 1)));
}

TEST(InBetween, AFileThatComesWhileItIsWrittenAgainStays) {
  TestDesk desk;
  StartQuietly(desk);
  std::filesystem::remove(PathOf(desk));
  desk.boxes.answers = {base::Answer::kYes, base::Answer::kNo};
  TypeEdit(desk, 8, "99");
  {
    SystemCalls calls;
    calls.ActBefore(
        1, [&] { std::ofstream(PathOf(desk), std::ios::binary) << Foreign(); }, "renameat2");
    desk.User().Click(desk.Main().cmdedit);
    EXPECT_TRUE(calls.HasStruck());
  }
  EXPECT_EQ(desk.TakeBoxTexts().size(), 2u);
  EXPECT_EQ(desk.DatabaseBytes(), Foreign());
}

}  // namespace
}  // namespace test
