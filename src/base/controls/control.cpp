#include "base/controls/control.h"

#include "base/controls/form.h"
#include "base/language/text.h"

namespace base {

Control::Control(Form& form, ControlKind kind, std::string name, int index)
    : form_(form), kind_(kind), name_(std::move(name)), index_(index) {
  form_.Register(this);
}

std::string Control::FullName() const {
  std::string text = form_.Name() + "." + name_;
  if (index_ != kNoIndex) text += "(" + std::to_string(index_) + ")";
  return text;
}

void Control::Move(int left, int top, int width, int height) {
  SetLeft(left);
  SetTop(top);
  SetWidth(width);
  SetHeight(height);
}

void Control::BringToFront() {
  z_order_ = form_.NextZOrder();
  MarkChanged();
}

void Control::MarkChanged() {
  if (changed_) return;
  changed_ = true;
  form_.MarkChanged();
}

std::optional<PropertyValue> Control::Property(std::string_view name) const {
  if (EqualNoCase(name, "Name")) return name_;
  if (EqualNoCase(name, "Enabled")) return enabled_;
  if (EqualNoCase(name, "Visible")) return visible_;
  if (EqualNoCase(name, "Tag")) return tag_;
  if (EqualNoCase(name, "ToolTipText")) return tool_tip_;
  if (EqualNoCase(name, "BackColor")) return static_cast<double>(back_color_);
  if (EqualNoCase(name, "ForeColor")) return static_cast<double>(fore_color_);
  if (EqualNoCase(name, "BorderStyle")) return static_cast<double>(border_style_);
  if (EqualNoCase(name, "Left")) return static_cast<double>(left_);
  if (EqualNoCase(name, "Top")) return static_cast<double>(top_);
  if (EqualNoCase(name, "Width")) return static_cast<double>(width_);
  if (EqualNoCase(name, "Height")) return static_cast<double>(height_);
  return std::nullopt;
}

}  // namespace base
