#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/language/error.h"
#include "main/headings.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace test {
namespace {

bool Contains(const std::string& text, std::string_view part) {
  return text.find(part) != std::string::npos;
}

TEST(Loading, FillsAllFourPlaces) {
  TestDesk desk;
  desk.Start();
  const store::Session& session = desk.Session();
  EXPECT_EQ(session.UpperBound(), 40);
  EXPECT_EQ(session.database.Positions()[1], 1);
  EXPECT_EQ(session.database.Positions()[2], 45);
  EXPECT_EQ(session.database.Length(), 40 * 44);
  EXPECT_EQ(desk.Main().List7.ListCount(), 40);
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 40);
  EXPECT_EQ(desk.Main().List7.Row(0), store::DrawLine(SampleDraws(1)[0]));
  EXPECT_EQ(desk.Main().Caption(), "Quorbit Number Desk UK-National-Lottery.dat");
  EXPECT_EQ(desk.Session().data_base_name, "UK-National-Lottery");
  EXPECT_TRUE(desk.Main().Option5.Value());
  EXPECT_EQ(desk.Main().txtDate.Tag(), "01/01/00");
  EXPECT_FALSE(desk.Main().cmdSave.Enabled());
}

TEST(Loading, ChoosesUsForOtherDatabases) {
  TestDesk desk(SampleDraws(40), "US-MultiState-Powerball.dat");
  desk.Start();
  EXPECT_TRUE(desk.Main().Option3.Value());
  EXPECT_FALSE(desk.Main().Option5.Value());
}

TEST(Loading, StoresTheDefaultDatabaseName) {
  TestDesk desk;
  desk.settings.Save("Velmonte", "Data", "DataBaseName", "");
  desk.Start();
  EXPECT_EQ(desk.settings.Get("velmonte", "Data", "DataBaseName"), "UK-National-Lottery.dat");
}

TEST(Loading, ChoosesByRegionWhenTheSettingIsNotKept) {
  TestDesk desk(SampleDraws(40), "US-MultiState-Powerball.dat");
  desk.settings.Save("Velmonte", "Data", "DataBaseName", "");
  desk.settings.broken = true;
  desk.region.order = base::DateOrder::kMonthFirst;
  desk.Start();
  EXPECT_TRUE(desk.Session().data_base_path.ends_with("\\DataBases\\US-MultiState-Powerball.dat"));
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 40);
  EXPECT_EQ(desk.Main().Caption(), "Quorbit Number Desk ");
}

TEST(Loading, TellsAMissingDatabaseAndGoesOnWithAnEmptyOne) {
  TestDesk desk;
  desk.settings.Save("Velmonte", "Data", "DataBaseName", "Nowhere.dat");
  desk.Start();
  ASSERT_EQ(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.boxes.shown[0].text,
            "Database could not be found\r\nPlease load a database from the database window");
  EXPECT_EQ(desk.boxes.shown[0].title, "Quorbit Number Desk");
  EXPECT_EQ(desk.ReadFile("DataBases/Nowhere.dat"), "");
  EXPECT_EQ(desk.Main().List7.Rows(), std::vector<std::string>{"00 00 00 00 00 00 00  0 "});
}

TEST(Loading, AnEmptyDatabaseIsOneBlankRecord) {
  TestDesk desk(std::vector<store::DrawRecord>{});
  desk.Start();
  EXPECT_EQ(desk.Session().draw_count, 1);
  EXPECT_EQ(desk.Session().database.Positions()[1], 1);
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 1);
  EXPECT_EQ(desk.Main().ListView1.Cell(1, 0), "00");
  EXPECT_EQ(desk.Main().ListView1.Cell(1, 7), "");
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(Loading, OneRecordWalksOnce) {
  TestDesk desk(SampleDraws(1));
  desk.Start();
  EXPECT_EQ(desk.Session().UpperBound(), 1);
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 1);
}

TEST(Loading, FillsAgainBelowThirtyDraws) {
  TestDesk small(SampleDraws(29));
  small.Start();
  small.WriteDatabase(Encode(SampleDraws(5)));
  small.User().Switch(small.Main());
  EXPECT_EQ(small.Main().ListView1.RowCount(), 5);

  TestDesk large(SampleDraws(30));
  large.Start();
  large.WriteDatabase(Encode(SampleDraws(5)));
  large.User().Switch(large.Main());
  EXPECT_EQ(large.Main().ListView1.RowCount(), 30);
}

TEST(Loading, ActivationForgetsAChange) {
  TestDesk desk;
  desk.Start();
  desk.Session().data_base_changed = true;
  desk.User().Switch(desk.Main());
  EXPECT_FALSE(desk.Session().data_base_changed);
}

TEST(Loading, ActivationDuringAScanLoadsNothing) {
  TestDesk desk(SampleDraws(29));
  desk.Start();
  desk.Main().Check1.SetValue(0);
  desk.Main().ListView1.Clear();
  desk.User().Switch(desk.Main());
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 0);
  EXPECT_EQ(desk.Main().txtRecNum.Text(), "1");
  EXPECT_EQ(desk.Session().current_draw_number, 1);
}

TEST(Loading, RefusesToIndexMoreThan32767Records) {
  std::string bytes;
  const std::string record = store::EncodeRecord(Draw({1, 2, 3, 4, 5, 6, 7}));
  for (int i = 0; i < 70000; ++i) bytes += record;
  TestDesk desk;
  desk.WriteDatabase(bytes);
  desk.Start();
  ASSERT_GE(desk.boxes.shown.size(), 1u);
  EXPECT_TRUE(Contains(desk.boxes.shown[0].text, "illigal operation at Form_Activate"));
  EXPECT_TRUE(Contains(desk.boxes.shown[0].text, "Error Number [6] "));
  // Nothing is ever rewritten from a table that does not hold every record.
  desk.Session().data_base_changed = true;
  desk.Desk().Stop();
  EXPECT_EQ(desk.DatabaseBytes().size(), bytes.size());
}

TEST(Loading, BelievesImpossibleLengths) {
  TestDesk desk;
  desk.WriteDatabase(std::string("\0\0\xFF\xFF", 4) + std::string(1000, 'x'));
  desk.Start();
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 1);
  EXPECT_EQ(desk.Main().ListView1.Cell(1, 0), std::string(1000, 'x'));
  EXPECT_FALSE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.DatabaseBytes().size(), 1004u);
}

TEST(Loading, ReadsWhatACutOffFileHas) {
  TestDesk desk;
  const std::string whole = Encode(SampleDraws(2));
  desk.WriteDatabase(whole.substr(0, 44 + 5));
  desk.Start();
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 2);
  EXPECT_EQ(desk.Main().ListView1.Cell(2, 0).size(), 2u);
  EXPECT_EQ(desk.Main().ListView1.Cell(2, 1), "00");
}

TEST(Loading, SurvivesRandomBytes) {
  std::mt19937 random(7);
  for (int round = 0; round < 20; ++round) {
    std::string bytes(static_cast<std::size_t>(random() % 5000), '\0');
    for (char& byte : bytes) byte = static_cast<char>(random() % (round % 2 ? 256 : 4));
    TestDesk desk;
    desk.WriteDatabase(bytes);
    desk.Start();
    if (desk.Desk().Main()) desk.User().Click(desk.Main().CmdScan);
    desk.Desk().Stop();
    EXPECT_EQ(desk.DatabaseBytes(), bytes);
  }
}

TEST(Loading, AFolderInPlaceOfTheFileGoesToTheReporter) {
  TestDesk desk;
  std::filesystem::remove(desk.folder / "DataBases" / desk.database);
  std::filesystem::create_directory(desk.folder / "DataBases" / desk.database);
  desk.boxes.answers = {base::Answer::kOk};
  desk.Start();
  const auto texts = desk.TakeBoxTexts();
  EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), [](const std::string& text) {
    return Contains(text, "illigal operation at LoadFirstDatabase");
  }));
  EXPECT_NE(desk.Desk().Main(), nullptr);
}

// An activation that failed left the log of a file that another program then changed.
TEST(Loading, OfAnotherFileNothingCanBeTakenBack) {
  TestDesk desk(SampleDraws(10));
  FailingDisk disk(desk.host_files);
  desk.files = &disk;
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.Start();
  desk.User().Click(desk.Main().cmdAdd);
  desk.User().Paste(desk.Main().TxtBall01, "01 02 03 04 05 06 07 10/12/05");
  desk.User().Click(desk.Main().cmdSave);
  disk.FailFromNow(1, base::Error(base::kPathAccess));
  desk.User().Switch(desk.Main());
  EXPECT_TRUE(disk.HasFailed());
  EXPECT_EQ(desk.TakeBoxTexts().size(), 1u);
  EXPECT_EQ(desk.Desk().Undo(), "");
  const std::string foreign = Encode(SampleDraws(8));
  desk.WriteDatabase(foreign);
  desk.User().Switch(desk.Main());
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 8);
  EXPECT_EQ(desk.Desk().Undo(), "");
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.DatabaseBytes(), foreign);
}

TEST(Headings, DependOnTheFirstAlone) {
  TestDesk desk;
  desk.settings.Save("Velmonte", "UK-National-Lottery.dat", "Hd2", "Second");
  desk.Start();
  EXPECT_EQ(desk.Main().Label7(12).Caption(), "B1");
  EXPECT_EQ(desk.Main().Label7(11).Caption(), "B2");
  desk.settings.Save("Velmonte", "UK-National-Lottery.dat", "Hd1", "First");
  main_window::FillHeadings(desk.settings, "UK-National-Lottery.dat", desk.Main());
  EXPECT_EQ(desk.Main().Label7(12).Caption(), "First");
  EXPECT_EQ(desk.Main().Label7(11).Caption(), "Second");
  EXPECT_EQ(desk.Main().Label7(5).Caption(), "");
}

TEST(Headings, AreGivenToADatabaseThatIsChosen) {
  MemorySettings settings;
  main_window::EnsureHeadings(settings, "New.dat");
  EXPECT_EQ(settings.Get("Velmonte", "Data", "DataBaseName"), "New.dat");
  EXPECT_EQ(settings.Get("velmonte", "New.dat", "Hd1"), "B1");
  EXPECT_EQ(settings.Get("velmonte", "New.dat", "Hd7"), "BB");
}

}  // namespace
}  // namespace test
