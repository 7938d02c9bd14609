#pragma once

#include <string>
#include <utility>

#include "base/controls/control.h"

// The controls that hold one value each.

namespace base {

// What labels, buttons, options, ticks, panels and menu items share.
class Captioned : public Control {
 public:
  using Control::Control;
  const std::string& Caption() const { return caption_; }
  virtual void SetCaption(std::string caption) { Set(caption_, std::move(caption)); }
  std::optional<PropertyValue> Property(std::string_view name) const override;
  std::string_view MainProperty() const override { return "Caption"; }

 protected:
  std::string caption_;
};

class Label : public Captioned {
 public:
  explicit Label(Form& form, std::string name, int index = kNoIndex)
      : Captioned(form, ControlKind::kLabel, std::move(name), index) {}
  void SetCaption(std::string caption) override;
  // The caption as the text of a count. Costs next to nothing while the count stays the same.
  void SetNumber(float number);

 private:
  float number_ = 0;
  bool shows_number_ = false;
};

class Button : public Captioned {
 public:
  explicit Button(Form& form, std::string name, int index = kNoIndex)
      : Captioned(form, ControlKind::kButton, std::move(name), index) {}
  bool TakesFocus() const override { return true; }
};

// One of several of which exactly one is chosen. Options of the same window and group name exclude
// each other; the group is the panel that they stand on.
class Option : public Captioned {
 public:
  explicit Option(Form& form, std::string name, int index = kNoIndex)
      : Captioned(form, ControlKind::kOption, std::move(name), index) {}
  bool Value() const { return value_; }
  void SetValue(bool value);
  const std::string& Group() const { return group_; }
  void SetGroup(std::string group) { group_ = std::move(group); }
  bool TakesFocus() const override { return true; }
  std::optional<PropertyValue> Property(std::string_view name) const override;
  std::string_view MainProperty() const override { return "Value"; }

 private:
  bool value_ = false;
  std::string group_;
};

// A tick box: 0 clear, 1 ticked.
class Tick : public Captioned {
 public:
  explicit Tick(Form& form, std::string name, int index = kNoIndex)
      : Captioned(form, ControlKind::kTick, std::move(name), index) {}
  int Value() const { return value_; }
  void SetValue(int value) { Set(value_, value); }
  bool TakesFocus() const override { return true; }
  std::optional<PropertyValue> Property(std::string_view name) const override;
  std::string_view MainProperty() const override { return "Value"; }

 private:
  int value_ = 0;
};

// A frame or picture box that carries other controls.
class Panel : public Captioned {
 public:
  explicit Panel(Form& form, std::string name, int index = kNoIndex)
      : Captioned(form, ControlKind::kPanel, std::move(name), index) {}
};

// A box of text. Setting another text than the one it holds runs its Change event.
class TextBox : public Control {
 public:
  explicit TextBox(Form& form, std::string name, int index = kNoIndex)
      : Control(form, ControlKind::kTextBox, std::move(name), index) {
    SetBackColor(0xFFFFFF);
  }
  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);
  bool TakesFocus() const override { return true; }
  std::optional<PropertyValue> Property(std::string_view name) const override;
  std::string_view MainProperty() const override { return "Text"; }

 private:
  std::string text_;
};

// Where a ball stands among all by how often it came up.
enum class Band { kNone, kCold, kWarm, kHot };

// A vertical bar with a scale, a fill colour and a mark (its border).
class Bar : public Control {
 public:
  explicit Bar(Form& form, std::string name, int index = kNoIndex)
      : Control(form, ControlKind::kBar, std::move(name), index) {
    SetBackColor(0xFFFFFF);
  }
  float Value() const { return value_; }
  float Min() const { return min_; }
  float Max() const { return max_; }
  Colour FillColor() const { return fill_color_; }
  void SetValue(float value) { Set(value_, value); }
  void SetMax(float max) { Set(max_, max); }
  void SetFillColor(Colour colour) { Set(fill_color_, colour); }
  // The band is told beside the colour, since a style may paint two bands alike.
  Band RankBand() const { return band_; }
  void SetRankBand(Band band) { Set(band_, band); }
  std::optional<PropertyValue> Property(std::string_view name) const override;
  std::string_view MainProperty() const override { return "Value"; }

 private:
  float value_ = 0;
  float min_ = 0;
  float max_ = 100;
  Colour fill_color_ = 0xFF0000;
  Band band_ = Band::kNone;
};

class Scroll : public Control {
 public:
  explicit Scroll(Form& form, std::string name, int index = kNoIndex)
      : Control(form, ControlKind::kScroll, std::move(name), index) {}
  int Value() const { return value_; }
  int Min() const { return min_; }
  int Max() const { return max_; }
  // Runs the Change event when the value becomes another.
  void SetValue(int value);
  void SetRange(int min, int max);
  bool TakesFocus() const override { return true; }
  std::optional<PropertyValue> Property(std::string_view name) const override;
  std::string_view MainProperty() const override { return "Value"; }

 private:
  int value_ = 0;
  int min_ = 0;
  int max_ = 100;
};

// Its click is the tick of the clock. Interval in milliseconds, 0 for never.
class Timer : public Control {
 public:
  explicit Timer(Form& form, std::string name, int index = kNoIndex)
      : Control(form, ControlKind::kTimer, std::move(name), index) {}
  int Interval() const { return interval_; }
  void SetInterval(int milliseconds) { Set(interval_, milliseconds); }
  std::string_view MainProperty() const override { return "Enabled"; }

 private:
  int interval_ = 0;
};

// An entry of the menu bar or of a menu below it. An entry without a parent is a menu of the bar.
class MenuItem : public Captioned {
 public:
  MenuItem(Form& form, std::string name, MenuItem* parent = nullptr)
      : MenuItem(form, std::move(name), kNoIndex, parent) {}
  MenuItem(Form& form, std::string name, int index, MenuItem* parent)
      : Captioned(form, ControlKind::kMenuItem, std::move(name), index), parent_(parent) {}
  MenuItem* Parent() const { return parent_; }
  bool Checked() const { return checked_; }
  void SetChecked(bool checked) { Set(checked_, checked); }
  bool IsSeparator() const { return caption_ == "-"; }
  std::optional<PropertyValue> Property(std::string_view name) const override;

 private:
  MenuItem* parent_;
  bool checked_ = false;
};

}  // namespace base
