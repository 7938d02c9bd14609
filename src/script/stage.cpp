#include "script/stage.h"

#include "base/language/code_page.h"
#include "script/wrong_script.h"

namespace script {

void Stage::Start(bool wait_in_splash) {
  if (desk_ && (!desk_->Ended() || desk_->Desktop().Depth() > 0)) {
    throw WrongScript("the desk is running already");
  }
  desk_.reset();  // closes its files before the next process opens them
  settings_ = open_settings_();
  desk_ = std::make_unique<shell::Desk>(ports.All(files_, *settings_), program_folder_);
  desk_->Start();
  if (wait_in_splash) return;
  if (base::Form* splash = desk_->Find("frmSplash")) {
    desk_->User().Click(*splash->Find("CmdContinue"));
  }
}

void Stage::Stop() { Desk().Stop(); }

shell::Desk& Stage::Desk() {
  if (!desk_) throw WrongScript("the desk has not been started");
  return *desk_;
}

base::Form& Stage::Window(const std::string& name) {
  base::Form* const window = Desk().Find(base::FromUtf8(name));
  if (!window) throw WrongScript("no window is open that is called " + name);
  return *window;
}

base::Control& Stage::Control(const Reference& reference) {
  const base::Form& window = Window(reference.window);
  base::Control* const control = FindControl(window, reference);
  if (!control) throw WrongScript("there is no control " + reference.text);
  if (!reference.property.empty()) throw WrongScript("not a control: " + reference.text);
  return *control;
}

base::Control* FindControl(const base::Form& window, const Reference& reference) {
  return window.Find(base::FromUtf8(reference.control), reference.index);
}

}  // namespace script
