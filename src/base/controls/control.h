#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace base {

class Form;

// A colour in blue-green-red order (0xFF0000 is blue), or 0x80000000 + a system colour's number.
using Colour = std::uint32_t;

enum class MouseButton { kLeft, kRight };

// The value of a property as a script or a test asks for it.
using PropertyValue = std::variant<bool, double, std::string, std::vector<std::string>>;

enum class ControlKind {
  kLabel,
  kButton,
  kTextBox,
  kListBox,
  kComboBox,
  kOption,
  kTick,
  kBar,
  kListView,
  kPanel,
  kScroll,
  kTimer,
  kMenuItem,
};

// The event procedures of one control. An empty one means that the control does not listen.
struct ControlEvents {
  std::function<void()> click;
  std::function<void()> double_click;
  std::function<void()> change;
  std::function<void()> got_focus;
  std::function<void()> lost_focus;
  std::function<void()> mouse_move;
  std::function<void(MouseButton)> mouse_down;
  std::function<void(MouseButton)> mouse_up;
  std::function<void(int code)> key_down;
  std::function<void(int code)> key_up;
  std::function<void(char& key)> key_press;  // a key set to 0 is swallowed
  std::function<void(const std::string& text)> drop;
  std::function<void(int column)> header_click;
};

// What every control has. Setting a property to the value that it has does nothing; any other
// change marks the control, so that a view can bring its widget up to date.
class Control {
 public:
  static constexpr int kNoIndex = -1;

  Control(Form& form, ControlKind kind, std::string name, int index = kNoIndex);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& Window() const { return form_; }
  ControlKind Kind() const { return kind_; }
  const std::string& Name() const { return name_; }
  int Index() const { return index_; }
  // "MainWindow.Label2(7)"
  std::string FullName() const;

  bool Visible() const { return visible_; }
  bool Enabled() const { return enabled_; }
  const std::string& Tag() const { return tag_; }
  const std::string& ToolTipText() const { return tool_tip_; }
  Colour BackColor() const { return back_color_; }
  Colour ForeColor() const { return fore_color_; }
  int BorderStyle() const { return border_style_; }
  int Left() const { return left_; }
  int Top() const { return top_; }
  int Width() const { return width_; }
  int Height() const { return height_; }
  // Grows with each BringToFront in the window; the highest stands in front.
  int ZOrder() const { return z_order_; }

  void SetVisible(bool visible) { Set(visible_, visible); }
  void SetEnabled(bool enabled) { Set(enabled_, enabled); }
  void SetTag(std::string tag) { Set(tag_, std::move(tag)); }
  void SetToolTipText(std::string text) { Set(tool_tip_, std::move(text)); }
  void SetBackColor(Colour colour) { Set(back_color_, colour); }
  void SetForeColor(Colour colour) { Set(fore_color_, colour); }
  void SetBorderStyle(int style) { Set(border_style_, style); }
  void SetLeft(int left) { Set(left_, left); }
  void SetTop(int top) { Set(top_, top); }
  void SetWidth(int width) { Set(width_, width); }
  void SetHeight(int height) { Set(height_, height); }
  void Move(int left, int top, int width, int height);
  void BringToFront();

  // Labels, panels, bars and timers never take the focus.
  virtual bool TakesFocus() const { return false; }
  // The property named so (any case), or nothing when this kind of control has none such.
  virtual std::optional<PropertyValue> Property(std::string_view name) const;
  // The name of the property that a plain question asks for.
  virtual std::string_view MainProperty() const = 0;
  // All rows of a list; empty for every other kind.
  virtual bool HasRows() const { return false; }

  // True since the last change that no view has taken; the view clears it.
  bool Changed() const { return changed_; }
  void ClearChanged() { changed_ = false; }
  void MarkChanged();

  ControlEvents on;

 protected:
  template <typename T>
  void Set(T& member, T value) {
    if (member == value) return;
    member = std::move(value);
    MarkChanged();
  }

 private:
  Form& form_;
  const ControlKind kind_;
  const std::string name_;
  const int index_;
  bool visible_ = true;
  bool enabled_ = true;
  bool changed_ = false;
  std::string tag_;
  std::string tool_tip_;
  Colour back_color_ = 0x8000000F;
  Colour fore_color_ = 0;
  int border_style_ = 0;
  int left_ = 0;
  int top_ = 0;
  int width_ = 0;
  int height_ = 0;
  int z_order_ = 0;
};

}  // namespace base
