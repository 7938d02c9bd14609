#include "base/controls/user.h"

#include "base/language/text.h"

namespace base {
namespace {

constexpr int kReturnKey = 13;
constexpr int kBackKey = 8;
constexpr int kTabKey = 9;
constexpr int kDeleteKey = 46;
constexpr int kEscapeKey = 27;
constexpr int kHomeKey = 36;
constexpr int kEndKey = 35;

template <typename Event, typename... Args>
void Run(const Event& event, Args&&... args) {
  if (event) event(std::forward<Args>(args)...);
}

}  // namespace

void User::Refuse(const Control& control) const {
  if (!control.Enabled()) throw ActRefused(control.FullName() + " is disabled");
}

void User::Click(Control& control) {
  Refuse(control);
  if (control.Kind() == ControlKind::kMenuItem) {
    Choose(static_cast<MenuItem&>(control));
    return;
  }
  // One event from the first step to the last: a step may close the window, which then has to live
  // on until the end.
  desktop_.Dispatch([&] {
    const Form& window = control.Window();
    const auto in_window = [&] { return window.Loaded() && control.Enabled(); };
    Focus(control);
    if (in_window()) Press(control, MouseButton::kLeft);
    if (in_window()) Release(control);
    if (in_window()) ClickOnly(control);
  });
}

void User::ClickOnly(Control& control) {
  desktop_.Dispatch([&] {
    if (control.Kind() == ControlKind::kTick) {
      auto& tick = static_cast<Tick&>(control);
      tick.SetValue(tick.Value() == 0 ? 1 : 0);
    } else if (control.Kind() == ControlKind::kOption) {
      static_cast<Option&>(control).SetValue(true);
    }
    Run(control.on.click);
  });
}

void User::DoubleClick(Control& control) {
  Refuse(control);
  desktop_.Dispatch([&] { Run(control.on.double_click); });
}

void User::Press(Control& control, MouseButton button) {
  Refuse(control);
  desktop_.Dispatch([&] { Run(control.on.mouse_down, button); });
}

void User::Release(Control& control, MouseButton button) {
  Refuse(control);
  desktop_.Dispatch([&] { Run(control.on.mouse_up, button); });
}

void User::Hover(Control& control) {
  desktop_.Dispatch([&] { Run(control.on.mouse_move); });
}

void User::Focus(Control& control) {
  if (control.TakesFocus()) desktop_.Dispatch([&] { desktop_.SetFocus(control); });
}

void User::Type(Control& control, std::string_view keys) {
  Refuse(control);
  Focus(control);
  while (!keys.empty()) {
    const std::size_t end = keys.find('}');
    if (keys.front() == '{' && end != std::string_view::npos) {
      TypeKey(keys.substr(1, end - 1));
      keys.remove_prefix(end + 1);
    } else {
      TypeCharacter(keys.front());
      keys.remove_prefix(1);
    }
  }
}

void User::TypeKey(std::string_view name) {
  if (EqualNoCase(name, "Enter")) return TypeCharacter('\r');
  if (EqualNoCase(name, "Tab")) return desktop_.Dispatch([&] { desktop_.FocusNext(); });
  if (EqualNoCase(name, "Back")) return TypeCharacter('\b');
  if (EqualNoCase(name, "Esc")) return TypeCharacter('\x1b');
  Control* const target = desktop_.Focused();
  if (!target) return;
  if (EqualNoCase(name, "Del")) return Key(*target, kDeleteKey);
  if (EqualNoCase(name, "Home")) return Key(*target, kHomeKey);
  if (EqualNoCase(name, "End")) return Key(*target, kEndKey);
  throw ActRefused("no key is called {" + std::string(name) + "}");
}

void User::Backspace(TextBox& box) {
  const std::string& text = box.Text();
  if (!text.empty()) box.SetText(Left(text, text.size() - 1));
}

void User::TypeCharacter(char character) {
  Control* const target = desktop_.Focused();
  if (!target) return;
  desktop_.Dispatch([&] {
    const int code = static_cast<unsigned char>(character);
    Run(target->on.key_down, code);
    char key = character;
    Run(target->on.key_press, key);
    if (key != 0 && target->Kind() == ControlKind::kTextBox) {
      auto& box = static_cast<TextBox&>(*target);
      if (key == kBackKey) {
        Backspace(box);
      } else if (key != kReturnKey && key != kEscapeKey && key != kTabKey) {
        box.SetText(box.Text() + key);
      }
    }
    desktop_.TakeSentTabs();
    // The key is let go where the focus is by then.
    if (Control* const now = desktop_.Focused()) Run(now->on.key_up, code);
  });
}

// A box that a person types into holds one line: a text from elsewhere ends with its first.
void User::EditText(TextBox& box, std::string_view text) {
  Refuse(box);
  text = text.substr(0, text.find_first_of("\r\n"));
  desktop_.Dispatch([&] { box.SetText(text); });
}

void User::Paste(TextBox& box, std::string_view text) {
  Refuse(box);
  desktop_.Dispatch([&] {
    const Form& window = box.Window();
    Focus(box);
    if (window.Loaded()) EditText(box, text);
    if (window.Loaded() && box.Enabled()) Release(box);
  });
}

void User::Key(Control& control, int code) {
  Refuse(control);
  desktop_.Dispatch([&] {
    Run(control.on.key_down, code);
    Run(control.on.key_up, code);
  });
}

void User::Pick(ListBox& list, int row) {
  Refuse(list);
  if (row < 0 || row >= list.ListCount()) throw ActRefused(list.FullName() + " has no such row");
  Focus(list);
  desktop_.Dispatch([&] {
    list.SetListIndex(row);
    Run(list.on.click);
  });
}

void User::Pick(ComboBox& combo, int item) {
  Refuse(combo);
  if (item < 0 || item >= combo.ListCount()) {
    throw ActRefused(combo.FullName() + " has no such item");
  }
  Focus(combo);
  desktop_.Dispatch([&] {
    combo.SetListIndex(item);
    Run(combo.on.click);
  });
}

void User::Pick(ListView& table, int row) {
  Refuse(table);
  if (row < 1 || row > table.RowCount()) throw ActRefused(table.FullName() + " has no such row");
  Focus(table);
  desktop_.Dispatch([&] {
    table.Select(row);
    Run(table.on.click);
  });
}

void User::ClickHeader(ListView& table, int column) {
  Refuse(table);
  if (column < 0 || column >= static_cast<int>(table.Headers().size())) {
    throw ActRefused(table.FullName() + " has no such heading");
  }
  desktop_.Dispatch([&] { Run(table.on.header_click, column); });
}

void User::Drop(Control& control, const std::string& text) {
  Refuse(control);
  desktop_.Dispatch([&] { Run(control.on.drop, text); });
}

void User::Choose(MenuItem& item) {
  for (MenuItem* entry = &item; entry; entry = entry->Parent()) Refuse(*entry);
  desktop_.Dispatch([&] { Run(item.on.click); });
}

void User::MoveScroll(Scroll& scroll, int value) {
  Refuse(scroll);
  desktop_.Dispatch([&] { scroll.SetValue(value); });
}

void User::Fire(Timer& timer) {
  Refuse(timer);
  desktop_.Dispatch([&] { Run(timer.on.click); });
}

void User::Close(Form& form) {
  desktop_.Dispatch([&] { desktop_.Close(form); });
}

void User::Switch(Form& form) {
  desktop_.Dispatch([&] { desktop_.Activate(form); });
}

}  // namespace base
