#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "ui/bind/binder.h"

// Fields, buttons and labels.

namespace ui {
namespace {

constexpr char kReturn = '\r';
constexpr char kEscape = '\x1b';
constexpr char kBackspace = '\b';

// The classic code of a key that moves or deletes; 0 for every other.
int ClassicCode(int key) {
  switch (key) {
    case Qt::Key_PageUp:
      return 33;
    case Qt::Key_PageDown:
      return 34;
    case Qt::Key_End:
      return 35;
    case Qt::Key_Home:
      return 36;
    case Qt::Key_Left:
      return 37;
    case Qt::Key_Up:
      return 38;
    case Qt::Key_Right:
      return 39;
    case Qt::Key_Down:
      return 40;
    case Qt::Key_Delete:
      return 46;
    default:
      return 0;
  }
}

bool CaretBehindText(const QLineEdit& edit) {
  return !edit.hasSelectedText() && edit.cursorPosition() == edit.text().size();
}

}  // namespace

// --- fields

void Binder::Bind(QLineEdit* edit, base::TextBox& box) {
  Name(box, edit);
  Add(box, edit, [edit, &box] {
    const QString text = Shown(box.Text());
    if (edit->text() == text) return;
    const bool behind = CaretBehindText(*edit);
    const int caret = edit->cursorPosition();
    edit->setText(text);
    if (!behind) edit->setCursorPosition(caret);
  });
  connect(edit, &QLineEdit::textEdited, this, [this, &box](const QString& text) {
    // What comes without a key was pasted or dropped with the mouse.
    const bool pasted = !in_key_;
    ActOn(box, [&](base::User& user) {
      pasted ? user.Paste(box, Typed(text)) : user.EditText(box, Typed(text));
    });
  });
}

bool Binder::KeyOn(QLineEdit* edit, base::TextBox& box, QKeyEvent* event) {
  if (edit->isReadOnly() || in_key_) return false;
  const int key = event->key();
  const bool command =
      event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  const QString text = event->text();
  const std::string typed = Typed(text);
  if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    TypeInto(edit, box, kReturn);
    return true;
  }
  if (key == Qt::Key_Escape) {
    TypeInto(edit, box, kEscape);
    return false;
  }
  if (key == Qt::Key_Backspace && !command && CaretBehindText(*edit)) {
    TypeInto(edit, box, kBackspace);
    return true;
  }
  if (!command && text.size() == 1 && text.front().isPrint() && Shown(typed) == text) {
    if (CaretBehindText(*edit)) {
      TypeInto(edit, box, typed.front());
    } else {
      InsertInto(edit, box, typed.front());
    }
    return true;
  }
  KeyCode(box, key);
  // The field's own editing; its new text arrives by textEdited.
  in_key_ = !event->matches(QKeySequence::Paste);
  const QPointer<Binder> alive = this;
  edit->event(event);
  if (alive) in_key_ = false;
  return true;
}

void Binder::KeyCode(base::Control& control, int key) {
  const int code = ClassicCode(key);
  if (code == 0 || (!control.on.key_down && !control.on.key_up)) return;
  Act([&](base::User& user) { user.Key(control, code); });
}

void Binder::TypeInto(QLineEdit* edit, base::TextBox& box, char key) {
  ActOn(box, [&](base::User& user) {
    user.Focus(box);
    if (desk_.Desktop().Focused() == &box) user.TypeCharacter(key);
  });
  if (form_ && edit->hasFocus()) edit->setCursorPosition(static_cast<int>(edit->text().size()));
}

// A key with the caret inside the text, or over a selection: the box's filter decides on the key,
// then the new text comes in as one edit.
void Binder::InsertInto(QLineEdit* edit, base::TextBox& box, char key) {
  const QString before = edit->text();
  const int start = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
  const int length = static_cast<int>(edit->selectedText().size());
  const int code = static_cast<unsigned char>(key);
  ActOn(box, [&](base::User& user) {
    base::Desktop& desktop = desk_.Desktop();
    desktop.Dispatch([&] {
      if (box.on.key_down) box.on.key_down(code);
      if (box.on.key_press) box.on.key_press(key);
      // A key that took the place of all that stood there is the first one, not the last.
      if (length == before.size()) desktop.DropSentTabs();
    });
    if (key != 0 && form_) {
      const QString middle = Shown(std::string(1, key));
      user.EditText(box, Typed(before.left(start) + middle + before.mid(start + length)));
    }
    desktop.Dispatch([&] {
      desktop.TakeSentTabs();
      base::Control* const now = desktop.Focused();
      if (now && now->on.key_up) now->on.key_up(code);
    });
  });
  if (form_ && key != 0) edit->setCursorPosition(start + 1);
}

void Binder::Bind(QPlainTextEdit* edit, base::TextBox& box) {
  Name(box, edit);
  edit->setReadOnly(true);
  edit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  Add(box, edit, [edit, &box] {
    QString text = Shown(box.Text());
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (edit->toPlainText() != text) edit->setPlainText(text);
  });
}

// --- buttons

void Binder::BindCaption(QAbstractButton* button, base::Captioned& control) {
  Name(control, button);
  Add(control, button, [button, &control] {
    const QString plain = PlainCaption(control.Caption());
    if (!plain.isEmpty()) button->setAccessibleName(plain);
    if (!button->property("iconOnly").toBool()) {
      button->setText(Shown(control.Caption()));
    } else if (control.ToolTipText().empty()) {
      button->setToolTip(plain);
    }
  });
}

void Binder::BindClick(QAbstractButton* button, base::Captioned& control) {
  if (auto* push = qobject_cast<QPushButton*>(button)) push->setAutoDefault(true);
  BindCaption(button, control);
  connect(button, &QAbstractButton::clicked, this,
          [this, &control] { ActOn(control, [&](base::User& user) { user.Click(control); }); });
}

void Binder::Bind(QAbstractButton* button, base::Button& control) { BindClick(button, control); }

void Binder::Bind(QPushButton* button, base::Label& control) { BindClick(button, control); }

void Binder::Bind(QLabel* label, base::Label& control) {
  Name(control, label);
  label->setTextFormat(Qt::PlainText);
  Add(control, label, [label, &control] {
    const QString text = Shown(control.Caption());
    if (label->text() != text) label->setText(text);
    if (!text.isEmpty()) label->setAccessibleName(text);
  });
}

void Binder::Bind(QRadioButton* button, base::Option& control) {
  BindClick(button, control);
  Add(control, button, [button, &control] {
    if (button->isChecked() == control.Value()) return;
    // An exclusive button refuses to be the one that is switched off.
    button->setAutoExclusive(false);
    button->setChecked(control.Value());
    button->setAutoExclusive(true);
  });
}

void Binder::Bind(QCheckBox* box, base::Tick& control) {
  BindClick(box, control);
  Add(control, box, [box, &control] { box->setChecked(control.Value() != 0); });
}

void Binder::Bind(QWidget* widget, base::Panel& control) {
  Name(control, widget);
  Add(control, widget, [] {});
}

}  // namespace ui
