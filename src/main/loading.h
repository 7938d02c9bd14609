#pragma once

#include <string>
#include <string_view>

#include "main/browsing.h"
#include "main/workplace.h"

namespace main_window {

// Opening the database and filling the window's buffers with it.
class Loading {
 public:
  // What loading asks of the frame and of the window's other subjects.
  class Neighbours {
   public:
    virtual ~Neighbours() = default;
    virtual void DoBarColors() = 0;
    virtual void DoMenus() = 0;
    virtual void MarkMainWindow(bool in_use) = 0;
    virtual void ShowStatus(const std::string& text) = 0;
    virtual void SetHelpFile(const std::string& path) = 0;
  };

  Loading(Workplace place, Browsing& browsing, Neighbours& neighbours)
      : place_(place), browsing_(browsing), neighbours_(neighbours) {}

  // Picks the database, opens it as file number 1, shows its name and headings.
  void LoadFirstDatabase();
  // Fills the index, the draw lines and the table when they are not filled yet, and brings the
  // window to its browsing state.
  void Form_Activate();
  void GetDataBaseName();
  // Reads the open database into the index, the draw lines and the table, and shows its first draw.
  void FillBuffers();

 private:
  void ChooseDatabase();
  void ForgetChanges();
  bool HoldsWhatIsNowhereElse() const;
  void StartBrowsing();

  Workplace place_;
  Browsing& browsing_;
  Neighbours& neighbours_;
};

// Sets the range of the strip's scroll bar, which shows while the strip is wider than its frame.
void DoTextBoxExpandshion(MainWindow& window);

// A database is a file of its own folder: a name with a separator or a control character in it is
// none.
bool IsDatabaseName(std::string_view name);

}  // namespace main_window
