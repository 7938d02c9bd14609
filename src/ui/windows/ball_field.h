#pragma once

#include <QLineEdit>
#include <functional>
#include <optional>

#include "ui/theme/theme.h"

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
  // Fills the ball with the colour of a band and gives it the band's sign; a screen reader hears
  // its name.
  void SetBand(std::optional<Role> band);

  // Takes what was dropped on the field in the place of the field itself.
  std::function<void(const QString& text)> on_drop;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  Role Ring() const;
  void Restyle();

  const Kind kind_;
  std::optional<Role> band_;
  int size_ = 0;
};

}  // namespace ui
