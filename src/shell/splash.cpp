#include "shell/splash.h"

#include "base/language/error.h"
#include "shell/preferences.h"
#include "store/setting_names.h"

namespace shell {
namespace {

constexpr std::string_view kSplashKey = "SplashScreen";
constexpr int kSkip = 1;

}  // namespace

void Splash::Wire() {
  window_.on.load = [this] { Form_Load(); };
  window_.CmdContinue.on.click = [this] { CmdContinue_Click(); };
}

void Splash::Form_Load() {
  base::Settings& settings = desktop_.World().settings;
  window_.lblVersion.SetCaption("Version " + VersionText(version_));
  session_.version_section = VersionSection(version_);
  ReadPreferences(settings, session_);
  const double splash =
      ReadNumber(settings, store::kDeskApplication, session_.version_section, kSplashKey, 0);
  if (splash == kSkip) CmdContinue_Click();
}

void Splash::CmdContinue_Click() {
  if (window_.ChkNoSplash.Value() == 1) {
    try {
      desktop_.World().settings.Save(store::kDeskApplication, session_.version_section, kSplashKey,
                                     std::to_string(kSkip));
    } catch (const base::Error&) {
      // A wish that cannot be kept must not keep the desk from starting.
    }
  }
  show_frame_();
  desktop_.Unload(window_);
}

}  // namespace shell
