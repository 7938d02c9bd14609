#include "wheels/number_boxes.h"

#include "base/language/numbers.h"
#include "base/language/text.h"

namespace wheels {
namespace {

constexpr int kSortPasses = 41;
constexpr std::string_view kKeys = "0123456789/";
constexpr char kBackspace = 8;
constexpr char kReturn = 13;
constexpr char kSpace = 32;
constexpr base::Colour kWhite = 0xFFFFFF;
constexpr base::Colour kMarkColour = 0x00FFFF;
constexpr int kPlainBorder = 0;
constexpr int kMarkBorder = 1;

}  // namespace

void NumberBoxes::Wire() {
  FrmTxt& window = place_.window;
  window.TXTActiveNumbers.Each([this](base::TextBox& box) { WireBox(box); });
  window.Label2.Each(
      [this](base::Label& label) { label.on.click = [this, &label] { PutQuickNumber(label); }; });
  window.Label8.on.click = [&window] { window.PicNumbers.SetVisible(false); };
  window.cmdwizard(0).on.click = [this] { SortNumbers(); };
}

void NumberBoxes::WireBox(base::TextBox& box) {
  base::Panel& panel = place_.window.PicNumbers;
  box.on.change = [this, &box] { TXTActiveNumbers_Change(box); };
  box.on.lost_focus = [this, &box] {
    Pad(box);
    begun_ = kNone;
  };
  box.on.key_press = [this, &box](char& key) { TXTActiveNumbers_KeyPress(box, key); };
  box.on.click = [this, &box, &panel] {
    ChangeColors();
    panel.SetTag(base::IntegerText(box.Index()));
  };
  box.on.double_click = [&box, &panel] {
    panel.SetTag(base::IntegerText(box.Index()));
    panel.SetVisible(true);
    panel.BringToFront();
  };
}

void NumberBoxes::TXTActiveNumbers_KeyPress(base::TextBox& box, char& key) {
  if (key == kReturn || key == kSpace) {
    key = 0;
    place_.desktop.SendTab();
    return;
  }
  if (key != kBackspace && kKeys.find(key) == std::string_view::npos) {
    key = 0;
    place_.World().beeper.Beep();
    return;
  }
  const bool holds_a_character = !box.Text().empty();
  const bool lone_digit = box.Text().size() == 2 && box.Text().front() == '0';
  if (lone_digit && (begun_ == box.Index() || key == kBackspace)) TakeBackZero(box);
  typed_ = box.Index();
  // The second digit completes a number and moves on.
  if (key != kBackspace && holds_a_character) place_.desktop.SendTab();
}

void NumberBoxes::TXTActiveNumbers_Change(base::TextBox& box) {
  if (padding_rests_) return;
  begun_ = typed_ == box.Index() && box.Text().size() == 1 ? typed_ : kNone;
  typed_ = kNone;
  AddOto1LengthNumbers();
}

void NumberBoxes::TakeBackZero(base::TextBox& box) {
  padding_rests_ = true;
  box.SetText(base::Right(box.Text(), 1));
  padding_rests_ = false;
}

void NumberBoxes::AddOto1LengthNumbers() {
  place_.window.TXTActiveNumbers.Each([this](base::TextBox& box) { Pad(box); });
}

void NumberBoxes::Pad(base::TextBox& box) {
  if (box.Text().size() != 1) return;
  padding_rests_ = true;
  box.SetText("0" + box.Text());
  padding_rests_ = false;
}

void NumberBoxes::SortNumbers() {
  base::Group<base::TextBox>& boxes = place_.window.TXTActiveNumbers;
  for (int pass = 0; pass < kSortPasses; ++pass) {
    for (int i = 0; i + 1 < place_.state.wheel_pool; ++i) {
      const double number = base::NumericValue(boxes(i).Text());
      const double next = base::NumericValue(boxes(i + 1).Text());
      if (next == 0 || next >= number) continue;
      boxes(i).SetText(base::DoubleText(next));
      boxes(i + 1).SetText(base::DoubleText(number));
    }
  }
}

void NumberBoxes::CheckForDuplicates(int first, int second) {
  const base::Group<base::TextBox>& boxes = place_.window.TXTActiveNumbers;
  const std::string& a = boxes(first).Text();
  const std::string& b = boxes(second).Text();
  if (base::NumericValue(a) > 0 && base::NumericValue(b) > 0 && a == b) {
    place_.World().boxes.Ask({.text = "No duplicates please, the results will be inaccurate"});
  }
}

void NumberBoxes::ChangeColors() {
  FrmTxt& window = place_.window;
  window.Label2.Each([](base::Label& label) {
    label.SetBackColor(kWhite);
    label.SetBorderStyle(kPlainBorder);
  });
  window.TXTActiveNumbers.Each([&window](base::TextBox& box) {
    const double place = base::NumericValue(box.Text()) - 1;
    // A number that is on no slip has no label to mark.
    if (place < 0 || place > kLastQuickLabel) return;
    base::Label& label = window.Label2(base::ToInt16(place));
    label.SetBackColor(kMarkColour);
    label.SetBorderStyle(kMarkBorder);
  });
}

void NumberBoxes::PutQuickNumber(const base::Label& label) {
  FrmTxt& window = place_.window;
  window.TXTActiveNumbers(base::ToInt16(window.PicNumbers.Tag())).SetText(label.Caption());
  ChangeColors();
}

}  // namespace wheels
