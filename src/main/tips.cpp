#include "main/tips.h"

namespace main_window {
namespace {

constexpr const char* kTipTitle =
    "QND Tips are on, use the menu Settings/options to turn these Tips off";

const char* TipText(int number) {
  switch (number) {
    case 5:
      return "Tip: You may paste one line of numbers including the date into field B1\r\n"
             "You may use the reset button to cancel the Add action at any time";
    case 6:
      return "Tip: You can right click the graph for additional options\r\n";
    case 7:
      return "Tip: Click scan to begin analysing the lottery results\r\n"
             "When the scan completes click the Make Wheel button to use the results in a wheel";
    default:
      return nullptr;
  }
}

}  // namespace

void ShowTip(base::MessageBoxes& boxes, int number) {
  if (const char* text = TipText(number)) {
    boxes.Ask({.text = text, .title = kTipTitle, .icon = base::BoxIcon::kInformation});
  }
}

}  // namespace main_window
