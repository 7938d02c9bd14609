#include "shell/frame.h"

#include "base/language/numbers.h"
#include "main/headings.h"
#include "shell/preferences.h"
#include "store/setting_names.h"

namespace shell {
namespace {

using store::kDeskApplication;
using store::kTitleApplication;
using Style = scan::GraphOptions::Style;

constexpr std::string_view kPlaceSection = "Settings";
constexpr base::Colour kMarked = 0xE0E0E0;
constexpr base::Colour kCleared = 0xC0C0C0;
constexpr base::Colour kClearedTool = 0x80000003;

const base::MessageBox kNoHelp{
    .text = "Unable to display Help Contents. There is no Help associated with this project."};

}  // namespace

void Frame::Wire() {
  const auto trapped = [this](const char* name, auto body) {
    return base::Trap(reporter_, name, body);
  };
  window_.on.load = trapped("MDIForm_Load", [this] { MDIForm_Load(); });
  window_.on.unload = [this] { MDIForm_Unload(); };
  window_.on.resize = [this] { window_.PicTile.Move(0, 0, window_.Width(), window_.Height()); };

  const auto show_main = trapped("MnuMainWindow_Click", [this] { windows_.ShowMainWindow(); });
  window_.MnuMainWindow.on.click = show_main;
  window_.Command17.on.click = show_main;
  window_.MnuOptions.on.click = trapped("MnuOptions_Click", [this] { windows_.ShowOptions(); });
  window_.mnuHelpAbout.on.click = trapped("mnuHelpAbout_Click", [this] { windows_.ShowAbout(); });
  window_.mnuHelpContents.on.click = [this] { ShowHelp(base::HelpPage::kContents); };
  window_.mnuHelpSearchForHelpOn.on.click = [this] { ShowHelp(base::HelpPage::kSearch); };
  window_.MnuHgight.on.click = trapped("MnuHgight_Click", [this] { MnuHgight_Click(); });
  window_.MnuBlue.on.click =
      trapped("MnuBlue_Click", [this] { StyleMenu_Click(window_.MnuBlue, Style::kBlue); });
  window_.MnuRWC.on.click =
      trapped("MnuRWC_Click", [this] { StyleMenu_Click(window_.MnuRWC, Style::kColdWarmHot); });
  window_.MnuHC.on.click =
      trapped("MnuHC_Click", [this] { StyleMenu_Click(window_.MnuHC, Style::kColdHot); });
  window_.MnuWheel.on.click = trapped("MnuWheel_Click", [this] { windows_.MakeWheel(); });
  window_.Label5.on.click = trapped("Label5_Click", [this] { windows_.ShowWheelWindow(); });
  window_.MnuStdDev.on.click = trapped("MnuStdDev_Click", [this] { windows_.StandardDeviation(); });
  window_.MnuNumberSelector.on.click =
      trapped("MnuNumberSelector_Click", [this] { windows_.ShowBallSelector(); });
}

void Frame::MDIForm_Load() {
  base::Settings& settings = desktop_.World().settings;
  window_.PicTile.SetVisible(false);
  RestorePlacement();
  const std::string name = main_window::DataBaseNameSetting(settings);
  if (!name.empty()) window_.SetCaption(std::string(store::kWindowTitle) + name);
  ReadRegion(settings, session_);
  windows_.ShowMainWindow();
}

void Frame::RestorePlacement() {
  const auto read = [this](std::string_view key, double default_value) {
    const double value =
        ReadNumber(desktop_.World().settings, kTitleApplication, kPlaceSection, key, default_value);
    try {
      return base::ToInt32(value);
    } catch (const base::Error&) {
      return base::ToInt32(default_value);
    }
  };
  const int left = read("MainLeft", 1000);
  if (left <= 0) return;
  window_.Move(left, read("MainTop", 1000));
  window_.Resize(read("MainWidth", 12000), read("MainHeight", 8200));
}

void Frame::MDIForm_Unload() {
  base::Trapped(reporter_, "MDIForm_Unload", [this] { StorePlacement(); });
  desktop_.UnloadAllBut(window_);
}

void Frame::StorePlacement() {
  if (window_.State() == base::WindowState::kMinimised) return;
  if (desktop_.World().settings.Failure()) return;  // told at the start
  const auto save = [this](std::string_view key, int value) {
    desktop_.World().settings.Save(kTitleApplication, kPlaceSection, key, base::IntegerText(value));
  };
  save("MainLeft", window_.Left());
  save("MainTop", window_.Top());
  save("MainWidth", window_.Width());
  save("MainHeight", window_.Height());
}

void Frame::DoMenus() {
  const auto stored = [this](std::string_view key) {
    return ReadBoolean(desktop_.World().settings, kDeskApplication, session_.version_section, key,
                       false);
  };
  window_.MnuHgight.SetChecked(stored("MnuHgight"));
  window_.MnuBlue.SetChecked(stored("MnuBlue"));
  window_.MnuRWC.SetChecked(stored("MnuRWC"));
  window_.MnuHC.SetChecked(stored("MnuHC"));
  CopyTicks();
}

void Frame::SaveMenus() {
  const auto save = [this](std::string_view key, const base::MenuItem& item) {
    desktop_.World().settings.Save(kDeskApplication, session_.version_section, key,
                                   base::BooleanText(item.Checked()));
  };
  save("MnuHgight", window_.MnuHgight);
  save("MnuBlue", window_.MnuBlue);
  save("MnuRWC", window_.MnuRWC);
  save("MnuHC", window_.MnuHC);
  CopyTicks();
}

void Frame::CopyTicks() {
  session_.mnu_hgight_on = window_.MnuHgight.Checked();
  session_.mnu_blue_on = window_.MnuBlue.Checked();
  session_.mnu_rwc_on = window_.MnuRWC.Checked();
  session_.mnu_hc_on = window_.MnuHC.Checked();
}

void Frame::MnuHgight_Click() {
  window_.MnuHgight.SetChecked(!window_.MnuHgight.Checked());
  SaveMenus();
  windows_.FillFromListView();
}

void Frame::StyleMenu_Click(base::MenuItem& item, Style style) {
  if (!windows_.GraphStylesFilled()) return;
  const bool ticked = !item.Checked();
  for (base::MenuItem* other : {&window_.MnuBlue, &window_.MnuRWC, &window_.MnuHC}) {
    other->SetChecked(other == &item && ticked);
  }
  windows_.ChooseStyle(style);
}

void Frame::MarkMainWindow(bool in_use) {
  window_.Command17.SetBackColor(in_use ? kMarked : kCleared);
  window_.Command17.SetEnabled(in_use);
}

void Frame::MarkWheelWindow(bool in_use) {
  window_.Label5.SetBackColor(in_use ? kMarked : kClearedTool);
  window_.Label5.SetEnabled(in_use);
}

void Frame::ShowHelp(base::HelpPage page) {
  base::Ports& world = desktop_.World();
  if (help_file_.empty() || !world.files.FileExists(help_file_)) {
    world.boxes.Ask(kNoHelp);
  } else {
    world.help.Open(help_file_, page);
  }
}

}  // namespace shell
