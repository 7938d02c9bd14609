#include "ui/windows/main_window_view.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

#include "ui/theme/theme.h"
#include "ui/windows/draw_header.h"
#include "ui/windows/draw_tables.h"
#include "ui/windows/graph_card.h"
#include "ui/windows/graph_panels.h"
#include "ui/windows/report_panel.h"
#include "ui/windows/tab_card.h"

namespace ui {
namespace {

constexpr int kGraphShare = 5;
constexpr int kLowerShare = 6;
// What the two cards want of the width; the splitter scales both down to what there is.
constexpr int kTabShare = 5600;
constexpr int kReportShare = 4400;

}  // namespace

MainWindowView::MainWindowView(shell::Desk& desk, main_window::MainWindow& window, QWidget* parent)
    : QWidget(parent), window_(&window), binder_(desk, window, this) {
  setObjectName(QString::fromStdString(window.Name()));
  const int gap = Theme::Current().Space(Spacing::kGap);
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(gap, gap, gap, gap);
  rows->setSpacing(gap);
  rows->addWidget(new DrawHeader(binder_, window, this));
  rows->addWidget(new GraphCard(desk, window, binder_, this), kGraphShare);
  rows->addWidget(MakeLowerRow(), kLowerShare);
  setFocusProxy(findChild<QTableView*>(QString::fromStdString(window.ListView1.Name())));
  connect(&binder_, &Binder::detached, this, [this] { window_ = nullptr; });
  connect(&binder_, &Binder::synced, this, &MainWindowView::ShowTab);
  ShowTab();
}

QSplitter* MainWindowView::MakeLowerRow() {
  auto* const row = new QSplitter(Qt::Horizontal, this);
  row->setChildrenCollapsible(false);
  row->setHandleWidth(Theme::Current().Space(Spacing::kGap));
  row->addWidget(MakeTabCard());
  row->addWidget(new ReportPanel(binder_, *window_, row));
  row->setSizes({kTabShare, kReportShare});
  return row;
}

QFrame* MainWindowView::MakeTabCard() {
  auto* const card = new TabCard(this);
  panels_ = &card->Pages();
  tabs_ = {{&window_->Label3, &window_->Picture4, nullptr},
           {&window_->Label4, &window_->Picture3, nullptr},
           {&window_->Label5, &window_->Picture5, nullptr},
           {&window_->Label8, &window_->PicScanFilter, nullptr}};
  for (Tab& tab : tabs_) {
    tab.button = card->AddTab(binder_, *tab.label);
    connect(tab.button, &QPushButton::clicked, this, &MainWindowView::ShowTab);
    panels_->addWidget(MakePanel(*tab.panel));
  }
  return card;
}

QWidget* MainWindowView::MakePanel(const base::Panel& panel) {
  if (&panel == &window_->Picture4) return new DrawResultsPanel(binder_, *window_, panels_);
  if (&panel == &window_->PicScanFilter) return new ScanFilterPanel(binder_, *window_, panels_);
  if (&panel == &window_->Picture3) return new CombinationsPanel(binder_, *window_, panels_);
  return new GraphOptionsPanel(binder_, *window_, panels_);
}

void MainWindowView::ShowTab() {
  if (!window_) return;
  std::size_t front = 0;
  int highest = -1;
  for (std::size_t place = 0; place < tabs_.size(); ++place) {
    const base::Panel& panel = *tabs_[place].panel;
    if (!panel.Visible() || panel.ZOrder() <= highest) continue;
    front = place;
    highest = panel.ZOrder();
  }
  panels_->setCurrentIndex(static_cast<int>(front));
  for (std::size_t place = 0; place < tabs_.size(); ++place) {
    const Tab& tab = tabs_[place];
    tab.button->setChecked(place == front);
    tab.button->setEnabled(tab.label->Enabled() && tab.label->on.click);
  }
}

}  // namespace ui
