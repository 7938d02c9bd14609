#include "ui/windows/draw_tables.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

#include "ui/theme/theme.h"
#include "ui/windows/caption.h"
#include "ui/windows/painting.h"

namespace ui {
namespace {

constexpr int kBalls = 7;
constexpr int kBonusColumn = 6;
constexpr int kDateColumn = 7;
constexpr int kDayColumn = 8;
constexpr int kCells = 9;
constexpr int kRowHeight = 27;
constexpr int kListRowHeight = 22;
constexpr int kBallColumn = 24;
constexpr int kCellPadding = 10;
constexpr int kFieldPadding = 16;
constexpr auto kWidestBall = "00";
constexpr auto kWidestDate = "00/00/00";
constexpr auto kWidestDay = "Wed";
constexpr auto kWidestLine = "00 00 00 00 00 00 00 00/00/00 0 We";

// A cell of the table of draws: the bonus ball in its own colour, the date stepping back, a
// hairline below each row.
class DrawCell : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const Theme& theme = Theme::Current();
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const Role ground = selected ? Role::kSelection : Role::kCard;
    painter->fillRect(option.rect, theme.Colour(ground));
    painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                      theme.Colour(Role::kLine));
    QFont font = theme.Figures();
    const bool bonus = index.column() == kBonusColumn;
    font.setBold(bonus);
    painter->setFont(font);
    painter->setPen(bonus                                        ? ReadableOn(ground, Role::kBonus)
                    : index.column() == kDateColumn && !selected ? theme.Colour(Role::kDim)
                                                                 : theme.Colour(Role::kText));
    painter->drawText(option.rect, Qt::AlignCenter, index.data().toString());
  }
};

int LineWidth() {
  return QFontMetrics(Theme::Current().Mono()).horizontalAdvance(QLatin1String(kWidestLine)) +
         kCellPadding;
}

// A line of the results as they appeared.
class DrawLine : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    return {LineWidth(), Theme::Current().Scaled(kListRowHeight)};
  }
};

QVBoxLayout* MakeColumn(QWidget* parent) {
  auto* const column = new QVBoxLayout(parent);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(Theme::Current().Space(Spacing::kSmall));
  return column;
}

}  // namespace

// --- Draw results

DrawResultsPanel::DrawResultsPanel(Binder& binder, main_window::MainWindow& window, QWidget* parent)
    : QWidget(parent), window_(window) {
  const Theme& theme = Theme::Current();
  auto* const column = MakeColumn(this);
  column->addWidget(MakeRowEditor(binder));
  auto* const row = new QHBoxLayout;
  row->setSpacing(theme.Space(Spacing::kGap));
  row->addWidget(MakeTable(binder), 5);
  row->addLayout(MakeList(binder), 6);
  column->addLayout(row, 1);
  connect(&theme, &Theme::changed, this, &DrawResultsPanel::Restyle);
  Restyle();
}

QWidget* DrawResultsPanel::MakeTable(Binder& binder) {
  const Theme& theme = Theme::Current();
  auto* const side = new QWidget(this);
  auto* const column = MakeColumn(side);
  table_ = new QTableView(side);
  table_->setAccessibleName(tr("Draw results"));
  table_->setItemDelegate(new DrawCell(table_));
  table_->setShowGrid(false);
  table_->setFrameShape(QFrame::NoFrame);
  table_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  table_->verticalHeader()->hide();
  table_->horizontalHeader()->setHighlightSections(false);
  table_->horizontalHeader()->setSectionsClickable(true);
  table_->horizontalHeader()->setMinimumSectionSize(1);
  table_->horizontalHeader()->setProperty("narrow", true);
  column->addWidget(table_, 1);
  binder.Bind(table_, window_.ListView1);
  auto* const below = new QHBoxLayout;
  auto* const remove = new QPushButton(side);
  binder.Bind(remove, window_.Command18);
  below->addWidget(remove);
  below->addStretch(1);
  below->setSpacing(theme.Space(Spacing::kSmall));
  column->addLayout(below);
  return side;
}

QFrame* DrawResultsPanel::MakeRowEditor(Binder& binder) {
  const Theme& theme = Theme::Current();
  auto* const editor = new QFrame(this);
  editor->setProperty("field", true);
  auto* const row = new QHBoxLayout(editor);
  const int inside = theme.Space(Spacing::kSmall);
  row->setContentsMargins(inside, inside, inside, inside);
  row->setSpacing(theme.Space(Spacing::kTiny) / 2);
  for (int cell = 0; cell < kCells; ++cell) row->addWidget(MakeRowField(binder, editor, cell));
  row->addStretch(1);
  row->addSpacing(inside);
  auto* const accept = new QPushButton(editor);
  binder.Bind(accept, window_.Label18);
  auto* const cancel = new QPushButton(editor);
  binder.Bind(cancel, window_.CmdCancelSave);
  row->addWidget(accept);
  row->addSpacing(theme.Space(Spacing::kTiny));
  row->addWidget(cancel);
  binder.Bind(static_cast<QWidget*>(editor), window_.Picture6);
  return editor;
}

QLineEdit* DrawResultsPanel::MakeRowField(Binder& binder, QWidget* editor, int cell) {
  auto* const field = new QLineEdit(editor);
  field->setProperty("narrow", true);
  field->setAlignment(Qt::AlignCenter);
  field->setAccessibleName(Shown(window_.ListView1.Headers()[static_cast<std::size_t>(cell)]));
  binder.Bind(field, window_.TxtChange(cell));
  const QLatin1String widest(cell == kDateColumn  ? kWidestDate
                             : cell == kDayColumn ? kWidestDay
                                                  : kWidestBall);
  restyle_.push_back([field, widest] {
    const QFontMetrics metrics(Theme::Current().Text());
    field->setFixedWidth(metrics.horizontalAdvance(widest) + kFieldPadding);
  });
  return field;
}

QBoxLayout* DrawResultsPanel::MakeList(Binder& binder) {
  const Theme& theme = Theme::Current();
  auto* const column = new QVBoxLayout;
  column->setSpacing(theme.Space(Spacing::kTiny));
  auto* const heading = MakeCaption(tr("Results as they appeared"), this);
  auto* const list = new QListView(this);
  list->setAccessibleName(heading->text());
  list->setItemDelegate(new DrawLine(list));
  list->setFrameShape(QFrame::NoFrame);
  list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  binder.Bind(list, window_.List7);
  list->setTextElideMode(Qt::ElideNone);
  restyle_.push_back([list] {
    list->setFont(Theme::Current().Mono());
    list->setMinimumWidth(LineWidth() / 2);
    list->setMaximumWidth(LineWidth() + list->verticalScrollBar()->sizeHint().width() + 4);
  });
  column->addWidget(heading);
  column->addWidget(list, 1);
  return column;
}

void DrawResultsPanel::Restyle() {
  const Theme& theme = Theme::Current();
  for (const auto& restyle : restyle_) restyle();
  const QFontMetrics metrics(theme.Figures());
  const int date =
      metrics.horizontalAdvance(QLatin1String(kWidestDate)) + theme.Scaled(kCellPadding);
  const int day = metrics.horizontalAdvance(QLatin1String(kWidestDay)) + theme.Scaled(kCellPadding);
  QHeaderView* const header = table_->horizontalHeader();
  for (int column = 0; column < header->count(); ++column) {
    header->setSectionResizeMode(column,
                                 column < kBalls ? QHeaderView::Stretch : QHeaderView::Fixed);
  }
  header->resizeSection(kDateColumn, date);
  header->resizeSection(kDayColumn, day);
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table_->verticalHeader()->setDefaultSectionSize(theme.Scaled(kRowHeight));
  table_->setMinimumWidth(kBalls * theme.Scaled(kBallColumn) + date + day +
                          table_->verticalScrollBar()->sizeHint().width());
}

// --- Scan filter

ScanFilterPanel::ScanFilterPanel(Binder& binder, main_window::MainWindow& window, QWidget* parent)
    : QWidget(parent), window_(window) {
  const Theme& theme = Theme::Current();
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, theme.Space(Spacing::kTiny), 0, 0);
  row->setSpacing(theme.Space(Spacing::kInside) * 2);
  row->addWidget(MakeRange(binder), 3);
  auto* const column = new QVBoxLayout;
  column->setSpacing(theme.Space(Spacing::kInside));
  column->addWidget(MakeDays(binder));
  column->addWidget(MakeCountry(binder));
  column->addStretch(1);
  row->addLayout(column, 2);
}

QWidget* ScanFilterPanel::MakeRange(Binder& binder) {
  auto* const range = new QWidget(this);
  auto* const column = MakeColumn(range);
  column->addWidget(MakeCaption(tr("Draws"), range));
  for (base::Option* option : {&window_.Option6, &window_.OpScanRange}) {
    auto* const button = new QRadioButton(range);
    binder.Bind(button, *option);
    column->addWidget(button);
  }
  column->addWidget(MakeRangeFields(binder));
  column->addStretch(1);
  return range;
}

QWidget* ScanFilterPanel::MakeRangeFields(Binder& binder) {
  const Theme& theme = Theme::Current();
  auto* const frame = new QFrame(this);
  frame->setProperty("field", true);
  auto* const grid = new QGridLayout(frame);
  const int inside = theme.Space(Spacing::kGap);
  grid->setContentsMargins(inside, inside, inside, inside);
  grid->setSpacing(theme.Space(Spacing::kSmall));
  grid->setColumnStretch(0, 1);
  int row = 0;
  for (base::Label* caption : {&window_.LblStartAt, &window_.LblEndAt}) {
    auto* const label = new QLabel(frame);
    binder.Bind(label, *caption);
    auto* const field = new QLineEdit(frame);
    field->setAccessibleName(Shown(caption->Caption()));
    field->setMaximumWidth(field->sizeHint().width() / 2);
    binder.Bind(field, window_.TxtStartDrawAt(row));
    label->setBuddy(field);
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
    ++row;
  }
  binder.Bind(static_cast<QWidget*>(frame), window_.Frame4);
  return frame;
}

QWidget* ScanFilterPanel::MakeDays(Binder& binder) {
  auto* const days = new QWidget(this);
  auto* const column = MakeColumn(days);
  auto* const caption = MakeCaption(tr("Days to scan"), days);
  auto* const combo = new QComboBox(days);
  combo->setAccessibleName(caption->text());
  binder.Bind(combo, window_.Combo7);
  caption->setBuddy(combo);
  auto* const auto_scan = new QCheckBox(days);
  binder.Bind(auto_scan, window_.Check1);
  column->addWidget(caption);
  column->addWidget(combo);
  column->addWidget(auto_scan);
  return days;
}

QWidget* ScanFilterPanel::MakeCountry(Binder& binder) {
  auto* const country = new QWidget(this);
  auto* const column = MakeColumn(country);
  column->addWidget(MakeCaption(tr("Country"), country));
  auto* const row = new QHBoxLayout;
  row->setSpacing(Theme::Current().Space(Spacing::kInside));
  for (base::Option* option : {&window_.Option5, &window_.Option3}) {
    auto* const button = new QRadioButton(country);
    binder.Bind(button, *option);
    row->addWidget(button);
  }
  row->addStretch(1);
  column->addLayout(row);
  return country;
}

}  // namespace ui
