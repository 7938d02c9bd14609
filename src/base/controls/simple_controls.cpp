#include "base/controls/simple_controls.h"

#include "base/controls/form.h"
#include "base/language/numbers.h"
#include "base/language/text.h"

namespace base {

std::optional<PropertyValue> Captioned::Property(std::string_view name) const {
  if (EqualNoCase(name, "Caption")) return caption_;
  return Control::Property(name);
}

void Label::SetCaption(std::string caption) {
  shows_number_ = false;
  Captioned::SetCaption(std::move(caption));
}

void Label::SetNumber(float number) {
  if (shows_number_ && number_ == number) return;
  Captioned::SetCaption(SingleText(number));
  number_ = number;
  shows_number_ = true;
}

void Option::SetValue(bool value) {
  if (value && !value_) {
    for (Control* other : Window().Controls()) {
      if (other == this || other->Kind() != ControlKind::kOption) continue;
      auto* option = static_cast<Option*>(other);
      if (option->group_ == group_) option->Set(option->value_, false);
    }
  }
  Set(value_, value);
}

std::optional<PropertyValue> Option::Property(std::string_view name) const {
  if (EqualNoCase(name, "Value")) return value_;
  return Captioned::Property(name);
}

std::optional<PropertyValue> Tick::Property(std::string_view name) const {
  if (EqualNoCase(name, "Value")) return static_cast<double>(value_);
  return Captioned::Property(name);
}

void TextBox::SetText(std::string_view text) {
  if (text_ == text) return;
  text_.assign(text);
  MarkChanged();
  if (on.change) on.change();
}

std::optional<PropertyValue> TextBox::Property(std::string_view name) const {
  if (EqualNoCase(name, "Text")) return text_;
  return Control::Property(name);
}

std::optional<PropertyValue> Bar::Property(std::string_view name) const {
  if (EqualNoCase(name, "Value")) return static_cast<double>(value_);
  if (EqualNoCase(name, "Min")) return static_cast<double>(min_);
  if (EqualNoCase(name, "Max")) return static_cast<double>(max_);
  if (EqualNoCase(name, "FillColor")) return static_cast<double>(fill_color_);
  return Control::Property(name);
}

void Scroll::SetValue(int value) {
  if (value_ == value) return;
  value_ = value;
  MarkChanged();
  if (on.change) on.change();
}

void Scroll::SetRange(int min, int max) {
  Set(min_, min);
  Set(max_, max);
}

std::optional<PropertyValue> Scroll::Property(std::string_view name) const {
  if (EqualNoCase(name, "Value")) return static_cast<double>(value_);
  if (EqualNoCase(name, "Min")) return static_cast<double>(min_);
  if (EqualNoCase(name, "Max")) return static_cast<double>(max_);
  return Control::Property(name);
}

std::optional<PropertyValue> MenuItem::Property(std::string_view name) const {
  if (EqualNoCase(name, "Checked")) return checked_;
  return Captioned::Property(name);
}

}  // namespace base
