#include "shell/desk.h"

#include <gtest/gtest.h>

#include "shell/settings_store.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace test {
namespace {

std::vector<std::string> OpenNames(TestDesk& desk) {
  std::vector<std::string> names;
  for (const base::Form* form : desk.Desk().Desktop().OpenForms()) names.push_back(form->Name());
  return names;
}

TEST(Start, WaitsInTheSplashWindow) {
  TestDesk desk;
  desk.Restart();
  EXPECT_EQ(OpenNames(desk), std::vector<std::string>{"frmSplash"});
  auto* splash = static_cast<shell::FrmSplash*>(desk.Desk().Find("frmsplash"));
  EXPECT_EQ(splash->lblVersion.Caption(), "Version 3.9.0");
  EXPECT_EQ(desk.Session().version_section, "390");
}

TEST(Start, ContinuesToTheMainWindow) {
  TestDesk desk;
  desk.Start();
  EXPECT_EQ(OpenNames(desk), (std::vector<std::string>{"MainWindow", "frmMain"}));
  EXPECT_EQ(desk.Frame().Caption(), "Quorbit Number Desk UK-National-Lottery.dat");
  EXPECT_EQ(desk.Frame().lblStatus.Caption(), "Quorbit Number Desk UK-National-Lottery.dat");
  EXPECT_EQ(desk.Frame().Command17.BackColor(), 0xE0E0E0u);
  EXPECT_TRUE(desk.Frame().Command17.Enabled());
  EXPECT_TRUE(desk.Session().main_window_loaded);
  EXPECT_EQ(desk.Main().Left(), 0);
}

TEST(Start, SkipsTheSplashWindowWhenItIsSetTo1) {
  TestDesk desk;
  desk.settings.Save("Velmonte", "390", "SplashScreen", "1");
  desk.Restart();
  EXPECT_EQ(OpenNames(desk), (std::vector<std::string>{"MainWindow", "frmMain"}));
}

TEST(Start, TheTickOnTheSplashWindowIsStored) {
  TestDesk desk;
  desk.Restart();
  auto* splash = static_cast<shell::FrmSplash*>(desk.Desk().Find("frmSplash"));
  desk.User().Click(splash->ChkNoSplash);
  desk.User().Click(splash->CmdContinue);
  EXPECT_EQ(desk.settings.Get("Velmonte", "390", "SplashScreen"), "1");
}

// Settings that cannot be read are told once, and nothing is written over them.
TEST(Start, TellsUnreadableSettingsOnce) {
  TestDesk desk;
  const std::string bytes = "Velmonte|390|SplashScreen=1\n";
  const std::string path = desk.folder.string() + "/settings.txt";
  desk.host_files.Replace(path, bytes);
  FailingDisk disk(desk.host_files);
  disk.FailFromNow(1, base::Error(base::kPathAccess, "The disk is broken"));
  shell::SettingsStore settings(disk, path);
  ASSERT_TRUE(disk.HasFailed());
  shell::Desk broken(
      {.boxes = desk.boxes, .region = desk.region, .files = desk.host_files, .settings = settings},
      desk.folder.string());
  broken.Start();
  EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>{"The settings could not be read, and are "
                                                          "left as they are: The disk is broken"});
  broken.User().Click(static_cast<shell::FrmSplash*>(broken.Find("frmSplash"))->CmdContinue);
  broken.Stop();
  EXPECT_TRUE(broken.Ended());
  EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>());
  EXPECT_EQ(desk.ReadFile("settings.txt"), bytes);
}

TEST(Start, DefaultsOfAFirstRun) {
  TestDesk desk;
  desk.Start();
  EXPECT_EQ(desk.Session().date_format_text, "MM/DD/YY");
  EXPECT_TRUE(desk.Session().tips_on);
  EXPECT_TRUE(desk.Session().prompt_on_range_change);
  EXPECT_EQ(desk.Frame().Left(), 1000);
  EXPECT_EQ(desk.Frame().Top(), 1000);
  EXPECT_EQ(desk.Frame().Width(), 12000);
  EXPECT_EQ(desk.Frame().Height(), 8200);
}

TEST(Start, BrokenSettingsFallBackToTheirDefaults) {
  TestDesk desk;
  desk.settings.Save("Velmonte", "390", "Tips", "perhaps");
  desk.settings.Save("Velmonte", "390", "SplashScreen", "x");
  desk.settings.Save("Quorbit Number Desk", "Settings", "MainLeft", "left");
  desk.settings.Save("Quorbit Number Desk", "Settings", "MainWidth", "1E99");
  desk.Start();
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_TRUE(desk.Session().tips_on);
  EXPECT_EQ(desk.Frame().Left(), 1000);
  EXPECT_EQ(desk.Frame().Width(), 12000);
}

TEST(Start, APlaceOfZeroLeavesTheOthersUnread) {
  TestDesk desk;
  desk.settings.Save("Quorbit Number Desk", "Settings", "MainLeft", "0");
  desk.settings.Save("Quorbit Number Desk", "Settings", "MainWidth", "5000");
  desk.Start();
  EXPECT_FALSE(desk.Frame().HasPlace());
  EXPECT_EQ(desk.Frame().Width(), 0);
}

TEST(Stop, StoresThePlacementAndUnloadsAllWindows) {
  TestDesk desk;
  desk.Start();
  desk.Frame().Move(1500, 1700);
  desk.Frame().Resize(13000, 9000);
  desk.Desk().Stop();
  EXPECT_EQ(desk.settings.Get("quorbit number desk", "Settings", "MainLeft"), "1500");
  EXPECT_EQ(desk.settings.Get("Quorbit Number Desk", "Settings", "MainTop"), "1700");
  EXPECT_EQ(desk.settings.Get("Quorbit Number Desk", "Settings", "MainWidth"), "13000");
  EXPECT_EQ(desk.settings.Get("Quorbit Number Desk", "Settings", "MainHeight"), "9000");
  EXPECT_TRUE(desk.Desk().Ended());
}

TEST(Stop, MinimisedKeepsTheOldPlacement) {
  TestDesk desk;
  desk.Start();
  desk.Frame().Move(1500, 1700);
  desk.Frame().SetState(base::WindowState::kMinimised);
  desk.Desk().Stop();
  EXPECT_FALSE(desk.settings.Find("Quorbit Number Desk", "Settings", "MainLeft").has_value());
}

TEST(Stop, ASecondProcessFindsWhatTheFirstStored) {
  TestDesk desk;
  desk.Start();
  desk.User().Choose(desk.Frame().MnuHgight);
  EXPECT_EQ(desk.settings.Get("velmonte", "390", "MnuHgight"), "True");
  desk.Desk().Stop();
  desk.Start();
  EXPECT_TRUE(desk.Frame().MnuHgight.Checked());
  EXPECT_TRUE(desk.Session().mnu_hgight_on);
}

TEST(Stop, DuringAScanEndsItAndUnloads) {
  TestDesk desk;
  desk.Start();
  desk.pump.At(20, [&] { desk.Desk().Stop(); });
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_TRUE(desk.Desk().Ended());
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(Frame, HighlightTogglesAndStoresAllFour) {
  TestDesk desk;
  desk.Start();
  desk.User().Choose(desk.Frame().MnuHgight);
  EXPECT_TRUE(desk.Frame().MnuHgight.Checked());
  EXPECT_TRUE(desk.Session().mnu_hgight_on);
  EXPECT_EQ(desk.settings.Get("velmonte", "390", "MnuHgight"), "True");
  EXPECT_EQ(desk.settings.Get("velmonte", "390", "MnuHC"), "False");
  desk.User().Choose(desk.Frame().MnuHgight);
  EXPECT_FALSE(desk.Session().mnu_hgight_on);
}

TEST(Frame, DisablesWhatLeadsToWindowsThatDoNotExist) {
  TestDesk desk;
  desk.Start();
  EXPECT_THROW(desk.User().Choose(desk.Frame().MnuStatsWin), base::ActRefused);
  EXPECT_THROW(desk.User().Click(desk.Frame().Label4), base::ActRefused);
  EXPECT_EQ(desk.Frame().Label1.BackColor(), 0x80000003u);
  EXPECT_EQ(desk.Frame().mnuHelpAbout.Caption(), "&About ");
}

TEST(Frame, OpensTheMainWindowAgain) {
  TestDesk desk;
  desk.Start();
  desk.User().Close(desk.Main());
  EXPECT_EQ(desk.Desk().Main(), nullptr);
  desk.User().Choose(desk.Frame().MnuMainWindow);
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 40);
}

TEST(Help, OpensTheDeliveredFile) {
  TestDesk desk;
  desk.host_files.Replace(desk.folder.string() + "/QND.HLP", "<h1>Manual</h1>");
  desk.Start();
  desk.User().Choose(desk.Frame().mnuHelpContents);
  desk.User().Choose(desk.Frame().mnuHelpSearchForHelpOn);
  ASSERT_EQ(desk.help.opened.size(), 2u);
  EXPECT_TRUE(desk.help.opened[0].first.ends_with("\\QND.HLP"));
  EXPECT_EQ(desk.help.opened[0].second, base::HelpPage::kContents);
  EXPECT_EQ(desk.help.opened[1].second, base::HelpPage::kSearch);
}

TEST(Help, WithoutAFileTellsSo) {
  TestDesk desk;
  desk.Start();
  desk.User().Choose(desk.Frame().mnuHelpContents);
  ASSERT_EQ(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.boxes.shown[0].text,
            "Unable to display Help Contents. There is no Help associated with this project.");
}

TEST(Start, ASplashTickThatCannotBeStoredKeepsNothingFromStarting) {
  TestDesk desk;
  desk.Restart();
  desk.settings.broken = true;
  auto* splash = static_cast<shell::FrmSplash*>(desk.Desk().Find("frmSplash"));
  desk.User().Click(splash->ChkNoSplash);
  desk.User().Click(splash->CmdContinue);
  EXPECT_NE(desk.Desk().Main(), nullptr);
}

TEST(Start, ABrokenDateFormatIsMonthFirst) {
  TestDesk desk;
  desk.settings.Save("Velmonte", "390", "Region", "garbage");
  desk.Start();
  EXPECT_EQ(desk.Session().date_format_text, "MM/DD/YY");
}

// Its own activation ended the whole start.
TEST(Start, AMainWindowClosedInTheFirstYieldLeavesTheFrame) {
  TestDesk desk;
  desk.Restart();
  desk.pump.At(1, [&] { desk.User().Close(desk.Main()); });
  auto* splash = static_cast<shell::FrmSplash*>(desk.Desk().Find("frmSplash"));
  desk.User().Click(splash->CmdContinue);
  EXPECT_EQ(OpenNames(desk), std::vector<std::string>{"frmMain"});
  EXPECT_TRUE(desk.Frame().Visible());
}

// The control was gone before the button came up over it.
TEST(Stop, InTheMiddleOfAClickLeavesTheRestOut) {
  TestDesk desk;
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  desk.pump.At(1, [&] { desk.Desk().Stop(); });
  desk.User().Click(desk.Main().lblbuttons(0));
  EXPECT_TRUE(desk.Desk().Ended());
}

}  // namespace
}  // namespace test
