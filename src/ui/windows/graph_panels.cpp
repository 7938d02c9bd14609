#include "ui/windows/graph_panels.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include "ui/theme/theme.h"
#include "ui/windows/caption.h"

namespace ui {
namespace {

constexpr int kNumbers = 6;
constexpr int kFieldWidth = 46;

}  // namespace

// --- Combinations

CombinationsPanel::CombinationsPanel(Binder& binder, main_window::MainWindow& window,
                                     QWidget* parent)
    : QWidget(parent), window_(window) {
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(Theme::Current().Space(Spacing::kSmall));
  auto* const table = new QPlainTextEdit(this);
  table->setAccessibleName(tr("Number combination results"));
  binder.Bind(table, window_.txtpermcheck);
  column->addWidget(table, 1);
  column->addLayout(MakeNumbers(binder));
}

QBoxLayout* CombinationsPanel::MakeNumbers(Binder& binder) {
  const Theme& theme = Theme::Current();
  auto* const row = new QHBoxLayout;
  row->setSpacing(theme.Space(Spacing::kTiny));
  for (int k = 0; k <= kNumbers; ++k) {
    if (k == kNumbers) {
      row->addSpacing(theme.Space(Spacing::kSmall));
      auto* const extra = new QLabel(this);
      binder.Bind(extra, window_.LblExtraBall);
      row->addWidget(extra);
    }
    auto* const field = new QLineEdit(this);
    field->setAlignment(Qt::AlignCenter);
    field->setFixedWidth(theme.Scaled(kFieldWidth));
    field->setAccessibleName(k == kNumbers ? tr("Extra ball") : tr("Number %1").arg(k + 1));
    binder.Bind(field, window_.Txtb1(k));
    row->addWidget(field);
  }
  row->addStretch(1);
  auto* const scan = new QPushButton(this);
  scan->setAccessibleName(tr("Scan for winning draws"));
  binder.Bind(scan, window_.Labscanwinners);
  row->addWidget(scan);
  return row;
}

// --- Graph options

GraphOptionsPanel::GraphOptionsPanel(Binder& binder, main_window::MainWindow& window,
                                     QWidget* parent)
    : QWidget(parent), window_(window) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(Theme::Current().Space(Spacing::kGap));
  row->addLayout(MakeChoices(binder), 1);
  row->addLayout(MakeStyles(binder), 1);
}

QBoxLayout* GraphOptionsPanel::MakeChoices(Binder& binder) {
  auto* const column = new QVBoxLayout;
  column->setSpacing(Theme::Current().Space(Spacing::kTiny));
  auto* const hint = new QLabel(this);
  hint->setProperty("caption", true);
  binder.Bind(hint, window_.LblApplyHint);
  auto* const list = new QListView(this);
  list->setAccessibleName(tr("What the graph shows"));
  binder.Bind(list, window_.LstMainWinSettings);
  column->addWidget(hint);
  column->addWidget(list, 1);
  return column;
}

QBoxLayout* GraphOptionsPanel::MakeStyles(Binder& binder) {
  const Theme& theme = Theme::Current();
  auto* const column = new QVBoxLayout;
  column->setSpacing(theme.Space(Spacing::kTiny));
  auto* const caption = MakeCaption(tr("Style"), this);
  auto* const list = new QListView(this);
  list->setAccessibleName(caption->text());
  binder.Bind(list, window_.LstGraphStyles);
  caption->setBuddy(list);
  column->addWidget(caption);
  column->addWidget(list, 1);
  column->addSpacing(theme.Space(Spacing::kSmall));

  auto* const width_caption = MakeCaption(tr("Width of the bars"), this);
  auto* const width = new QSlider(Qt::Horizontal, this);
  width->setAccessibleName(width_caption->text());
  width->setRange(window_.HScroll1.Min(), window_.HScroll1.Max());
  width_caption->setBuddy(width);
  binder.Watch(window_.HScroll1, [this, width] {
    const QSignalBlocker quiet(width);
    width->setValue(window_.HScroll1.Value());
  });
  connect(width, &QSlider::valueChanged, this, [this, &binder](int value) {
    binder.Act([this, value](base::User& user) { user.MoveScroll(window_.HScroll1, value); });
  });
  column->addWidget(width_caption);
  column->addWidget(width);
  return column;
}

}  // namespace ui
