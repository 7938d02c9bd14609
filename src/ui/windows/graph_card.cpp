#include "ui/windows/graph_card.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <array>

#include "ui/theme/theme.h"
#include "ui/windows/eliding_label.h"

namespace ui {
namespace {

constexpr int kToldLines = 2;
constexpr int kStripHeight = 160;
constexpr int kSwatch = 11;
constexpr double kSwatchRound = 3;

struct Entry {
  Role role;
  const char* text;
};
constexpr std::array<Entry, 3> kEntries = {
    {{Role::kCold, "Cold \u2013"}, {Role::kWarm, "Warm"}, {Role::kHot, "Hot \u2022"}}};

// The key to the colours and marks of the bars.
class Legend : public QWidget {
 public:
  explicit Legend(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("Legend"));
    setAccessibleName(tr("Cold bars carry a dash, hot bars a dot"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(&Theme::Current(), &Theme::changed, this, [this] { updateGeometry(); });
  }
  void SetWarm(bool has_warm) {
    if (has_warm == has_warm_) return;
    has_warm_ = has_warm;
    updateGeometry();
    update();
  }
  QSize sizeHint() const override {
    const QFontMetrics metrics(Theme::Current().Text());
    int width = 0;
    for (const Entry& entry : kEntries) {
      if (Shows(entry)) width += EntryWidth(metrics, entry);
    }
    return {width, metrics.height()};
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const Theme& theme = Theme::Current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(theme.Text());
    const QFontMetrics metrics = painter.fontMetrics();
    const int swatch = theme.Scaled(kSwatch);
    int left = 0;
    for (const Entry& entry : kEntries) {
      if (!Shows(entry)) continue;
      painter.setPen(Qt::NoPen);
      painter.setBrush(theme.Colour(entry.role));
      painter.drawRoundedRect(QRectF(left, (height() - swatch) / 2.0, swatch, swatch), kSwatchRound,
                              kSwatchRound);
      painter.setPen(theme.Colour(Role::kDim));
      const int text_left = left + swatch + theme.Space(Spacing::kTiny) + 1;
      painter.drawText(text_left, 0, width(), height(), Qt::AlignLeft | Qt::AlignVCenter,
                       QString::fromUtf8(entry.text));
      left += EntryWidth(metrics, entry);
    }
  }

 private:
  bool Shows(const Entry& entry) const { return has_warm_ || entry.role != Role::kWarm; }
  static int EntryWidth(const QFontMetrics& metrics, const Entry& entry) {
    const Theme& theme = Theme::Current();
    return theme.Scaled(kSwatch) + theme.Space(Spacing::kTiny) + 1 +
           metrics.horizontalAdvance(QString::fromUtf8(entry.text)) + theme.Space(Spacing::kInside);
  }

  bool has_warm_ = true;
};

QLabel* MakeDim(QLabel* label, Binder& binder, base::Label& control) {
  label->setProperty("dim", true);
  binder.Bind(label, control);
  return label;
}

}  // namespace

GraphCard::GraphCard(shell::Desk& desk, main_window::MainWindow& window, Binder& binder,
                     QWidget* parent)
    : QFrame(parent), window_(window), bars_(new BarsView(desk, window, binder, nullptr)) {
  setProperty("card", true);
  const Theme& theme = Theme::Current();
  const int inside = theme.Space(Spacing::kInside);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(inside, theme.Space(Spacing::kGap), inside,
                             theme.Space(Spacing::kSmall));
  column->setSpacing(theme.Space(Spacing::kSmall));
  column->addLayout(MakeHead(binder));
  column->addWidget(MakeStrip(), 1);
}

QBoxLayout* GraphCard::MakeHead(Binder& binder) {
  const Theme& theme = Theme::Current();
  auto* const row = new QHBoxLayout;
  row->setSpacing(theme.Space(Spacing::kInside));
  auto* const title = new QLabel(tr("How often each ball has come up"), this);
  title->setProperty("heading", true);
  row->addWidget(title);
  auto* const legend = new Legend(this);
  row->addWidget(legend);
  const auto show_legend = [this, legend] {
    legend->setVisible(bars_->ShowsBands());
    legend->SetWarm(bars_->HasWarm());
  };
  connect(bars_, &BarsView::bandsChanged, legend, show_legend);
  show_legend();

  auto* const told = MakeDim(new ElidingLabel(kToldLines, this), binder, window_.TxtGraph);
  told->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  row->addWidget(told, 1);
  auto* const filtered = new QHBoxLayout;
  filtered->setSpacing(theme.Space(Spacing::kTiny));
  filtered->addWidget(MakeDim(new QLabel(this), binder, window_.LblFilterHeading));
  filtered->addWidget(MakeDim(new QLabel(this), binder, window_.LabFilterCount));
  row->addLayout(filtered);
  auto* const scan = new QPushButton(this);
  scan->setProperty("accent", true);
  binder.Bind(scan, window_.CmdScan);
  row->addWidget(scan);
  return row;
}

QScrollArea* GraphCard::MakeStrip() {
  auto* const strip = new QScrollArea(this);
  strip->setObjectName(QStringLiteral("OuterPict"));
  strip->setWidget(bars_);
  strip->setWidgetResizable(true);
  strip->setFrameShape(QFrame::NoFrame);
  strip->setFocusPolicy(Qt::NoFocus);
  strip->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  const auto set_height = [strip] {
    strip->setMinimumHeight(Theme::Current().Scaled(kStripHeight));
  };
  connect(&Theme::Current(), &Theme::changed, strip, set_height);
  set_height();
  connect(bars_, &BarsView::walked, strip, [this, strip](int ball) {
    const QRect column = bars_->ColumnRect(ball);
    strip->ensureVisible(column.center().x(), 0, column.width(), 0);
  });
  return strip;
}

}  // namespace ui
