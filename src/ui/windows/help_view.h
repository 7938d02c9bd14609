#pragma once

#include <QWidget>

#include "base/ports/world.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;

namespace ui {

// The manual: contents at the left, the page, and a search that walks from hit to hit. The manual
// is one HTML page whose headings h2 and h3 carry anchors.
class HelpView : public QWidget {
  Q_OBJECT

 public:
  // `html` is the whole manual as UTF-8.
  HelpView(const QByteArray& html, QWidget* parent);
  void Open(base::HelpPage page);

 private:
  void Build();
  QWidget* BuildSide();
  QWidget* BuildBar();
  void Fill();
  void FillContents();
  void GoTo(const QString& anchor);
  void Search(const QString& words);
  void ShowHit(int hit);
  void MarkHits();

  QString html_;
  QTextBrowser* page_ = nullptr;
  QTreeWidget* contents_ = nullptr;
  QListWidget* hits_ = nullptr;
  QLineEdit* field_ = nullptr;
  QPushButton* back_ = nullptr;
  QPushButton* forward_ = nullptr;
  QPushButton* previous_ = nullptr;
  QPushButton* next_ = nullptr;
  QLabel* count_ = nullptr;
  QList<int> places_;
  int hit_ = -1;
};

}  // namespace ui
