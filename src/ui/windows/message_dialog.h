#pragma once

#include <QDialog>

#include "base/ports/message_boxes.h"

class QBoxLayout;
class QLineEdit;
class QPushButton;

namespace ui {

// A message box of the desk. Return presses the first button; Escape and the close button are
// Cancel where there is one, otherwise No, otherwise OK.
class MessageDialog : public QDialog {
  Q_OBJECT

 public:
  MessageDialog(const base::MessageBox& box, QWidget* parent);
  // Waits for the person.
  base::Answer Ask();

 private:
  void AddButtons(QBoxLayout* row, base::BoxButtons buttons);

  base::Answer answer_;
};

// Asks for a line of text.
class InputDialog : public QDialog {
  Q_OBJECT

 public:
  InputDialog(const base::InputBox& box, QWidget* parent);
  // The text, or nothing when the person cancelled.
  std::optional<std::string> Ask();

 private:
  QLineEdit* field_;
};

}  // namespace ui
