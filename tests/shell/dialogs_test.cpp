#include <gtest/gtest.h>

#include "support/test_desk.h"

namespace test {
namespace {

shell::FrmOptions& OpenOptions(TestDesk& desk) {
  desk.User().Choose(desk.Frame().MnuOptions);
  return *static_cast<shell::FrmOptions*>(desk.Desk().Find("FrmOptions"));
}

TEST(Options, ReadTheSplashDefaultTheOtherWayRound) {
  TestDesk desk;
  desk.Start();
  EXPECT_EQ(OpenOptions(desk).CheckSplash.Value(), 1);
}

TEST(Options, ShowWhatIsStored) {
  TestDesk desk;
  desk.settings.Save("Velmonte", "390", "SplashScreen", "0");
  desk.settings.Save("Velmonte", "390", "Region", "DD/MM/YY");
  desk.settings.Save("Velmonte", "390", "Tips", "False");
  desk.Start();
  shell::FrmOptions& options = OpenOptions(desk);
  EXPECT_EQ(options.CheckSplash.Value(), 0);
  EXPECT_TRUE(options.OptDateFormat(0).Value());
  EXPECT_FALSE(options.OptDateFormat(1).Value());
  EXPECT_EQ(options.ChkMsgBox.Value(), 0);
}

TEST(Options, UnsetRegionIsMonthFirst) {
  TestDesk desk;
  desk.Start();
  EXPECT_TRUE(OpenOptions(desk).OptDateFormat(1).Value());
  EXPECT_EQ(desk.Session().date_format_text, "MM/DD/YY");
}

TEST(Options, ApplyTellsTheSplashOnlyWhenItChanged) {
  TestDesk desk;
  desk.Start();
  shell::FrmOptions& options = OpenOptions(desk);
  desk.User().Click(options.CheckSplash);
  desk.User().Click(options.Label3);
  desk.User().Click(options.Label3);
  desk.User().Click(options.CheckSplash);
  desk.User().Click(options.Label3);
  ASSERT_EQ(desk.boxes.shown.size(), 5u);
  EXPECT_EQ(desk.boxes.shown[0].text, "Splash screen will not show on start up");
  EXPECT_EQ(desk.boxes.shown[0].title, "Splash screen disabled");
  EXPECT_EQ(desk.boxes.shown[1].text, "Your settings have been saved");
  EXPECT_EQ(desk.boxes.shown[2].text, "Your settings have been saved");
  EXPECT_EQ(desk.boxes.shown[3].text, "Splash will now show on start up");
  EXPECT_EQ(desk.boxes.shown[3].title, "Splash screen enabled");
}

TEST(Options, ApplyStoresAll) {
  TestDesk desk;
  desk.Start();
  shell::FrmOptions& options = OpenOptions(desk);
  desk.User().Click(options.OptDateFormat(0));
  desk.User().Click(options.Label3);
  EXPECT_EQ(desk.settings.Get("Velmonte", "390", "SplashScreen"), "1");
  EXPECT_EQ(desk.settings.Get("Velmonte", "390", "Region"), "DD/MM/YY");
  EXPECT_EQ(desk.settings.Get("Quorbit Number Desk", "ChecDataBase", "DateFormat"), "True");
  EXPECT_EQ(desk.settings.Get("Velmonte", "390", "Tips"), "True");
  EXPECT_EQ(desk.Session().date_format_text, "DD/MM/YY");
}

TEST(Options, TipsTakeEffectAtOnce) {
  TestDesk desk;
  desk.Start();
  shell::FrmOptions& options = OpenOptions(desk);
  desk.User().Click(options.ChkMsgBox);
  EXPECT_EQ(desk.settings.Get("Velmonte", "390", "Tips"), "False");
  EXPECT_FALSE(desk.Session().tips_on);
}

TEST(About, ShowsTheVersionAndCloses) {
  TestDesk desk;
  desk.Start();
  desk.User().Choose(desk.Frame().mnuHelpAbout);
  auto* about = static_cast<shell::FrmAbout*>(desk.Desk().Find("frmAbout"));
  ASSERT_NE(about, nullptr);
  EXPECT_EQ(about->lblVersion.Caption(), "Version 3.9.0");
  desk.User().Click(about->cmdSysInfo);
  ASSERT_EQ(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.boxes.shown[0].text, "System Information Is Unavailable At This Time");
  desk.User().Click(about->cmdOK);
  EXPECT_EQ(desk.Desk().Find("frmAbout"), nullptr);
}

}  // namespace
}  // namespace test
