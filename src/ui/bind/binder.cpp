#include "ui/bind/binder.h"

#include <QAbstractButton>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>
#include <algorithm>

#include "base/language/code_page.h"

namespace ui {
namespace {

constexpr int kFrameMilliseconds = 16;

std::vector<Binder*>& Binders() {
  static std::vector<Binder*> binders;
  return binders;
}

// Above 0 while widgets are being set, so that what they signal is not taken for the person's acts.
int setting_widgets = 0;

struct SettingWidgets {
  SettingWidgets() { ++setting_widgets; }
  ~SettingWidgets() { --setting_widgets; }
};

}  // namespace

QString Shown(const std::string& text) { return QString::fromStdString(base::ToUtf8(text)); }

std::string Typed(const QString& text) { return base::FromUtf8(text.toStdString()); }

QString PlainCaption(const std::string& caption) {
  QString text = Shown(caption);
  return text.remove(QLatin1Char('&')).trimmed();
}

Binder::Binder(shell::Desk& desk, base::Form& form, QWidget* window)
    : QObject(window), desk_(desk), form_(&form), window_(window), frame_clock_(new QTimer(this)) {
  frame_clock_->setSingleShot(true);
  frame_clock_->setInterval(kFrameMilliseconds);
  connect(frame_clock_, &QTimer::timeout, this, &Binder::Sync);
  Binders().push_back(this);
  // One call reaches all binders of the form: whichever comes first syncs them all.
  form.on_changed = [this] {
    if (!frame_clock_->isActive()) frame_clock_->start();
  };
  if (form.Changed()) frame_clock_->start();
}

Binder::~Binder() {
  base::Form* const form = form_;
  Detach();
  std::erase(Binders(), this);
  for (Binder* other : Binders()) {
    if (!form || other->form_ != form) continue;
    form->on_changed = [other] { other->frame_clock_->start(); };
  }
}

void Binder::Detach() {
  if (!form_) return;
  form_->on_changed = nullptr;
  form_ = nullptr;
  frame_clock_->stop();
  links_.clear();
  emit detached();
}

// --- from the controls to the widgets

void Binder::Add(base::Control& control, QWidget* widget, std::function<void()> update) {
  links_.push_back({&control, widget, std::move(update), true, {}});
  if (widget) widget->installEventFilter(this);
  const SettingWidgets guard;
  SyncState(links_.back());
  links_.back().update();
}

void Binder::Name(base::Control& control, QWidget* widget) const {
  const int index = control.Index();
  QString name = QString::fromStdString(control.Name());
  if (index != base::Control::kNoIndex) name += QStringLiteral("(%1)").arg(index);
  widget->setObjectName(name);
  if (widget->accessibleName().isEmpty()) widget->setAccessibleName(name);
}

void Binder::Watch(base::Control& control, std::function<void()> update) {
  Add(control, nullptr, std::move(update));
}

void Binder::SyncState(Link& link) {
  if (!link.widget) return;
  link.widget->setEnabled(link.control->Enabled());
  if (link.visible != link.control->Visible()) {
    link.visible = link.control->Visible();
    link.widget->setVisible(link.visible);
  }
  if (link.tool_tip != link.control->ToolTipText()) {
    link.tool_tip = link.control->ToolTipText();
    link.widget->setToolTip(Shown(link.tool_tip));
  }
}

void Binder::SyncLinks() {
  if (window_ && window_->isWindow()) window_->setWindowTitle(Shown(form_->Caption()));
  for (Link& link : links_) {
    if (!link.control->Changed()) continue;
    SyncState(link);
    link.update();
  }
}

void Binder::Sync() {
  if (!form_) return;
  frame_clock_->stop();
  const SettingWidgets guard;
  std::vector<QPointer<Binder>> ours;
  for (Binder* binder : Binders()) {
    if (binder->form_ == form_) ours.emplace_back(binder);
  }
  for (const QPointer<Binder>& binder : ours) binder->SyncLinks();
  for (base::Control* control : form_->Controls()) control->ClearChanged();
  form_->ClearChanged();
  for (const QPointer<Binder>& binder : ours) emit binder->synced();
}

void Binder::SyncAll() {
  const std::vector<Binder*> binders = Binders();
  for (Binder* binder : binders) {
    if (binder->form_ && binder->form_->Changed()) binder->Sync();
  }
}

void Binder::Refresh(const base::Control& control) {
  if (!form_) return;
  const SettingWidgets guard;
  for (const Link& link : links_) {
    if (link.control == &control) link.update();
  }
}

void Binder::FocusOn(base::Control& control) {
  Sync();
  for (const Link& link : links_) {
    if (link.control == &control && link.widget && link.widget->focusPolicy() != Qt::NoFocus) {
      link.widget->setFocus(Qt::OtherFocusReason);
    }
  }
}

// --- from the person to the controls

void Binder::Act(const std::function<void(base::User&)>& act) {
  if (!form_) return;
  try {
    act(desk_.User());
  } catch (const base::ActRefused&) {
    // The widget was a frame behind its control.
  }
}

void Binder::ActOn(base::Control& control, const std::function<void(base::User&)>& act) {
  if (setting_widgets > 0) return;
  Act(act);
  Refresh(control);
}

base::Control* Binder::ControlOf(const QObject* widget) const {
  for (const Link& link : links_) {
    if (link.widget == widget) return link.control;
  }
  return nullptr;
}

bool Binder::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  const bool mouse = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
                     type == QEvent::MouseButtonDblClick;
  const bool hover = type == QEvent::Enter || type == QEvent::MouseMove;
  if (!mouse && !hover && type != QEvent::FocusIn && type != QEvent::KeyPress) return false;
  base::Control* const control = ControlOf(watched);
  if (!control || setting_widgets > 0) return false;

  if (type == QEvent::FocusIn) {
    Act([control](base::User& user) { user.Focus(*control); });
  } else if (hover) {
    if (control->on.mouse_move) Act([control](base::User& user) { user.Hover(*control); });
  } else if (type == QEvent::KeyPress) {
    if (auto* edit = qobject_cast<QLineEdit*>(watched)) {
      return KeyOn(edit, static_cast<base::TextBox&>(*control), static_cast<QKeyEvent*>(event));
    }
  } else {
    MouseOn(static_cast<QWidget*>(watched), *control, *static_cast<QMouseEvent*>(event));
  }
  return false;
}

// Buttons and lists make whole clicks of their own; what is left is told as it comes.
void Binder::MouseOn(QWidget* widget, base::Control& control, const QMouseEvent& event) {
  const bool left = event.button() == Qt::LeftButton;
  if (event.type() == QEvent::MouseButtonDblClick) {
    if (control.on.double_click) Act([&](base::User& user) { user.DoubleClick(control); });
    return;
  }
  const bool press = event.type() == QEvent::MouseButtonPress;
  if (qobject_cast<QLabel*>(widget) && left) {
    const bool listens = control.on.click || control.on.mouse_down || control.on.mouse_up;
    if (!press && listens && widget->rect().contains(event.pos())) {
      ActOn(control, [&](base::User& user) { user.Click(control); });
    }
    return;
  }
  if (left && qobject_cast<QAbstractButton*>(widget)) return;
  const auto button = left ? base::MouseButton::kLeft : base::MouseButton::kRight;
  if (press && control.on.mouse_down) {
    Act([&](base::User& user) { user.Press(control, button); });
  } else if (!press && control.on.mouse_up) {
    Act([&](base::User& user) { user.Release(control, button); });
  }
  const bool clicked = !press && left && qobject_cast<QLineEdit*>(widget) && control.on.click;
  if (clicked && form_) Act([&](base::User&) { desk_.Desktop().Dispatch(control.on.click); });
}

}  // namespace ui
