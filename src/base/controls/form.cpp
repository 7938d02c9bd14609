#include "base/controls/form.h"

#include <algorithm>

#include "base/language/text.h"

namespace base {

void Form::Register(Control* control) {
  controls_.push_back(control);
  by_name_[{Lower(control->Name()), control->Index()}] = control;
}

Control* Form::Find(std::string_view name, int index) const {
  const auto found = by_name_.find({Lower(name), index});
  return found == by_name_.end() ? nullptr : found->second;
}

void Form::MarkChanged() {
  if (changed_) return;
  changed_ = true;
  if (on_changed) on_changed();
}

void Form::SetCaption(std::string caption) {
  if (caption_ == caption) return;
  caption_ = std::move(caption);
  MarkChanged();
}

void Form::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  MarkChanged();
}

void Form::Move(int left, int top) {
  left_ = left;
  top_ = top;
  has_place_ = true;
  MarkChanged();
}

void Form::Resize(int width, int height) {
  if (width_ == width && height_ == height) return;
  width_ = width;
  height_ = height;
  MarkChanged();
  if (on.resize) on.resize();
}

void Form::SetState(WindowState state) {
  if (state_ == state) return;
  state_ = state;
  MarkChanged();
}

std::optional<PropertyValue> Form::Property(std::string_view name) const {
  if (EqualNoCase(name, "Name")) return name_;
  if (EqualNoCase(name, "Caption")) return caption_;
  if (EqualNoCase(name, "Visible")) return visible_;
  if (EqualNoCase(name, "Enabled")) return true;
  if (EqualNoCase(name, "Left")) return static_cast<double>(left_);
  if (EqualNoCase(name, "Top")) return static_cast<double>(top_);
  if (EqualNoCase(name, "Width")) return static_cast<double>(width_);
  if (EqualNoCase(name, "Height")) return static_cast<double>(height_);
  return std::nullopt;
}

}  // namespace base
