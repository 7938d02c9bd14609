#include "ui/windows/dialog_view.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QShowEvent>

#include "ui/theme/theme.h"

namespace ui {
namespace {

constexpr int kBannerPicture = 52;

}  // namespace

DialogView::DialogView(shell::Desk& desk, base::Form& form, QWidget* parent)
    : QWidget(parent, Qt::Dialog), form_(form), binder_(desk, form, this) {
  setObjectName(QString::fromStdString(form.Name()));
  setAccessibleName(Shown(form.Caption()));
  setWindowTitle(Shown(form.Caption()));
  setProperty("ground", true);
  setAttribute(Qt::WA_StyledBackground);
}

void DialogView::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!binder_.Form()) return;
  binder_.Act([this](base::User& user) { user.Close(form_); });
}

void DialogView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void DialogView::AddBanner(QBoxLayout* column, QLabel* title, QLabel* version) {
  const Theme& theme = Theme::Current();
  auto* const row = new QHBoxLayout;
  row->setSpacing(theme.Space(Spacing::kInside));
  auto* const picture = new QLabel(this);
  const QSize size(theme.Scaled(kBannerPicture), theme.Scaled(kBannerPicture));
  const QIcon program(QStringLiteral(":/icons/program.svg"));
  picture->setPixmap(program.pixmap(size, devicePixelRatioF()));
  picture->setFixedSize(size);
  picture->setAccessibleName(QStringLiteral("Picture of the program"));
  row->addWidget(picture);
  auto* const words = new QVBoxLayout;
  words->setSpacing(theme.Space(Spacing::kTiny));
  title->setProperty("title", true);
  version->setProperty("dim", true);
  words->addStretch();
  words->addWidget(title);
  words->addWidget(version);
  words->addStretch();
  row->addLayout(words, 1);
  column->addLayout(row);
}

// In the middle of the frame, or of the screen when there is no frame yet.
void DialogView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (event->spontaneous()) return;
  const QRect room =
      parentWidget() ? parentWidget()->frameGeometry() : screen()->availableGeometry();
  move(room.center() - QPoint(sizeHint().width(), sizeHint().height()) / 2);
}

QBoxLayout* DialogView::AddButtonRow(QBoxLayout* column) {
  auto* const row = new QHBoxLayout;
  row->setSpacing(Theme::Current().Space(Spacing::kSmall));
  row->addStretch();
  column->addLayout(row);
  return row;
}

}  // namespace ui
