#pragma once

#include <functional>
#include <string>
#include <vector>

#include "store/session.h"
#include "wheels/choosing.h"
#include "wheels/generation.h"
#include "wheels/guide.h"
#include "wheels/hit_check.h"
#include "wheels/number_boxes.h"
#include "wheels/wheel_report.h"

namespace wheels {

// The wheel window together with the subjects that work in it.
class WheelWizard : public FrmTxt {
 public:
  // What the window asks of the frame.
  class FrameSide {
   public:
    virtual ~FrameSide() = default;
    virtual void MarkWheelWindow(bool in_use) = 0;
    virtual void SetHelpFile(const std::string& path) = 0;
  };

  // Everything must outlive the window. `state` starts afresh with it.
  WheelWizard(store::Session& session, base::Desktop& desktop, WheelState& state, FrameSide& frame);

  wheels::Choosing& Choosing() { return choosing_; }
  wheels::Generation& Generation() { return generation_; }
  wheels::NumberBoxes& NumberBoxes() { return number_boxes_; }
  wheels::HitCheck& HitCheck() { return hit_check_; }

  void Form_Load();
  void Form_Activate();
  void Form_Unload();
  // For the windows that fill ListPerms.
  void ListClick() { choosing_.List1_Click(); }

  // Takes over the counts of a scan, entries in the form of ListPerms: fills the lists, shows the
  // window and selects the first number set and the first wheel.
  void TakeOver(const std::vector<std::string>& entries);
  // Shows the window as it is; a new one offers the number sets but has no counts.
  void ShowAlone();

 private:
  store::Session& session_;
  base::Desktop& desktop_;
  FrameSide& frame_;
  WheelPlace place_;
  wheels::Choosing choosing_;
  wheels::NumberBoxes number_boxes_;
  wheels::Generation generation_;
  wheels::Guide guide_;
  wheels::WheelReport report_;
  wheels::HitCheck hit_check_;
};

}  // namespace wheels
