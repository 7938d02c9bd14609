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

// The entry boxes as fields: what they do while a draw is shown, and how they are read back.
class Entry {
 public:
  // What entry asks of the scan.
  class Neighbours {
   public:
    virtual ~Neighbours() = default;
    virtual void ZeroItMainWindow() = 0;
    virtual void FillCommand4TagMainWindow() = 0;
  };

  Entry(Workplace place, Browsing& browsing, Neighbours& neighbours)
      : place_(place), browsing_(browsing), neighbours_(neighbours) {}

  // Gives the boxes and buttons of entry their events.
  void Wire();

  void CmdReset_Click();
  // Puts the product's name back where notices stand.
  void QNDLabels();
  // Copies the boxes into current_draw, balls padded and the day in two letters.
  void SaveFields();

 private:
  void EnableSlot(base::TextBox& box, int heading, bool filled);

  Workplace place_;
  Browsing& browsing_;
  Neighbours& neighbours_;
};

}  // namespace store
