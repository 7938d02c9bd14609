#include "ui/windows/wheel_view.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/theme/theme.h"
#include "ui/windows/caption.h"
#include "ui/windows/number_slip.h"
#include "ui/windows/tab_card.h"
#include "ui/windows/wheel_tables.h"

namespace ui {
namespace {

constexpr base::Colour kLit = 0x00FFFF;
constexpr int kBallSize = 40;
constexpr int kBallPerText = 32;  // what a ball needs at the text size chosen
constexpr int kBadge = 22;
constexpr int kRowHeight = 24;
constexpr int kGuideLines = 3;
constexpr int kChoiceShare = 6;
constexpr int kResultShare = 5;

// The runs of blanks in the guide's texts stand for a line break.
QString GuideText(const std::string& caption) {
  static const QRegularExpression run(QStringLiteral(" {5,}"));
  return Shown(caption).replace(run, QStringLiteral("\n"));
}

// A row of a list with room to breathe.
class ListRow : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {QStyledItemDelegate::sizeHint(option, index).width(),
            Theme::Current().Scaled(kRowHeight)};
  }
};

// Flowing text that asks for its height by itself, so that the window's least height does not
// depend on its width.
class FlowingText : public QLabel {
 public:
  FlowingText(int lines, QWidget* parent) : QLabel(parent), lines_(lines) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
  }
  bool hasHeightForWidth() const override { return false; }
  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override {
    const int text = width() > 0 ? QLabel::heightForWidth(width()) : 0;
    return {0, std::max(text, lines_ * fontMetrics().lineSpacing())};
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    updateGeometry();
  }

 private:
  const int lines_;
};

void SetLook(QWidget* widget, const char* property, bool on) {
  if (widget->property(property).toBool() == on) return;
  widget->setProperty(property, on);
  widget->style()->unpolish(widget);
  widget->style()->polish(widget);
}

}  // namespace

WheelView::WheelView(shell::Desk& desk, wheels::FrmTxt& window, QWidget* parent)
    : QWidget(parent), window_(&window), binder_(desk, window, this) {
  setObjectName(QString::fromStdString(window.Name()));
  const int gap = Theme::Current().Space(Spacing::kGap);
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(gap, gap, gap, gap);
  rows->setSpacing(gap);
  rows->addWidget(MakeGuide());
  rows->addWidget(MakeChoice(), kChoiceShare);
  numbers_ = MakeNumbers();
  rows->addWidget(numbers_);
  rows->addWidget(MakeResult(), kResultShare);
  slip_ = new NumberSlip(binder_, window, this);
  slip_->installEventFilter(this);
  setFocusProxy(findChild<QListView*>(QString::fromStdString(window.List2.Name())));
  connect(&binder_, &Binder::detached, this, [this] { window_ = nullptr; });
  connect(&binder_, &Binder::synced, this, [this] {
    ShowTab();
    ShowPromise();
  });
  connect(&Theme::Current(), &Theme::changed, this, &WheelView::Restyle);
  Restyle();
  ShowTab();
  ShowPromise();
}

QFrame* WheelView::MakeCard(int step, const QString& title, QBoxLayout*& head,
                            QBoxLayout*& column) {
  const Theme& theme = Theme::Current();
  const int inside = theme.Space(Spacing::kInside);
  auto* const card = new QFrame(this);
  card->setProperty("card", true);
  column = new QVBoxLayout(card);
  column->setContentsMargins(inside, theme.Space(Spacing::kGap), inside,
                             theme.Space(Spacing::kGap));
  column->setSpacing(theme.Space(Spacing::kSmall));
  head = new QHBoxLayout;
  head->setSpacing(theme.Space(Spacing::kSmall));
  auto* const badge = new QLabel(QString::number(step), card);
  badge->setAlignment(Qt::AlignCenter);
  restyle_.push_back([badge] {
    const Theme& now = Theme::Current();
    const int size = now.Scaled(kBadge);
    badge->setFixedSize(size, size);
    badge->setStyleSheet(
        QStringLiteral("background: %1; color: %2; border-radius: %3px; "
                       "font-weight: 700;")
            .arg(now.Colour(Role::kAccent).name(), now.Colour(Role::kOnAccent).name())
            .arg(size / 2));
  });
  auto* const heading = new QLabel(title, card);
  heading->setProperty("heading", true);
  head->addWidget(badge);
  head->addWidget(heading);
  column->addLayout(head);
  return card;
}

QFrame* WheelView::MakeGuide() {
  const Theme& theme = Theme::Current();
  const int inside = theme.Space(Spacing::kInside);
  auto* const card = new QFrame(this);
  card->setProperty("card", true);
  auto* const row = new QHBoxLayout(card);
  row->setContentsMargins(inside, theme.Space(Spacing::kGap), inside, theme.Space(Spacing::kGap));
  row->setSpacing(theme.Space(Spacing::kSmall));
  window_->Label11.Each([&](base::Label& link) {
    auto* const button = new QPushButton(card);
    button->setProperty("link", true);
    binder_.Bind(button, link);
    binder_.Watch(link, [button, &link] { SetLook(button, "lit", link.BackColor() == kLit); });
    row->addWidget(button);
  });
  row->addSpacing(theme.Space(Spacing::kSmall));
  auto* const text = new FlowingText(kGuideLines, card);
  text->setObjectName(QString::fromStdString(window_->Label26.Name()));
  binder_.Watch(window_->Label26, [this, text] {
    text->setText(GuideText(window_->Label26.Caption()));
    text->setAccessibleName(text->text());
  });
  row->addWidget(text, 1);
  for (const int step : {1, 0}) {
    auto* const button = new QPushButton(card);
    button->setProperty("accent", step == 0);
    binder_.Bind(button, window_->cmdwizardp(step));
    QSizePolicy policy = button->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    button->setSizePolicy(policy);
    row->addWidget(button);
  }
  return card;
}

QWidget* WheelView::MakeChoice() {
  const Theme& theme = Theme::Current();
  auto* const pair = new QWidget(this);
  auto* const row = new QHBoxLayout(pair);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(theme.Space(Spacing::kGap));

  QBoxLayout* head = nullptr;
  QBoxLayout* column = nullptr;
  QFrame* const wheel = MakeCard(1, tr("Wheel"), head, column);
  head->addStretch(1);
  auto* const combos = new QHBoxLayout;
  combos->setSpacing(theme.Space(Spacing::kSmall));
  const std::pair<base::ComboBox*, QString> choices[] = {
      {&window_->CboMatch, tr("Guarantee")}, {&window_->CmbWheelPick, tr("Balls drawn")}};
  for (const auto& [control, name] : choices) {
    auto* const caption = MakeCaption(name, wheel);
    auto* const combo = new QComboBox(wheel);
    combo->setAccessibleName(name);
    binder_.Bind(combo, *control);
    caption->setBuddy(combo);
    combos->addWidget(caption);
    combos->addWidget(combo, 1);
  }
  column->addLayout(combos);
  auto* const library = new QListView(wheel);
  library->setAccessibleName(tr("Wheels"));
  library->setItemDelegate(new ListRow(library));
  binder_.Bind(library, window_->List2);
  column->addWidget(library, 1);
  promise_ = new FlowingText(1, wheel);
  promise_->setProperty("dim", true);
  column->addWidget(promise_);
  row->addWidget(wheel, 4);

  QFrame* const sets = MakeCard(2, tr("Numbers from the last scan"), head, column);
  head->addStretch(1);
  auto* const list = new QListView(sets);
  list->setAccessibleName(tr("Number sets"));
  list->setItemDelegate(new ListRow(list));
  binder_.Bind(list, window_->List1);
  column->addWidget(list, 1);
  row->addWidget(sets, 6);
  return pair;
}

QFrame* WheelView::MakeNumbers() {
  QBoxLayout* head = nullptr;
  QBoxLayout* column = nullptr;
  QFrame* const card = MakeCard(3, tr("Your numbers"), head, column);
  head->addStretch(1);
  auto* const sort = new QPushButton(card);
  binder_.Bind(sort, window_->cmdwizard(0));
  head->addWidget(sort);
  auto* const row = new QHBoxLayout;
  row->setSpacing(0);
  for (int place = 0; place < wheels::kNumberBoxes; ++place) row->addWidget(MakeBox(place), 1);
  column->addLayout(row);
  return card;
}

QWidget* WheelView::MakeBox(int place) {
  base::TextBox& box = window_->TXTActiveNumbers(place);
  auto* const cell = new QWidget(this);
  auto* const column = new QVBoxLayout(cell);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(Theme::Current().Space(Spacing::kTiny) / 2);
  auto* const ball = new BallField(BallField::Kind::kMain, cell);
  ball->setAccessibleName(tr("Number %1").arg(place + 1));
  ball->SetEditing(true);
  binder_.Bind(ball, box);
  // A ball tells the band of the number that it holds now, although a number that was typed or
  // sorted into it leaves the ground of the box as the last set gave it.
  for (base::Control* control : std::initializer_list<base::Control*>{&box, &window_->ListMain}) {
    binder_.Watch(*control,
                  [this, ball, &box] { ball->SetBand(BandOfNumber(*window_, Shown(box.Text()))); });
  }
  ball->on_drop = [this, &box](const QString& text) {
    binder_.Act([&](base::User& user) { user.Drop(box, Typed(text)); });
  };
  restyle_.push_back(
      [ball] { ball->SetSize(std::max(kBallSize, Theme::Current().Scaled(kBallPerText))); });
  auto* const label = MakeCaption(QString(), cell);
  label->setAlignment(Qt::AlignCenter);
  binder_.Bind(label, window_->Label4(place));
  column->addWidget(ball, 0, Qt::AlignHCenter);
  column->addWidget(label);
  return cell;
}

QFrame* WheelView::MakeResult() {
  auto* const card = new TabCard(this);
  pages_ = &card->Pages();
  wheel_tab_ = card->AddTab(binder_, window_->cmdwizar(0));
  numbers_tab_ = card->AddTab(binder_, window_->cmdwizar(1));
  for (QPushButton* tab : {wheel_tab_, numbers_tab_}) {
    connect(tab, &QPushButton::clicked, this, &WheelView::ShowTab);
  }
  card->AddButton(binder_, window_->cmdwizard(1))->setProperty("accent", true);
  card->AddButton(binder_, window_->cmdwizard(2));
  card->AddButton(binder_, window_->cmdwizard(3));
  pages_->addWidget(new WheelLines(binder_, *window_, pages_));
  pages_->addWidget(new TemperatureTable(binder_, *window_, pages_));
  return card;
}

void WheelView::ShowPromise() {
  if (!window_) return;
  int boxes = 0;
  window_->TXTActiveNumbers.Each([&boxes](const base::TextBox& box) { boxes += box.Visible(); });
  promise_->setText(window_->List2.ListIndex() < 0
                        ? tr("Choose a wheel: the number of lines is what it costs.")
                        : tr("Every %1 of your %2 numbers stand together in some line.")
                              .arg(Shown(window_->CboMatch.Text()))
                              .arg(boxes));
}

void WheelView::ShowTab() {
  if (!window_) return;
  const bool wheel = window_->LstWheel.ZOrder() >= window_->ListMain.ZOrder();
  pages_->setCurrentIndex(wheel ? 0 : 1);
  wheel_tab_->setChecked(wheel);
  numbers_tab_->setChecked(!wheel);
}

// The slip lies above the boxes that it serves where there is room.
void WheelView::PlaceSlip() {
  const int gap = Theme::Current().Space(Spacing::kSmall);
  slip_->adjustSize();
  slip_->move((width() - slip_->width()) / 2, std::max(gap, numbers_->y() - slip_->height() - gap));
  slip_->raise();
}

void WheelView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceSlip();
}

bool WheelView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == slip_ && event->type() == QEvent::Show) PlaceSlip();
  return QWidget::eventFilter(watched, event);
}

void WheelView::Restyle() {
  for (const auto& restyle : restyle_) restyle();
}

}  // namespace ui
