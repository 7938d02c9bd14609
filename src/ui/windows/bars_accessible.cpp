#include "ui/windows/bars_accessible.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <map>

#include "ui/windows/bars_view.h"

namespace ui {
namespace {

// One column as a screen reader knows it.
class BarAccessible : public QAccessibleInterface {
 public:
  BarAccessible(BarsView* view, int ball) : view_(view), ball_(ball) {}

  bool isValid() const override { return view_ && ball_ <= view_->Columns(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return view_ ? view_->window()->windowHandle() : nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(view_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text kind) const override {
    if (!isValid()) return {};
    if (kind == QAccessible::Name) return view_->BallName(ball_);
    if (kind == QAccessible::Value) return view_->BallValue(ball_);
    return {};
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    if (!isValid()) return {};
    const QRect column = view_->ColumnRect(ball_);
    return {view_->mapToGlobal(column.topLeft()), column.size()};
  }
  QAccessible::Role role() const override { return QAccessible::Indicator; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.focusable = true;
    state.focused = view_ && view_->hasFocus() && view_->CurrentBall() == ball_;
    state.readOnly = true;
    return state;
  }

 private:
  QPointer<BarsView> view_;
  const int ball_;
};

class BarsAccessible : public QAccessibleWidget {
 public:
  explicit BarsAccessible(BarsView* view) : QAccessibleWidget(view, QAccessible::Chart) {}
  ~BarsAccessible() override {
    for (const auto& [index, id] : children_) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return View()->Columns(); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    const auto found = children_.find(index);
    if (found != children_.end()) return QAccessible::accessibleInterface(found->second);
    auto* const bar = new BarAccessible(View(), index + 1);
    children_[index] = QAccessible::registerAccessibleInterface(bar);
    return bar;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const QPoint place = View()->mapFromGlobal(QPoint(x, y));
    return View()->rect().contains(place) ? child(View()->ColumnAt(place.x()) - 1) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* bar) const override {
    for (const auto& [index, id] : children_) {
      if (QAccessible::accessibleInterface(id) == bar) return index;
    }
    return -1;
  }
  QAccessibleInterface* focusChild() const override {
    return View()->hasFocus() ? child(View()->CurrentBall() - 1) : nullptr;
  }

 private:
  BarsView* View() const { return static_cast<BarsView*>(widget()); }

  mutable std::map<int, QAccessible::Id> children_;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  auto* const view = qobject_cast<BarsView*>(object);
  return view ? new BarsAccessible(view) : nullptr;
}

}  // namespace

void MakeBarsAccessible() {
  static const bool installed = [] {
    QAccessible::installFactory(&MakeInterface);
    return true;
  }();
  static_cast<void>(installed);
}

}  // namespace ui
