#include "wheels/wheel_wizard.h"

namespace wheels {

WheelWizard::WheelWizard(store::Session& session, base::Desktop& desktop, WheelState& state,
                         FrameSide& frame)
    : session_(session),
      desktop_(desktop),
      frame_(frame),
      place_{*this, state, desktop, session.program_folder},
      choosing_(place_),
      number_boxes_(place_),
      generation_(place_),
      guide_(place_),
      report_(place_, generation_),
      hit_check_(place_) {
  state = WheelState();
  on.load = [this] { Form_Load(); };
  on.activate = [this] { Form_Activate(); };
  on.unload = [this] { Form_Unload(); };
  choosing_.Wire();
  number_boxes_.Wire();
  generation_.Wire();
  guide_.Wire();
  report_.Wire();
  hit_check_.Wire();
}

void WheelWizard::Form_Load() {
  session_.wheel_window_loaded = true;
  frame_.SetHelpFile(session_.program_folder + "\\QND.HLP");
  choosing_.CmbWheelPick_Click();
  desktop_.YieldFor(*this);
  choosing_.List1_Click();
}

void WheelWizard::Form_Activate() {
  frame_.MarkWheelWindow(true);
  choosing_.DoColorTemp();
}

void WheelWizard::Form_Unload() {
  session_.wheel_window_loaded = false;
  frame_.MarkWheelWindow(false);
}

void WheelWizard::TakeOver(const std::vector<std::string>& entries) {
  desktop_.Load(*this);
  ListPerms.Clear();
  List1.Clear();
  List4.Clear();
  choosing_.FillNumberSets();
  for (const std::string& entry : entries) {
    ListPerms.AddItem(entry);
    List4.AddItem(entry);
  }
  choosing_.FillHints();
  Move(0, 0);
  const bool in_front = Visible() && desktop_.OpenForms().front() == this;
  desktop_.Show(*this);
  if (in_front) desktop_.Activate(*this);  // the table is cut anew even then
  SelectRow(List1, 0);
  if (List2.ListCount() > 0) SelectRow(List2, 0);
}

void WheelWizard::ShowAlone() {
  if (List1.ListCount() == 0) choosing_.FillNumberSets();
  Move(0, 0);
  desktop_.Show(*this);
}

}  // namespace wheels
