#include "ui/windows/frame_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QHBoxLayout>
#include <QMenu>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>

#include "ui/theme/theme.h"
#include "ui/windows/menus.h"
#include "ui/windows/placement.h"
#include "ui/windows/side_bar.h"
#include "ui/windows/status_line.h"

namespace ui {
namespace {

constexpr QSize kFirstSize(1200, 820);
constexpr QSize kLeastSize(960, 640);

QList<QRect> Screens() {
  QList<QRect> screens;
  for (const QScreen* screen : QGuiApplication::screens()) screens += screen->availableGeometry();
  return screens;
}

}  // namespace

FrameView::FrameView(shell::Desk& desk, shell::FrmMain& frame)
    : desk_(desk), frame_(frame), binder_(desk, frame, this) {
  setObjectName(QString::fromStdString(frame.Name()));
  setAccessibleName(Shown(frame.Caption()));
  setMinimumSize(kLeastSize);
  BuildMenus();
  BuildRoom();
  status_ = new StatusLine(desk, frame, binder_, this);
  setStatusBar(status_);
  setWindowTitle(Shown(frame.Caption()));
}

void FrameView::BuildMenus() {
  FillMenuBar(menuBar(), frame_, binder_);
  QMenu* const view = MakeViewMenu(this, [this](const std::function<void()>& body) {
    if (!released_) desk_.Desktop().Dispatch(body);
  });
  view->addSeparator();
  QAction* const close = view->addAction(QStringLiteral("&Close window"));
  close->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_F4), QKeySequence(Qt::CTRL | Qt::Key_W)});
  connect(close, &QAction::triggered, this, &FrameView::CloseChild);
  connect(view, &QMenu::aboutToShow, close,
          [this, close] { close->setEnabled(!children_.isEmpty()); });
  connect(view, &QMenu::aboutToHide, close, [close] { close->setEnabled(true); });
  // Help stays the last.
  const QList<QAction*> menus = menuBar()->actions();
  menuBar()->insertMenu(menus.isEmpty() ? nullptr : menus.last(), view);
}

void FrameView::BuildRoom() {
  auto* const middle = new QWidget(this);
  auto* const row = new QHBoxLayout(middle);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  row->addWidget(new SideBar(frame_, binder_, middle));
  room_ = new QStackedWidget(middle);
  auto* const ground = new QWidget(room_);
  ground->setProperty("ground", true);
  room_->addWidget(ground);
  row->addWidget(room_, 1);
  setCentralWidget(middle);
}

void FrameView::AddChild(base::Form& form, QWidget* view) {
  // Where the room is smaller than the window's least size, it scrolls: nothing is ever cut.
  auto* const scroll = new QScrollArea(room_);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->viewport()->setAutoFillBackground(false);
  scroll->setWidget(view);
  view->setAutoFillBackground(false);
  children_.insert(&form, scroll);
  room_->addWidget(scroll);
  room_->setCurrentWidget(scroll);
  if (view->focusProxy()) view->setFocus();  // where the road through the window begins
  if (auto* const binder = view->findChild<Binder*>()) {
    connect(binder, &Binder::synced, status_, &StatusLine::Refresh);
  }
  status_->Refresh();
}

void FrameView::RaiseChild(base::Form& form) {
  if (QWidget* const child = children_.value(&form)) room_->setCurrentWidget(child);
}

void FrameView::RemoveChild(base::Form& form) {
  QWidget* const child = children_.take(&form);
  if (!child) return;
  room_->removeWidget(child);
  child->hide();
  child->deleteLater();
  if (!released_) status_->Refresh();
}

void FrameView::CloseChild() {
  base::Form* const form = children_.key(room_->currentWidget(), nullptr);
  if (form) binder_.Act([form](base::User& user) { user.Close(*form); });
}

void FrameView::ShowInPlace() {
  QRect place(QPoint(0, 0), kFirstSize);
  if (frame_.HasPlace()) {
    place = QRect(frame_.Left() / kUnits, frame_.Top() / kUnits, frame_.Width() / kUnits,
                  frame_.Height() / kUnits);
    if (place.width() < kLeastSize.width() / 2) place.setSize(kFirstSize);
    place = OnScreen(place, Screens());
  } else if (const QScreen* const screen = QGuiApplication::primaryScreen()) {
    const QRect room = screen->availableGeometry();
    place.setSize(kFirstSize.boundedTo(room.size()));
    place.moveCenter(room.center());
  }
  resize(place.size());
  move(place.topLeft());
  if (frame_.State() == base::WindowState::kMaximised) {
    showMaximized();
  } else {
    show();
  }
  placed_ = true;
  TellPlace();
}

void FrameView::PopUp(base::MenuItem& menu) {
  QMenu popup(this);
  Binder binder(desk_, frame_, &popup);
  FillMenu(&popup, menu, binder);
  popup.exec(QCursor::pos());
}

void FrameView::RefreshStatus() {
  if (!released_) status_->Refresh();
}

void FrameView::Release() {
  released_ = true;
  binder_.Detach();
}

// The desk's place of the frame is that of the window while it stands free.
void FrameView::TellPlace() {
  if (released_ || !placed_ || isMaximized() || isMinimized() || isFullScreen()) return;
  desk_.Desktop().Dispatch([this] {
    frame_.Move(pos().x() * kUnits, pos().y() * kUnits);
    frame_.Resize(width() * kUnits, height() * kUnits);
  });
}

void FrameView::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!released_) desk_.Stop();
}

void FrameView::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  TellPlace();
}

void FrameView::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  TellPlace();
}

void FrameView::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange || released_) return;
  const base::WindowState state = isMinimized()   ? base::WindowState::kMinimised
                                  : isMaximized() ? base::WindowState::kMaximised
                                                  : base::WindowState::kNormal;
  desk_.Desktop().Dispatch([&] { frame_.SetState(state); });
}

}  // namespace ui
