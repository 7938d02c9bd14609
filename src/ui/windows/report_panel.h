#pragma once

#include <QFrame>
#include <QString>
#include <QStringList>
#include <array>

#include "main/main_window.h"
#include "ui/bind/binder.h"
#include "ui/theme/theme.h"

namespace ui {

// One sentence of the ranking, such as "The seven most common to date are  = 38 31": its words, and
// the balls behind the equals sign in the colour of their band. A text without balls stands as it
// is.
class RankingLine : public QWidget {
 public:
  RankingLine(Role band, QWidget* parent);
  void SetSentence(const QString& sentence);
  // The width that the words take, and the place where the balls begin if it is further right.
  int WordsWidth() const;
  void SetBallsLeft(int left);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int BallsLeft() const;
  int BallsWidth() const;
  bool FitsOneLine() const;
  void TakeHeight();

  const Role band_;
  QString words_;
  QStringList balls_;
  int balls_left_ = 0;
};

// The most and least common balls, and the report of the scan.
class ReportPanel : public QFrame {
 public:
  ReportPanel(Binder& binder, main_window::MainWindow& window, QWidget* parent);

 private:
  void TakeRanking();

  main_window::MainWindow& window_;
  std::array<RankingLine*, 2> ranking_;
};

}  // namespace ui
