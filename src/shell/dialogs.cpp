#include "shell/dialogs.h"

#include "base/language/numbers.h"
#include "shell/preferences.h"
#include "store/setting_names.h"

namespace shell {

using store::kDeskApplication;
using store::kTitleApplication;

// --- Options

void Options::Wire() {
  window_.on.load = [this] { Form_Load(); };
  window_.ChkMsgBox.on.click = [this] { ChkMsgBox_Click(); };
  window_.Label3.on.click = [this] { Label3_Click(); };
}

void Options::Form_Load() {
  base::Settings& settings = desktop_.World().settings;
  const double splash =
      ReadNumber(settings, kDeskApplication, session_.version_section, "SplashScreen", 1);
  if (splash == 1) window_.CheckSplash.SetValue(1);
  if (splash == 0) window_.CheckSplash.SetValue(0);
  splash_before_ = window_.CheckSplash.Value();
  ChooseDateFormat();
  session_.tips_on =
      ReadBoolean(settings, kDeskApplication, session_.version_section, "Tips", true);
  window_.ChkMsgBox.SetValue(session_.tips_on ? 1 : 0);
}

void Options::ChooseDateFormat() {
  ReadRegion(desktop_.World().settings, session_);
  const std::string_view patterns[] = {kDayFirstPattern, kMonthFirstPattern};
  for (int member = 0; member < 2; ++member) {
    const std::string stored = desktop_.World().settings.Get(
        kDeskApplication, session_.version_section, "Region", patterns[member]);
    if (stored == patterns[member]) window_.OptDateFormat(member).SetValue(true);
  }
}

void Options::ChkMsgBox_Click() {
  session_.tips_on = window_.ChkMsgBox.Value() == 1;
  desktop_.World().settings.Save(kDeskApplication, session_.version_section, "Tips",
                                 base::BooleanText(session_.tips_on));
}

void Options::Label3_Click() {
  base::Ports& world = desktop_.World();
  world.settings.Save(kDeskApplication, session_.version_section, "SplashScreen",
                      base::IntegerText(window_.CheckSplash.Value()));
  SaveDateFormat();
  TellSplashChange();
  ChkMsgBox_Click();
  world.boxes.Ask({.text = "Your settings have been saved"});
}

void Options::SaveDateFormat() {
  base::Settings& settings = desktop_.World().settings;
  const std::string_view patterns[] = {kDayFirstPattern, kMonthFirstPattern};
  for (int member = 0; member < 2; ++member) {
    if (!window_.OptDateFormat(member).Value()) continue;
    session_.date_format_text = patterns[member];
    settings.Save(kDeskApplication, session_.version_section, "Region", patterns[member]);
  }
  settings.Save(kTitleApplication, "ChecDataBase", "DateFormat",
                base::BooleanText(window_.OptDateFormat(0).Value()));
}

void Options::TellSplashChange() {
  const int splash = window_.CheckSplash.Value();
  if (splash == splash_before_) return;
  splash_before_ = splash;
  if (splash == 0) {
    desktop_.World().boxes.Ask(
        {.text = "Splash screen will not show on start up", .title = "Splash screen disabled"});
  } else {
    desktop_.World().boxes.Ask(
        {.text = "Splash will now show on start up", .title = "Splash screen enabled"});
  }
}

// --- About

void About::Wire(const Version& version) {
  window_.lblVersion.SetCaption("Version " + VersionText(version));
  window_.cmdOK.on.click = [this] { desktop_.Unload(window_); };
  window_.cmdSysInfo.on.click = [this] { cmdSysInfo_Click(); };
}

void About::cmdSysInfo_Click() {
  if (desktop_.World().system_information.Open()) return;
  desktop_.World().boxes.Ask({.text = "System Information Is Unavailable At This Time"});
}

}  // namespace shell
