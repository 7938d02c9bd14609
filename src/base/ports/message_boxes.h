#pragma once

#include <optional>
#include <string>

namespace base {

// The title of every box that names none, and of the program itself.
inline constexpr const char* kProgramTitle = "Quorbit Number Desk";

enum class BoxIcon { kNone, kInformation, kQuestion, kExclamation, kCritical };
enum class BoxButtons { kOk, kOkCancel, kYesNo, kYesNoCancel, kRetryCancel };
enum class Answer { kOk, kCancel, kYes, kNo, kRetry };

// One message box as a procedure asks for it. Texts are Windows-1252.
struct MessageBox {
  std::string text;
  std::string title = kProgramTitle;
  BoxIcon icon = BoxIcon::kNone;
  BoxButtons buttons = BoxButtons::kOk;
};

struct InputBox {
  std::string prompt;
  std::string title = kProgramTitle;
  std::string default_text;
};

// The first button, which Return presses: the answer of a box that nobody looks at.
constexpr Answer DefaultAnswer(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::kYesNo:
    case BoxButtons::kYesNoCancel:
      return Answer::kYes;
    case BoxButtons::kRetryCancel:
      return Answer::kRetry;
    case BoxButtons::kOk:
    case BoxButtons::kOkCancel:
      break;
  }
  return Answer::kOk;
}

// Asks the person at the desk. The quiet default presses the default button.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  virtual Answer Ask(const MessageBox& box) { return DefaultAnswer(box.buttons); }
  // The text typed, or nothing when the box was cancelled.
  virtual std::optional<std::string> Input(const InputBox& box) { return box.default_text; }
};

}  // namespace base
