#include "wheels/wheel_desk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>

#include "base/language/error.h"
#include "support/failing_disk.h"
#include "wheels/number_sets.h"

namespace test {
namespace {

using Texts = std::vector<std::string>;
using Cells = base::ListView::Cells;

constexpr base::Colour kInUse = 0xE0E0E0;
constexpr base::Colour kNotInUse = 0x80000003;

// The table that the counts of all seven balls of these draws make.
Texts EntriesOf(const std::vector<store::DrawRecord>& draws) {
  std::map<int, int> counts;
  for (store::DrawRecord draw : draws) {
    for (int k = 0; k < store::kBalls; ++k) ++counts[std::stoi(draw.Ball(k))];
  }
  Texts entries;
  for (const auto& [ball, count] : counts) {
    if (ball == 0) continue;
    const std::string text = std::to_string(count);
    entries.push_back(std::string(3 - text.size(), '0') + text + " " + TwoDigits(ball));
  }
  std::sort(entries.begin(), entries.end());
  return entries;
}

Texts SetEntries() { return {wheels::kNumberSets.begin(), wheels::kNumberSets.end()}; }

Texts OpenNames(WheelDesk& desk) {
  Texts names;
  for (const base::Form* form : desk.Desk().Desktop().OpenForms()) names.push_back(form->Name());
  return names;
}

TEST(HandOver, NeedsAScan) {
  QuietDesk desk({Seven()});
  desk.User().Press(desk.Main().lblbuttons(2), base::MouseButton::kLeft);
  ASSERT_FALSE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.boxes.shown[0].title, "Not enough data to make wheel");
  EXPECT_EQ(desk.boxes.shown[0].text, "Please click scan before creating a wheel");
  EXPECT_EQ(desk.Desk().Find("FrmTxt"), nullptr);
}

TEST(HandOver, FillsTheWindowFromTheScan) {
  QuietDesk desk({Seven(), SixWheel(9, {"1 2"})});
  desk.Scan();
  desk.MakeWheel();
  wheels::WheelWizard& window = desk.Window();
  const Texts entries = EntriesOf(SampleDraws(40));
  ASSERT_EQ(entries.size(), 49u);
  EXPECT_EQ(window.ListPerms.Rows(), entries);
  EXPECT_EQ(window.List4.Rows(), entries);
  EXPECT_EQ(window.List1.Rows(), SetEntries());
  EXPECT_EQ(window.List1.ListIndex(), 0);
  EXPECT_EQ(window.List2.ListIndex(), 0);
  EXPECT_EQ(desk.State().wheel_pool, 7);
  ASSERT_EQ(window.ListMain.RowCount(), 49);
  EXPECT_EQ(window.ListMain.Row(1), (Cells{entries[0].substr(0, 3), entries[0].substr(4), "Cold"}));
  EXPECT_EQ(window.ListMain.Row(49),
            (Cells{entries[48].substr(0, 3), entries[48].substr(4), "Hot"}));
  Texts hottest;
  for (int k = 0; k < 7; ++k)
    hottest.push_back(entries[static_cast<std::size_t>(48 - k)].substr(4));
  EXPECT_EQ(desk.BoxTexts(7), hottest);
  for (int i = 0; i < 15; ++i) {
    EXPECT_EQ(window.Label4(i).ToolTipText(), entries[static_cast<std::size_t>(48 - i)].substr(4));
  }
  EXPECT_EQ(OpenNames(desk), (Texts{"FrmTxt", "MainWindow", "frmMain"}));
  EXPECT_EQ(window.Left(), 0);
  EXPECT_EQ(window.Top(), 0);
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(HandOver, LeavesOutNumbersThatNeverCameUp) {
  QuietDesk desk({Seven()});
  desk.Main().ProgressBar1(5).SetValue(9);
  desk.Main().ProgressBar1(12).SetValue(10);
  desk.Main().ProgressBar1(40).SetValue(100);
  desk.User().Choose(desk.Frame().MnuWheel);
  EXPECT_EQ(desk.Window().ListPerms.Rows(), (Texts{"009 05", "010 12", "100 40"}));
}

TEST(HandOver, ByTheMenuNeedsNoScan) {
  QuietDesk desk({Seven()});
  desk.User().Choose(desk.Frame().MnuWheel);
  wheels::WheelWizard& window = desk.Window();
  EXPECT_EQ(window.ListPerms.ListCount(), 0);
  EXPECT_EQ(window.List1.Rows(), SetEntries());
  EXPECT_EQ(window.List1.ListIndex(), 0);
  EXPECT_EQ(window.List2.ListIndex(), 0);
  EXPECT_EQ(desk.BoxTexts(7), Texts(7));
  EXPECT_TRUE(desk.Box(6).Visible());
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(HandOver, WithoutALibraryLeavesTheWheelsAlone) {
  QuietDesk desk;
  desk.Scan();
  desk.MakeWheel();
  EXPECT_EQ(desk.Window().List2.ListCount(), 0);
  EXPECT_EQ(desk.Window().ListMain.RowCount(), 49);
  EXPECT_EQ(desk.Window().List1.ListIndex(), 0);
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(HandOver, ASecondOneReplacesTheFirst) {
  QuietDesk desk({Seven()});
  desk.Scan();
  desk.MakeWheel();
  for (int ball = 1; ball <= desk.Main().ProgressBar1.Last(); ++ball) {
    desk.Main().ProgressBar1(ball).SetValue(ball <= 21 ? static_cast<float>(ball) : 0);
  }
  desk.User().Pick(desk.Window().List1, 2);
  desk.MakeWheel();
  wheels::WheelWizard& window = desk.Window();
  EXPECT_EQ(window.ListPerms.ListCount(), 21);
  EXPECT_EQ(window.List1.ListCount(), 10);
  EXPECT_EQ(window.ListMain.RowCount(), 21);
  EXPECT_EQ(desk.BoxTexts(7), (Texts{"21", "20", "19", "18", "17", "16", "15"}));
  EXPECT_EQ(window.Label4(0).ToolTipText(), "21");
}

// The window stands in front already, and its table follows all the same.
TEST(HandOver, WhileTheWindowIsInFrontCutsTheTableAnew) {
  QuietDesk desk({Seven()});
  desk.User().Choose(desk.Frame().MnuWheel);
  EXPECT_EQ(desk.Window().ListMain.RowCount(), 0);
  desk.Main().ProgressBar1(5).SetValue(9);
  desk.User().Choose(desk.Frame().MnuWheel);
  EXPECT_EQ(desk.Window().ListMain.Rows(), (std::vector<Cells>{{"009", "05", "Hot"}}));
}

TEST(HandOver, WithTheMainWindowClosedHasNoCounts) {
  QuietDesk desk({Seven()});
  desk.Scan();
  desk.User().Close(desk.Main());
  desk.User().Choose(desk.Frame().MnuWheel);
  EXPECT_EQ(desk.Window().ListPerms.ListCount(), 0);
  EXPECT_EQ(desk.Window().List1.ListCount(), 10);
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(WheelMark, FollowsTheWindow) {
  QuietDesk desk({Seven()});
  const base::Label& mark = desk.Frame().Label5;
  EXPECT_TRUE(mark.Enabled());
  EXPECT_EQ(mark.BackColor(), kNotInUse);
  EXPECT_EQ(mark.Caption(), "Wheels");
  desk.Open();
  EXPECT_TRUE(mark.Enabled());
  EXPECT_EQ(mark.BackColor(), kInUse);
  desk.User().Close(desk.Window());
  EXPECT_FALSE(mark.Enabled());
  EXPECT_EQ(mark.BackColor(), kNotInUse);
  EXPECT_THROW(desk.Open(), base::ActRefused);
  desk.User().Choose(desk.Frame().MnuWheel);
  EXPECT_TRUE(mark.Enabled());
  EXPECT_EQ(mark.BackColor(), kInUse);
}

TEST(WheelMark, OpensTheWindowWithTheSetsAndNoneSelected) {
  QuietDesk desk({Seven()});
  desk.Scan();
  desk.Open();
  wheels::WheelWizard& window = desk.Window();
  EXPECT_EQ(window.List1.Rows(), SetEntries());
  EXPECT_EQ(window.List1.ListIndex(), -1);
  EXPECT_EQ(window.List2.ListIndex(), -1);
  EXPECT_EQ(window.ListPerms.ListCount(), 0);
  EXPECT_FALSE(desk.Box(0).Visible());
  EXPECT_EQ(OpenNames(desk).front(), "FrmTxt");
  EXPECT_EQ(window.Left(), 0);
  EXPECT_EQ(window.Top(), 0);
}

TEST(WheelMark, ShowsAnOpenWindowAsItIs) {
  QuietDesk desk({Seven()});
  desk.Scan();
  desk.MakeWheel();
  desk.Window().Move(300, 400);
  desk.User().Switch(desk.Main());
  const Texts boxes = desk.BoxTexts(20);
  desk.Open();
  EXPECT_EQ(OpenNames(desk).front(), "FrmTxt");
  EXPECT_EQ(desk.Window().List1.ListCount(), 10);
  EXPECT_EQ(desk.Window().List1.ListIndex(), 0);
  EXPECT_EQ(desk.BoxTexts(20), boxes);
  EXPECT_EQ(desk.Window().Left(), 0);
  EXPECT_EQ(desk.Window().Top(), 0);
}

TEST(WheelDeskRoad, AClosedWindowStartsAfresh) {
  QuietDesk desk({Seven()});
  desk.Scan();
  desk.MakeWheel();
  desk.User().Click(desk.Window().cmdwizard(1));
  desk.boxes.inputs = {"1 2 3"};
  desk.User().Click(desk.Window().cmdwizard(3));
  desk.User().Click(desk.Window().cmdwizardp(0));
  EXPECT_NE(desk.State().check_numbers[0], 0);
  desk.User().Close(desk.Window());
  EXPECT_EQ(desk.Desk().Wheels(), nullptr);
  desk.User().Choose(desk.Frame().MnuWheel);
  EXPECT_EQ(desk.State().check_numbers, (std::array<std::int16_t, 20>{}));
  EXPECT_EQ(desk.State().line_numbers, (std::array<std::int16_t, 20>{}));
  EXPECT_EQ(desk.State().user_numbers, (std::array<std::string, 53>{}));
  EXPECT_EQ(desk.State().wheel_name, "");
  EXPECT_EQ(desk.State().wizard_step, 0);
  EXPECT_EQ(desk.Window().LstWheel.RowCount(), 0);
  EXPECT_EQ(desk.settings.Get("velmonte", "searchs", "lastwincheck"), "1 2 3");
}

struct NotedFrame : wheels::WheelWizard::FrameSide {
  void MarkWheelWindow(bool in_use) override { marks.push_back(in_use); }
  void SetHelpFile(const std::string& path) override { help_file = path; }
  std::vector<bool> marks;
  std::string help_file;
};

TEST(WheelDeskRoad, TellsTheFrameItsHelpFileAndItsUse) {
  base::Ports ports;
  base::Desktop desktop(ports);
  store::Session session(ports.files);
  session.program_folder = "C:\\Desk";
  wheels::WheelState state;
  NotedFrame frame;
  wheels::WheelWizard window(session, desktop, state, frame);
  desktop.Load(window);
  EXPECT_EQ(frame.help_file, "C:\\Desk\\QND.HLP");
  EXPECT_TRUE(session.wheel_window_loaded);
  EXPECT_TRUE(frame.marks.empty());
  desktop.Show(window);
  desktop.Unload(window);
  EXPECT_EQ(frame.marks, (std::vector<bool>{true, false}));
  EXPECT_FALSE(session.wheel_window_loaded);
  // A store that keeps nothing has no library.
  EXPECT_EQ(state.wheel_ini_path, "");
  EXPECT_EQ(window.List2.ListCount(), 0);
}

// Form_Load yields; what happens there must not be undone.
TEST(WheelDeskRoad, ClosedInTheYieldOfItsLoadIsGone) {
  QuietDesk desk({Seven()});
  desk.pump.At(1, [&] { desk.User().Close(desk.Window()); });
  desk.Open();
  EXPECT_EQ(desk.Desk().Wheels(), nullptr);
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(OpenNames(desk), (Texts{"MainWindow", "frmMain"}));
}

TEST(WheelDeskRoad, TheFrameCanCloseOverIt) {
  QuietDesk desk({Seven()});
  desk.Scan();
  desk.MakeWheel();
  desk.Desk().Stop();
  EXPECT_TRUE(desk.Desk().Ended());
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(WheelDeskRoad, AReplacedLibraryCountsAtTheNextRead) {
  QuietDesk desk({Seven()});
  desk.Scan();
  desk.MakeWheel();
  desk.WriteLibrary(LibraryText({SixWheel(8, {"1 2"}), SixWheel(7, {"3 4"})}));
  EXPECT_EQ(desk.Window().List2.ListCount(), 1);
  desk.User().Click(desk.Window().cmdwizard(1));
  EXPECT_EQ(desk.Window().LstWheel.Rows(),
            (std::vector<Cells>{{desk.Box(2).Text() + " ", desk.Box(3).Text() + " "}}));
  desk.User().Pick(desk.Window().CmbWheelPick, 2);
  EXPECT_EQ(desk.Window().List2.ListCount(), 2);
  std::filesystem::remove(desk.folder / "wheels" / "wheels.ini");
  desk.User().Click(desk.Window().cmdwizard(1));
  EXPECT_EQ(desk.Window().LstWheel.RowCount(), 0);
  EXPECT_TRUE(desk.boxes.shown.empty());
}

// Disks that fail.

void ExpectPathNotFound(WheelDesk& desk) {
  const Texts texts = desk.TakeBoxTexts();
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_TRUE(texts[0].starts_with("Run-time error '76':\r\n\r\nPath not found")) << texts[0];
}

TEST(WheelDisk, AMissingFolderOfReportsIsTold) {
  QuietDesk desk({Seven()});
  desk.Scan();
  desk.MakeWheel();
  std::filesystem::remove(desk.folder / "Reports");
  desk.User().Click(desk.Window().cmdwizard(2));
  ExpectPathNotFound(desk);
  EXPECT_FALSE(std::filesystem::exists(desk.folder / "Reports"));
  EXPECT_TRUE(desk.shell_open.opened.empty());
  EXPECT_EQ(desk.Window().LstWheel.RowCount(), 2);
  desk.boxes.inputs = {"1 2 3"};
  desk.User().Click(desk.Window().cmdwizard(3));
  ExpectPathNotFound(desk);
  EXPECT_EQ(desk.settings.Get("velmonte", "searchs", "lastwincheck"), "1 2 3");
  EXPECT_TRUE(desk.shell_open.opened.empty());
}

// A desk whose disk fails when it is told to.
class FailingDesk : public QuietDesk {
 public:
  FailingDesk() : QuietDesk({Seven()}) {
    files = &disk;
    Start();
    Scan();
    MakeWheel();
    User().Click(Window().cmdwizard(1));
  }
  FailingDisk disk{host_files};
};

// Checking writes its page at once, printing reads the library before, and one that cannot be read
// counts as missing.
TEST(WheelDisk, AFullDiskIsToldAndLeavesNoPage) {
  constexpr int kPrint = 2;
  constexpr int kCheck = 3;
  for (const int button : {kCheck, kPrint}) {
    for (int failing = 1;; ++failing) {
      SCOPED_TRACE(std::to_string(button) + ", operation " + std::to_string(failing));
      FailingDesk desk;
      desk.disk.FailFromNow(failing, base::Error(base::kDiskFull));
      if (button == kCheck) desk.boxes.inputs = {"1 2 3"};
      desk.User().Click(desk.Window().cmdwizard(button));
      if (!desk.disk.HasFailed()) {
        EXPECT_EQ(desk.Pages().size(), 1u);
        EXPECT_TRUE(desk.boxes.shown.empty());
        EXPECT_GT(failing, button == kPrint ? 2 : 1);
        break;
      }
      const bool is_library = button == kPrint && failing == 1;
      EXPECT_EQ(desk.TakeBoxTexts(),
                is_library ? Texts{} : Texts{"Run-time error '61':\r\n\r\nDisk full"});
      EXPECT_TRUE(desk.Pages().empty());
      EXPECT_TRUE(desk.shell_open.opened.empty());
      // The next try goes well.
      desk.User().Click(desk.Window().cmdwizard(kPrint));
      EXPECT_EQ(desk.Pages().size(), 1u);
      EXPECT_TRUE(desk.boxes.shown.empty());
    }
  }
}

TEST(WheelDisk, AFailureLeavesTheFormerPageOfThatSecondWhole) {
  FailingDesk desk;
  desk.User().Click(desk.Window().cmdwizard(2));
  const Texts pages = desk.Pages();
  ASSERT_EQ(pages.size(), 1u);
  const std::string page = desk.ReadFile("Reports/" + pages[0]);
  desk.disk.FailFromNow(2, base::Error(base::kDiskFull));
  desk.SetBoxes({"48"});
  desk.User().Click(desk.Window().cmdwizard(2));
  EXPECT_TRUE(desk.disk.HasFailed());
  EXPECT_EQ(desk.ReadFile("Reports/" + pages[0]), page);
}

TEST(WheelDisk, ALibraryThatCannotBeReadCountsAsMissing) {
  FailingDesk desk;
  desk.disk.FailFromNow(1, base::Error(base::kPermission));
  desk.User().Click(desk.Window().cmdwizard(1));
  EXPECT_TRUE(desk.disk.HasFailed());
  EXPECT_EQ(desk.Window().LstWheel.RowCount(), 0);
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(WheelDisk, NumbersThatCannotBeStoredAreTold) {
  QuietDesk desk({Seven()});
  desk.Scan();
  desk.MakeWheel();
  desk.User().Click(desk.Window().cmdwizard(1));
  desk.settings.broken = true;
  desk.boxes.inputs = {"1 2 3"};
  desk.User().Click(desk.Window().cmdwizard(3));
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{"Run-time error '70':\r\n\r\nPermission denied"});
  EXPECT_TRUE(desk.Pages().empty());
  EXPECT_FALSE(desk.Desk().Ended());
}

}  // namespace
}  // namespace test
