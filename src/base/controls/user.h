#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "base/controls/list_controls.h"
#include "base/controls/simple_controls.h"
#include "base/windows/desktop.h"

namespace base {

// An act that a person could not do, such as a click on a disabled control.
class ActRefused : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The acts of the person at the desk, each as one event (or the run of events that the platform
// makes of it). Scripts and the views use the same acts. Acts on disabled controls throw
// ActRefused.
class User {
 public:
  explicit User(Desktop& desktop) : desktop_(desktop) {}

  // Left button down, up and click; ticks and options change their value as a click does.
  void Click(Control& control);
  void DoubleClick(Control& control);
  void Press(Control& control, MouseButton button);
  void Release(Control& control, MouseButton button = MouseButton::kLeft);
  void Hover(Control& control);

  // Focus with the caret behind the text, then key by key, following the focus where it moves.
  // {Enter} {Tab} {Back} {Del} {Esc} {Home} {End} are keys. Any other brace text throws ActRefused.
  void Type(Control& control, std::string_view keys);
  // One typed character into the control that has the focus (key down, press, the text, key up).
  void TypeCharacter(char character);
  // The text, up to its first line break, takes the place of the box's: Change, then mouse up.
  void Paste(TextBox& box, std::string_view text);
  // The person's editing left this text in the box: Change.
  void EditText(TextBox& box, std::string_view text);
  // Key down and up with a key code.
  void Key(Control& control, int code);
  void Focus(Control& control);

  // Selects a row (0-based; of a table 1-based) and clicks it. ActRefused outside the rows.
  void Pick(ListBox& list, int row);
  void Pick(ComboBox& combo, int item);
  void Pick(ListView& table, int row);
  void ClickHeader(ListView& table, int column);

  void Drop(Control& control, const std::string& text);
  void Choose(MenuItem& item);
  void MoveScroll(Scroll& scroll, int value);
  void Fire(Timer& timer);
  void Close(Form& form);
  void Switch(Form& form);

 private:
  void Refuse(const Control& control) const;
  void ClickOnly(Control& control);
  void TypeKey(std::string_view name);
  void Backspace(TextBox& box);

  Desktop& desktop_;
};

}  // namespace base
