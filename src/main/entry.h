#pragma once

#include <array>
#include <string>

#include "main/browsing.h"
#include "main/guard.h"
#include "main/working_copy.h"
#include "main/workplace.h"

namespace main_window {

// Entering draws: adding, saving, clearing, editing in place, pasting a line.
class Entry {
 public:
  // What entry asks of the scan and of the working copy.
  class Neighbours {
   public:
    virtual ~Neighbours() = default;
    virtual void ZeroItMainWindow() = 0;
    virtual void FillCommand4TagMainWindow() = 0;
    // See WorkingCopy.
    virtual bool DoDataBase(const Edit& edit) = 0;
  };

  Entry(Workplace place, Browsing& browsing, Neighbours& neighbours)
      : place_(place), browsing_(browsing), neighbours_(neighbours), guard_(place) {}

  // Gives the buttons of entry their events.
  void Wire();

  void cmdAdd_Click();
  void cmdSave_Click();
  void cmdClear_Click();
  void CmdReset_Click();
  void cmdedit_Click();
  // Takes apart a line of results that was pasted into the first box.
  void TxtBall01_MouseUp();

  // Puts the product's name back where notices stand.
  void QNDLabels();
  // Appends the boxes as a new draw. An error goes to the reporter, with the file as it was; false
  // then, and where the file may not be written.
  bool SaveNewRecord();
  // Balls to two digits, and the day's two letters into day_text.
  void DoTextBox();

 private:
  // What stands in the nine boxes.
  struct Typed {
    std::array<std::string, store::kBalls> balls;
    std::string day;
    std::string date;
    int place_on_show = 0;
  };
  Typed Boxes() const;
  void PutBack(const Typed& typed);

  void EnableBoxes();
  void LeaveAdding();
  void StartEdit();
  void SaveEdit();
  void ReplaceEditedLine();
  void PutLine(int place, const std::string& line, const base::ListView::Cells& row);
  bool SaveTyped();
  bool IsStoredAlready();
  bool BoxesAreValid();
  void CheckValidData();
  bool CheckSaveBoxes(base::TextBox& box, const std::string& name);
  void SortBoxes();
  void ShowSavedDraw();
  std::string LineOfBoxes();

  Workplace place_;
  Browsing& browsing_;
  Neighbours& neighbours_;
  Guard guard_;
};

}  // namespace main_window
