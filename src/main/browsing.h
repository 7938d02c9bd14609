#pragma once

#include "main/workplace.h"

namespace main_window {

// Walking through the draws: by the table, which copies a row to the boxes, and by the file, which
// reads a record into them.
class Browsing {
 public:
  // What browsing asks of the window's other subjects.
  class Neighbours {
   public:
    virtual ~Neighbours() = default;
    // Loads the window's buffers anew after they were found empty.
    virtual void ReloadBuffers() = 0;
  };

  Browsing(Workplace place, Neighbours& neighbours) : place_(place), neighbours_(neighbours) {}

  // Gives the controls of browsing their events.
  void Wire();

  void cmdFirst_Click();
  void cmdPrev_Click();
  void cmdNext_Click();
  void cmdLast_Click();
  void List7_Click();

  void MoveFirst();
  void MovePrev();
  void MoveNext();
  void MoveLast();
  void EnableTheButtons(bool on);

  // Shows the table's selected row in the boxes; an empty table loads the buffers again.
  void FillFromListView();
  // The same for a table with rows, its errors left to the caller. Error 13 or 6 for a ball that is
  // no number from 0 to 255.
  void ShowSelectedRow();
  // Brings a row into the boxes, and changes nothing else.
  void ShowCells(int row);
  // Shows current_draw in the boxes and yields once. Errors as above; txtRecNum stays.
  void FillTextMainWindow();
  // Writes current_balls, shown_day and shown_date to their boxes.
  void ShowBoxes();
  // Back to the first record with all counts at zero. The counts' captions stay.
  void GotoDataBasePosition1MainWindow();

 private:
  void ClearHighlight();
  void Highlight();
  void SetEntryButtons(bool enabled);

  Workplace place_;
  Neighbours& neighbours_;
};

}  // namespace main_window
