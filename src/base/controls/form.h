#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/control.h"

namespace base {

// How a window stands on the desktop.
enum class FormRole {
  kFrame,   // holds the working windows
  kChild,   // a working window inside the frame
  kDialog,  // stands by itself in front of the frame
};

enum class WindowState { kNormal, kMinimised, kMaximised };

struct FormEvents {
  std::function<void()> load;
  std::function<void()> activate;
  std::function<void()> unload;
  std::function<void()> resize;
};

// A window as data: its caption, its place, and its controls by name.
class Form {
 public:
  Form(std::string name, FormRole role) : name_(std::move(name)), role_(role) {}
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  FormRole Role() const { return role_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);
  bool Loaded() const { return loaded_; }
  bool Visible() const { return visible_; }
  // A window takes part in input while this is true; only Desktop changes the two flags below.
  void SetLoaded(bool loaded) { loaded_ = loaded; }
  void SetVisible(bool visible);

  // Place and size in units of ten to a logical pixel.
  int Left() const { return left_; }
  int Top() const { return top_; }
  int Width() const { return width_; }
  int Height() const { return height_; }
  void Move(int left, int top);
  void Resize(int width, int height);
  // False until a place was set: the platform then chooses one.
  bool HasPlace() const { return has_place_; }
  WindowState State() const { return state_; }
  void SetState(WindowState state);

  // Every control in the order of creation.
  const std::vector<Control*>& Controls() const { return controls_; }
  // The control of this name (any case) and index; null when there is none. A group is asked for
  // with an index, a single control without.
  Control* Find(std::string_view name, int index = Control::kNoIndex) const;
  std::optional<PropertyValue> Property(std::string_view name) const;

  // Set by any change of the window or a control; the listener is told at the first one after
  // ClearChanged.
  bool Changed() const { return changed_; }
  void ClearChanged() { changed_ = false; }
  void MarkChanged();
  std::function<void()> on_changed;

  FormEvents on;

 private:
  friend class Control;
  void Register(Control* control);
  int NextZOrder() { return ++z_order_; }

  const std::string name_;
  const FormRole role_;
  std::string caption_;
  bool loaded_ = false;
  bool visible_ = false;
  bool changed_ = false;
  bool has_place_ = false;
  int left_ = 0;
  int top_ = 0;
  int width_ = 0;
  int height_ = 0;
  int z_order_ = 0;
  WindowState state_ = WindowState::kNormal;
  std::vector<Control*> controls_;
  std::map<std::pair<std::string, int>, Control*> by_name_;
};

}  // namespace base
