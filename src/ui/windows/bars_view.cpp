#include "ui/windows/bars_view.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "ui/theme/theme.h"
#include "ui/windows/bars_accessible.h"

namespace ui {
namespace {

constexpr int kFewestColumns = 49;
constexpr int kNarrowestColumn = 15;
constexpr int kSmallestCount = 9;  // of the text below a bar, where columns are narrow
constexpr int kHeight = 100;
constexpr int kGrowMilliseconds = 120;
constexpr int kFrameMilliseconds = 16;

// Fast at first, then slower: 0 to 1.
double Eased(double part) { return 1 - std::pow(1 - part, 3); }

}  // namespace

BarsView::BarsView(shell::Desk& desk, main_window::MainWindow& window, Binder& binder,
                   QWidget* parent)
    : QWidget(parent),
      desk_(desk),
      window_(&window),
      binder_(binder),
      normal_bar_(std::max(1, window.HScroll1.Value())),
      clock_(new QTimer(this)) {
  MakeBarsAccessible();
  setObjectName(QStringLiteral("ProgressBar1"));
  setAccessibleName(tr("How often each ball has come up"));
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  clock_->setInterval(kFrameMilliseconds);
  connect(clock_, &QTimer::timeout, this, &BarsView::Step);
  for (int ball = 1; ball <= main_window::kLastBar; ++ball) Follow(binder, ball);
  connect(&binder, &Binder::synced, this, &BarsView::Synced);
  connect(&binder, &Binder::detached, this, [this] {
    clock_->stop();
    window_ = nullptr;
  });
  connect(&Theme::Current(), &Theme::changed, this, &BarsView::TakeFonts);
  Synced();
  TakeFonts();
}

// --- What the controls tell

void BarsView::Follow(Binder& binder, int ball) {
  binder.Watch(window_->ProgressBar1(ball), [this, ball] { TakeBar(ball); });
  for (base::Label* label : {&window_->Label1(ball), &window_->Label2(ball)}) {
    binder.Watch(*label, [this, ball] { update(ColumnRect(ball)); });
  }
}

void BarsView::TakeBar(int ball) {
  const base::Bar& bar = window_->ProgressBar1(ball);
  Growth& growth = growth_[static_cast<std::size_t>(ball)];
  const double to = bar.Max() > 0 ? std::clamp<double>(bar.Value() / bar.Max(), 0, 1) : 0;
  update(ColumnRect(ball));
  if (to == growth.to) return;
  growth.to = to;
  moving_ = true;
}

void BarsView::TakeDraw() {
  const auto& balls = desk_.Session().current_balls;
  if (balls == balls_on_show_) return;
  balls_on_show_ = balls;
  update();
}

void BarsView::TakeColumns() {
  int last = main_window::kLastBar;
  while (last > kFewestColumns && window_->ProgressBar1(last).Value() <= 0) --last;
  std::size_t digits = 0;
  for (int ball = 1; ball <= last; ++ball) {
    digits = std::max(digits, window_->Label2(ball).Caption().size());
  }
  const double zoom = static_cast<double>(window_->ProgressBar1(1).Width()) / normal_bar_;
  if (last == columns_ && digits == count_digits_ && zoom == zoom_) return;
  zoom_ = zoom;
  columns_ = last;
  count_digits_ = digits;
  TakeFonts();
}

void BarsView::TakeBands() {
  bool counted = false;
  bool warm = false;
  for (int ball = 1; ball <= columns_ && !warm; ++ball) {
    if (window_->ProgressBar1(ball).Value() <= 0) continue;
    counted = true;
    warm = BandOf(ball) == base::Band::kWarm;
  }
  warm = warm || !counted;
  if (bands_shown_ == ShowsBands() && has_warm_ == warm) return;
  bands_shown_ = ShowsBands();
  has_warm_ = warm;
  update();
  emit bandsChanged();
}

void BarsView::Synced() {
  if (!window_) return;
  TakeDraw();
  TakeColumns();
  TakeBands();
  if (!moving_) return;
  moving_ = false;
  // While a procedure runs each frame brings new values: they are shown as they are.
  const bool at_once = desk_.Desktop().Depth() > 0 || !isVisible();
  for (Growth& growth : growth_) {
    growth.from = growth.now;
    if (at_once) growth.now = growth.to;
  }
  if (at_once) {
    clock_->stop();
  } else {
    growing_since_.start();
    clock_->start();
  }
}

void BarsView::Step() {
  const auto elapsed = static_cast<double>(growing_since_.elapsed());
  const double part = std::min(1.0, elapsed / kGrowMilliseconds);
  for (Growth& growth : growth_) {
    growth.now = growth.from + (growth.to - growth.from) * Eased(part);
  }
  if (part >= 1) clock_->stop();
  update();
}

bool BarsView::ShowsBands() const {
  const store::Session& session = desk_.Session();
  return !session.graph_style_chosen || session.bar_colours.cold != session.bar_colours.hot;
}

bool BarsView::OnShow(int ball) const {
  const int above = BallAbove(ball);
  return above > 0 &&
         std::find(balls_on_show_.begin(), balls_on_show_.end(), above) != balls_on_show_.end();
}

int BarsView::BallAbove(int ball) const { return Shown(window_->Label1(ball).Caption()).toInt(); }

base::Band BarsView::BandOf(int ball) const {
  return ShowsBands() ? window_->ProgressBar1(ball).RankBand() : base::Band::kNone;
}

QString BarsView::BallName(int ball) const {
  return window_ ? tr("Ball %1").arg(BallAbove(ball)) : QString();
}

QString BarsView::BallValue(int ball) const {
  if (!window_) return {};
  QString value = Shown(window_->Label2(ball).Caption());
  if (ShowsBands()) {
    const base::Band band = BandOf(ball);
    value += band == base::Band::kHot    ? tr(", hot")
             : band == base::Band::kWarm ? tr(", warm")
                                         : tr(", cold");
  }
  if (OnShow(ball)) value += tr(", in the draw on show");
  if (window_->ProgressBar1(ball).BorderStyle() != 0) value += tr(", marked");
  return value;
}

// --- What the person does

int BarsView::ColumnAt(int x) const {
  const int ball = static_cast<int>(std::floor(x / Pitch())) + 1;
  return ball >= 1 && ball <= columns_ ? ball : 0;
}

QRect BarsView::ColumnRect(int ball) const {
  if (ball < 1) return {};
  return QRectF((ball - 1) * Pitch(), 0, Pitch(), height()).toAlignedRect();
}

void BarsView::GoTo(int ball, bool by_key) {
  if (!window_ || ball == current_) return;
  update(ColumnRect(current_));
  current_ = ball;
  update(ColumnRect(current_));
  if (ball == 0) return;
  binder_.Act([this, ball](base::User& user) { user.Hover(window_->ProgressBar1(ball)); });
  if (!by_key) return;
  emit walked(ball);
  QAccessibleEvent focus(this, QAccessible::Focus);
  focus.setChild(ball - 1);
  QAccessible::updateAccessibility(&focus);
}

void BarsView::mouseMoveEvent(QMouseEvent* event) {
  GoTo(ColumnAt(static_cast<int>(event->position().x())), false);
}

bool BarsView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  const int ball = ColumnAt(help.pos().x());
  if (!window_ || ball == 0) return true;
  base::Control* control = &window_->ProgressBar1(ball);
  if (help.pos().y() < number_height_) {
    control = &window_->Label1(ball);
    binder_.Act([control](base::User& user) { user.Hover(*control); });
  }
  QToolTip::showText(help.globalPos(), Shown(control->ToolTipText()), this, ColumnRect(ball));
  return true;
}

void BarsView::leaveEvent(QEvent* event) {
  if (!hasFocus()) GoTo(0, false);
  QWidget::leaveEvent(event);
}

void BarsView::mousePressEvent(QMouseEvent* event) {
  const int ball = ColumnAt(static_cast<int>(event->position().x()));
  const bool left = event->button() == Qt::LeftButton;
  if (!window_ || ball == 0 || (!left && event->button() != Qt::RightButton)) return;
  GoTo(ball, false);
  binder_.Act([&](base::User& user) {
    user.Press(window_->ProgressBar1(ball),
               left ? base::MouseButton::kLeft : base::MouseButton::kRight);
  });
}

void BarsView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return GoTo(std::max(1, current_ - 1), true);
    case Qt::Key_Right:
      return GoTo(std::min(columns_, current_ + 1), true);
    case Qt::Key_Home:
      return GoTo(1, true);
    case Qt::Key_End:
      return GoTo(columns_, true);
    case Qt::Key_Space:
      if (!window_ || current_ == 0) return;
      return binder_.Act([this](base::User& user) {
        user.Press(window_->ProgressBar1(current_), base::MouseButton::kLeft);
      });
    default:
      QWidget::keyPressEvent(event);
  }
}

void BarsView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  const bool by_key =
      event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (by_key && current_ == 0) GoTo(1, true);
  update(ColumnRect(current_));
}

void BarsView::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  if (!underMouse()) GoTo(0, false);
  update();
}

// --- Sizes

double BarsView::Pitch() const {
  return columns_ > 0 ? static_cast<double>(width()) / columns_ : kNarrowestColumn;
}

// The counts are set as large as their columns allow.
void BarsView::TakeFonts() {
  const Theme& theme = Theme::Current();
  number_font_ = theme.CaptionFont();
  count_font_ = theme.CaptionFont();
  count_font_.setWeight(QFont::Normal);
  const QString widest(static_cast<qsizetype>(std::max<std::size_t>(3, count_digits_)),
                       QLatin1Char('0'));
  const auto width_of = [&widest](const QFont& font) {
    return QFontMetricsF(font).horizontalAdvance(widest);
  };
  const int smallest = theme.Scaled(kSmallestCount);
  while (count_font_.pixelSize() > smallest && width_of(count_font_) > Pitch() - 1.5) {
    count_font_.setPixelSize(count_font_.pixelSize() - 1);
  }
  QFont narrow = count_font_;
  narrow.setPixelSize(smallest);
  const int narrowest =
      std::max(kNarrowestColumn, static_cast<int>(std::ceil(width_of(narrow) + 1)));
  const int room = parentWidget() ? parentWidget()->width() : 0;
  const int zoomed = zoom_ > 1 ? static_cast<int>(room * zoom_) : 0;
  setMinimumSize(std::max(columns_ * narrowest, zoomed), theme.Scaled(kHeight));
  number_height_ = QFontMetrics(number_font_).height() + theme.Space(Spacing::kTiny);
  count_height_ = QFontMetrics(count_font_).height() + theme.Space(Spacing::kTiny) / 2;
  update();
}

void BarsView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  TakeFonts();
}

}  // namespace ui
