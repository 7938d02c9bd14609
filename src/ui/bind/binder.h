#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "base/controls/form.h"
#include "base/controls/list_controls.h"
#include "base/controls/simple_controls.h"
#include "base/controls/user.h"
#include "shell/desk.h"

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLabel;
class QKeyEvent;
class QLineEdit;
class QListView;
class QMouseEvent;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTableView;
class QTimer;
class QWidget;

namespace ui {

// A Windows-1252 text of the desk as the screen shows it, and back.
QString Shown(const std::string& text);
std::string Typed(const QString& text);
// A caption for a widget that takes no "&" as an Alt letter.
QString PlainCaption(const std::string& caption);

// Joins the widgets of one window to the controls of its form.
//
// Each Bind gives the widget its object name and accessible name, keeps its text, state, tool tip,
// visibility and enabling as the control has them, and turns what the person does into acts of
// base::User. Changes of controls reach the widgets at most 60 times a second; Sync brings them
// over at once. Bind widgets in reading order.
//
// What a view has set before binding stays: an accessible name, a tool tip (until the control has
// one). A button with the property "iconOnly" keeps an empty text; its caption becomes the
// accessible name and the tool tip. Visibility is set when the control's visibility changes, so a
// view may hide a widget for reasons of its own. The binder is a QObject child of the window.
//
// A binder whose form was unloaded goes quiet: the form may be gone by then.
class Binder : public QObject {
  Q_OBJECT

 public:
  Binder(shell::Desk& desk, base::Form& form, QWidget* window);
  ~Binder() override;

  // A field: each key goes through the control's key events, so that a box that takes digits only
  // never shows a letter. Pasting and editing in the middle run as one edit.
  void Bind(QLineEdit* edit, base::TextBox& box);
  // Read-only text of many lines.
  void Bind(QPlainTextEdit* edit, base::TextBox& box);
  void Bind(QAbstractButton* button, base::Button& control);
  // A label that is clicked.
  void Bind(QPushButton* button, base::Label& control);
  void Bind(QLabel* label, base::Label& control);
  void Bind(QRadioButton* button, base::Option& control);
  void Bind(QCheckBox* box, base::Tick& control);
  void Bind(QComboBox* combo, base::ComboBox& control);
  // Rows through a model that reads the control, whatever their number.
  void Bind(QListView* view, base::ListBox& control);
  void Bind(QTableView* view, base::ListView& control);
  // Visibility and enabling of a group of widgets.
  void Bind(QWidget* widget, base::Panel& control);
  // For painted widgets: `update` runs whenever the control has changed, and once now.
  void Watch(base::Control& control, std::function<void()> update);

  // Runs one act of the person. Acts that the desk refuses (a disabled control) are let go.
  void Act(const std::function<void(base::User&)>& act);
  // Brings every changed control to its widget now.
  void Sync();
  // Sync of every open binder: before the desk waits for the user.
  static void SyncAll();
  // The widget that has the desk's focus takes the keyboard too.
  void FocusOn(base::Control& control);
  // The form is being unloaded.
  void Detach();
  base::Form* Form() const { return form_; }

 signals:
  // Changes have reached the widgets.
  void synced();
  // The form is gone: nothing may read its controls from now on.
  void detached();

 private:
  struct Link {
    base::Control* control;
    QPointer<QWidget> widget;
    std::function<void()> update;
    bool visible;
    std::string tool_tip;
  };

  void Add(base::Control& control, QWidget* widget, std::function<void()> update);
  void Name(base::Control& control, QWidget* widget) const;
  void BindCaption(QAbstractButton* button, base::Captioned& control);
  void BindClick(QAbstractButton* button, base::Captioned& control);
  void SyncLinks();
  void SyncState(Link& link);
  // Brings one control over at once, changed or not: the widget may have run ahead of it.
  void Refresh(const base::Control& control);
  // An act that a widget of this control asks for. Nothing happens while widgets are being set.
  void ActOn(base::Control& control, const std::function<void(base::User&)>& act);

  bool eventFilter(QObject* watched, QEvent* event) override;
  base::Control* ControlOf(const QObject* widget) const;
  void MouseOn(QWidget* widget, base::Control& control, const QMouseEvent& event);
  bool KeyOn(QLineEdit* edit, base::TextBox& box, QKeyEvent* event);
  void TypeInto(QLineEdit* edit, base::TextBox& box, char key);
  void InsertInto(QLineEdit* edit, base::TextBox& box, char key);
  void KeyCode(base::Control& control, int key);

  shell::Desk& desk_;
  base::Form* form_;
  QPointer<QWidget> window_;
  QTimer* frame_clock_;
  std::vector<Link> links_;
  bool in_key_ = false;
};

}  // namespace ui
