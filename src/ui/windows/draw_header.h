#pragma once

#include <QFrame>
#include <QLineEdit>
#include <functional>
#include <vector>

#include "store/main_window.h"
#include "ui/bind/binder.h"

class QBoxLayout;

namespace ui {

// A ball that is a field: a ring around a number, and the place to type it while editing.
class BallField : public QLineEdit {
 public:
  enum class Kind { kMain, kBonus };

  BallField(Kind kind, QWidget* parent);

  // Takes the font of the theme; the size in logical pixels.
  void SetSize(int size);
  // While a field is not edited it shows its number only, and the Tab key passes over it.
  void SetEditing(bool editing);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Kind kind_;
};

// The draw on show with what browses and edits it.
class DrawHeader : public QFrame {
 public:
  DrawHeader(Binder& binder, store::MainWindow& window, QWidget* parent);

 private:
  QBoxLayout* MakeBalls(Binder& binder);
  QBoxLayout* MakeDate(Binder& binder);
  QBoxLayout* MakeNotices(Binder& binder);
  QBoxLayout* MakeButtons(Binder& binder);
  QWidget* MakeBrowseButtons(Binder& binder);
  QLineEdit* MakeField(Binder& binder, base::TextBox& box, const QString& name,
                       const QString& widest);
  void SetEditing();
  void Restyle();

  store::MainWindow* window_;
  std::vector<BallField*> balls_;
  std::vector<QLineEdit*> date_fields_;
  std::vector<std::function<void()>> restyle_;
};

}  // namespace ui
