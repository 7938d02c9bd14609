#pragma once

#include <string>
#include <string_view>

#include "store/browsing.h"
#include "store/workplace.h"

namespace store {

// The two-letter form of a day typed in one of its known spellings ("mo" "MO" "Mo", ...); any other
// text is returned unchanged.
std::string TwoLetterDay(std::string_view text);

// The short form ("Mon") of a day text by the letters that it begins with, or the text itself.
std::string ShortDay(std::string_view text);

// Entering draws: adding, saving, clearing, editing in place, pasting a line.
class Entry {
 public:
  // What entry asks of the scan and of the working copy.
  class Neighbours {
   public:
    virtual ~Neighbours() = default;
    virtual void ZeroItMainWindow() = 0;
    virtual void FillCommand4TagMainWindow() = 0;
    virtual void DoDataBase() = 0;
  };

  Entry(Workplace place, Browsing& browsing, Neighbours& neighbours)
      : place_(place), browsing_(browsing), neighbours_(neighbours) {}

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
  // Copies the boxes into current_draw, balls padded and the day in two letters.
  void SaveFields();
  // Appends the boxes as a new draw. An error goes to the reporter, with the file as it was; false
  // then.
  bool SaveNewRecord();
  // Balls to two digits, and the day's two letters into day_text.
  void DoTextBox();

 private:
  void EnableBoxes();
  void StartEdit();
  void SaveEdit();
  void ReplaceEditedLine();
  int RowOfLine(int number, const std::string& line) const;
  bool BoxesAreValid();
  void CheckValidData();
  bool CheckSaveBoxes(base::TextBox& box, const std::string& name);
  void SortBoxes();
  void ShowSavedDraw();
  std::string LineOfBoxes();

  Workplace place_;
  Browsing& browsing_;
  Neighbours& neighbours_;
};

}  // namespace store
