#include "ui/windows/wheel_tables.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "ui/windows/painting.h"

namespace ui {
namespace {

constexpr int kRowHeight = 30;
constexpr int kBall = 26;
constexpr int kBallColumn = 44;
constexpr int kTemperatureRow = 27;
constexpr int kTemperatureColumn = 110;
constexpr int kPillHeight = 19;
constexpr int kPillPadding = 12;
constexpr int kNumberColumn = 1;
constexpr int kBandColumn = 2;

// The ground of a cell with a hairline below.
void PaintGround(QPainter& painter, const QStyleOptionViewItem& option) {
  const Theme& theme = Theme::Current();
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  painter.fillRect(option.rect, theme.Colour(selected ? Role::kSelection : Role::kCard));
  painter.fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                   theme.Colour(Role::kLine));
}

class BallCell : public QStyledItemDelegate {
 public:
  BallCell(const QHash<QString, Role>& bands, QObject* parent)
      : QStyledItemDelegate(parent), bands_(bands) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const Theme& theme = Theme::Current();
    painter->save();
    PaintGround(*painter, option);
    painter->setRenderHint(QPainter::Antialiasing);
    const QString number = index.data().toString().trimmed();
    if (!number.isEmpty()) {
      const int size = theme.Scaled(kBall);
      QRectF ball(0, 0, size, size);
      ball.moveCenter(QRectF(option.rect).center());
      QFont font = theme.Figures();
      font.setBold(true);
      painter->setFont(font);
      const auto band = bands_.constFind(number);
      if (band == bands_.cend()) {
        painter->setPen(QPen(theme.Colour(Role::kAccent), 1.5));
        painter->setBrush(theme.Colour(Role::kTrack));
        painter->drawEllipse(ball.adjusted(1, 1, -1, -1));
        painter->setPen(theme.Colour(Role::kText));
        painter->drawText(ball, Qt::AlignCenter, number);
      } else {
        PaintBall(*painter, ball, number, *band);
        PaintBandSign(*painter, ball, *band);
      }
    }
    painter->restore();
  }

 private:
  const QHash<QString, Role>& bands_;
};

class TemperatureCell : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const Theme& theme = Theme::Current();
    painter->save();
    PaintGround(*painter, option);
    const QString text = index.data().toString();
    const std::optional<Role> band = index.column() == kBandColumn ? BandNamed(text) : std::nullopt;
    painter->setFont(band ? theme.CaptionFont() : theme.Figures());
    painter->setPen(theme.Colour(band ? Role::kOnBand : Role::kText));
    if (band) {
      const int width = painter->fontMetrics().horizontalAdvance(text) + 2 * kPillPadding;
      QRectF pill(0, 0, width, theme.Scaled(kPillHeight));
      pill.moveCenter(QRectF(option.rect).center());
      painter->setRenderHint(QPainter::Antialiasing);
      painter->setBrush(theme.Colour(*band));
      painter->setPen(Qt::NoPen);
      painter->drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
      painter->setPen(theme.Colour(Role::kOnBand));
    }
    painter->drawText(option.rect, Qt::AlignCenter, text);
    painter->restore();
  }
};

void Quieten(QTableView& table) {
  table.setShowGrid(false);
  table.setFrameShape(QFrame::NoFrame);
  table.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  table.horizontalHeader()->setHighlightSections(false);
  table.horizontalHeader()->setSectionsClickable(true);
  table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

}  // namespace

std::optional<Role> BandNamed(const QString& name) {
  if (name == QLatin1String("Cold")) return Role::kCold;
  if (name == QLatin1String("Warm")) return Role::kWarm;
  if (name == QLatin1String("Hot")) return Role::kHot;
  return std::nullopt;
}

std::optional<Role> BandOfNumber(const wheels::FrmTxt& window, const QString& number) {
  for (const auto& row : window.ListMain.Rows()) {
    if (Shown(row[kNumberColumn]) == number) return BandNamed(Shown(row[kBandColumn]));
  }
  return std::nullopt;
}

WheelLines::WheelLines(Binder& binder, wheels::FrmTxt& window, QWidget* parent)
    : QTableView(parent) {
  Quieten(*this);
  setAccessibleName(QObject::tr("Lines of the wheel"));
  setItemDelegate(new BallCell(bands_, this));
  binder.Bind(static_cast<QTableView*>(this), window.LstWheel);
  binder.Watch(window.ListMain, [this, &window] { TakeBands(window); });
  binder.Watch(window.LstWheel, [this, &window] { FitColumns(window); });
  connect(&Theme::Current(), &Theme::changed, this, [this] { Restyle(); });
  Restyle();
}

void WheelLines::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (model()->rowCount() > 0) return;
  QPainter painter(viewport());
  painter.setPen(Theme::Current().Colour(Role::kDim));
  painter.drawText(viewport()->rect(), Qt::AlignCenter,
                   QObject::tr("Generate lays out the lines with your numbers."));
}

void WheelLines::TakeBands(const wheels::FrmTxt& window) {
  bands_.clear();
  for (const auto& row : window.ListMain.Rows()) {
    if (const auto band = BandNamed(Shown(row[kBandColumn]))) {
      bands_.insert(Shown(row[kNumberColumn]), *band);
    }
  }
  viewport()->update();
}

// Only as many columns as the longest line has numbers.
void WheelLines::FitColumns(const wheels::FrmTxt& window) {
  std::size_t longest = 0;
  for (const auto& row : window.LstWheel.Rows()) longest = std::max(longest, row.size());
  verticalHeader()->setVisible(longest > 0);
  horizontalHeader()->setVisible(longest > 0);
  for (int column = 0; column < horizontalHeader()->count(); ++column) {
    setColumnHidden(column, static_cast<std::size_t>(column) >= longest);
    setColumnWidth(column, Theme::Current().Scaled(kBallColumn));
  }
}

void WheelLines::Restyle() {
  verticalHeader()->setDefaultSectionSize(Theme::Current().Scaled(kRowHeight));
  for (int column = 0; column < horizontalHeader()->count(); ++column) {
    setColumnWidth(column, Theme::Current().Scaled(kBallColumn));
  }
}

TemperatureTable::TemperatureTable(Binder& binder, wheels::FrmTxt& window, QWidget* parent)
    : QTableView(parent) {
  Quieten(*this);
  setAccessibleName(QObject::tr("Numbers from cold to hot"));
  setItemDelegate(new TemperatureCell(this));
  setDragEnabled(true);
  verticalHeader()->hide();
  binder.Bind(static_cast<QTableView*>(this), window.ListMain);
  connect(&Theme::Current(), &Theme::changed, this, [this] { Restyle(); });
  Restyle();
}

void TemperatureTable::Restyle() {
  verticalHeader()->setDefaultSectionSize(Theme::Current().Scaled(kTemperatureRow));
  for (int column = 0; column < horizontalHeader()->count(); ++column) {
    setColumnWidth(column, Theme::Current().Scaled(kTemperatureColumn));
  }
}

}  // namespace ui
