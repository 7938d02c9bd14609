#pragma once

#include <QFrame>
#include <functional>
#include <vector>

#include "main/main_window.h"
#include "ui/bind/binder.h"
#include "ui/windows/ball_field.h"

class QBoxLayout;
class QLineEdit;

namespace ui {

// The draw on show with what browses and edits it.
class DrawHeader : public QFrame {
 public:
  DrawHeader(Binder& binder, main_window::MainWindow& window, QWidget* parent);

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

  main_window::MainWindow* window_;
  std::vector<BallField*> balls_;
  std::vector<QLineEdit*> date_fields_;
  std::vector<std::function<void()>> restyle_;
};

}  // namespace ui
