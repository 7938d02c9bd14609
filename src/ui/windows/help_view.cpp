#include "ui/windows/help_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTreeWidget>

#include "ui/theme/theme.h"

namespace ui {
namespace {

constexpr QSize kFirstSize(920, 680);
constexpr int kSideWidth = 280;
constexpr int kSearchWidth = 220;
constexpr int kContext = 40;  // characters around a hit in the list
constexpr int kAnchorRole = Qt::UserRole;

// The list of contents stands at the left already.
QString WithoutContents(QString html) {
  static const QRegularExpression list(QStringLiteral("(<div id=\"contents\">.*?)<ul>.*?(</div>)"),
                                       QRegularExpression::DotMatchesEverythingOption);
  return html.replace(list, QStringLiteral("\\1\\2"));
}

QString PageStyle() {
  const Theme& theme = Theme::Current();
  const QString style = QStringLiteral(
      "body { color: %1; } h1, h2, h3 { color: %1; } h1 { font-size: %4px; }"
      "h2 { font-size: %5px; margin-top: 26px; } h3 { font-size: %6px; margin-top: 18px; }"
      "p, li { line-height: 140%; } a { color: %2; }"
      "code { font-family: '%7'; background-color: %3; }"
      "th { text-align: left; color: %8; } td, th { padding: 4px 10px 4px 0px; }");
  return style.arg(theme.Colour(Role::kText).name(), theme.Colour(Role::kAccent).name(),
                   theme.Colour(Role::kTrack).name(), QString::number(theme.Scaled(22)),
                   QString::number(theme.Scaled(18)), QString::number(theme.Scaled(15)),
                   theme.Mono().families().value(0), theme.Colour(Role::kDim).name());
}

QString PlainText(QString html) {
  static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
  html.remove(tag);
  QTextDocument document;
  document.setHtml(html);
  return document.toPlainText().trimmed();
}

QPushButton* MakeButton(const QString& text, const QString& tip, QWidget* parent) {
  auto* const button = new QPushButton(text, parent);
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  button->setAutoDefault(true);
  return button;
}

}  // namespace

HelpView::HelpView(const QByteArray& html, QWidget* parent)
    : QWidget(parent, Qt::Window), html_(WithoutContents(QString::fromUtf8(html))) {
  setObjectName(QStringLiteral("HelpWindow"));
  setWindowTitle(QStringLiteral("Quorbit Number Desk Help"));
  setAccessibleName(windowTitle());
  setProperty("ground", true);
  setAttribute(Qt::WA_StyledBackground);
  resize(kFirstSize);
  Build();
  FillContents();
  Fill();
  connect(&Theme::Current(), &Theme::changed, this, &HelpView::Fill);
}

void HelpView::Build() {
  const Theme& theme = Theme::Current();
  const int gap = theme.Space(Spacing::kGap);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(gap, gap, gap, gap);
  column->setSpacing(gap);
  column->addWidget(BuildBar());
  auto* const halves = new QSplitter(this);
  halves->setChildrenCollapsible(false);
  halves->setHandleWidth(gap);
  halves->addWidget(BuildSide());

  auto* const card = new QFrame(this);
  card->setProperty("card", true);
  auto* const inside = new QVBoxLayout(card);
  inside->setContentsMargins(gap, theme.Space(Spacing::kSmall), theme.Space(Spacing::kTiny),
                             theme.Space(Spacing::kSmall));
  page_ = new QTextBrowser(card);
  page_->setFrameShape(QFrame::NoFrame);
  page_->setProperty("page", true);
  page_->setOpenExternalLinks(true);
  page_->setAccessibleName(QStringLiteral("Page"));
  inside->addWidget(page_);
  halves->addWidget(card);
  halves->setStretchFactor(1, 1);
  halves->setSizes({theme.Scaled(kSideWidth), kFirstSize.width() - theme.Scaled(kSideWidth)});
  column->addWidget(halves, 1);

  connect(back_, &QPushButton::clicked, page_, &QTextBrowser::backward);
  connect(forward_, &QPushButton::clicked, page_, &QTextBrowser::forward);
  connect(page_, &QTextBrowser::backwardAvailable, back_, &QWidget::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward_, &QWidget::setEnabled);
  auto* const find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, this, [this] { Open(base::HelpPage::kSearch); });
  auto* const escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  connect(escape, &QShortcut::activated, this, &QWidget::close);
}

QWidget* HelpView::BuildBar() {
  auto* const bar = new QWidget(this);
  auto* const row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(Theme::Current().Space(Spacing::kSmall));
  back_ = MakeButton(QStringLiteral("\u2190"), QStringLiteral("Back"), bar);
  forward_ = MakeButton(QStringLiteral("\u2192"), QStringLiteral("Forward"), bar);
  back_->setEnabled(false);
  forward_->setEnabled(false);
  field_ = new QLineEdit(bar);
  field_->setPlaceholderText(QStringLiteral("Search the manual"));
  field_->setAccessibleName(field_->placeholderText());
  field_->setClearButtonEnabled(true);
  field_->setMinimumWidth(Theme::Current().Scaled(kSearchWidth));
  count_ = new QLabel(bar);
  count_->setProperty("dim", true);
  previous_ = MakeButton(QStringLiteral("\u2191"), QStringLiteral("Previous hit"), bar);
  next_ = MakeButton(QStringLiteral("\u2193"), QStringLiteral("Next hit"), bar);
  for (QWidget* widget : std::initializer_list<QWidget*>{back_, forward_}) row->addWidget(widget);
  row->addStretch();
  for (QWidget* widget : std::initializer_list<QWidget*>{count_, field_, previous_, next_}) {
    row->addWidget(widget);
  }
  connect(field_, &QLineEdit::textChanged, this, &HelpView::Search);
  connect(field_, &QLineEdit::returnPressed, this, [this] { ShowHit(hit_ + 1); });
  connect(previous_, &QPushButton::clicked, this, [this] { ShowHit(hit_ - 1); });
  connect(next_, &QPushButton::clicked, this, [this] { ShowHit(hit_ + 1); });
  return bar;
}

QWidget* HelpView::BuildSide() {
  const Theme& theme = Theme::Current();
  auto* const card = new QFrame(this);
  card->setProperty("card", true);
  auto* const inside = new QVBoxLayout(card);
  const int margin = theme.Space(Spacing::kSmall);
  inside->setContentsMargins(margin, margin, margin, margin);
  contents_ = new QTreeWidget(card);
  contents_->setHeaderHidden(true);
  contents_->setIndentation(theme.Space(Spacing::kInside));
  contents_->setAccessibleName(QStringLiteral("Contents"));
  hits_ = new QListWidget(card);
  hits_->setWordWrap(true);
  hits_->setAccessibleName(QStringLiteral("Hits"));
  hits_->hide();
  inside->addWidget(contents_);
  inside->addWidget(hits_);
  connect(contents_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
    if (item) GoTo(item->data(0, kAnchorRole).toString());
  });
  connect(hits_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0 && row != hit_) ShowHit(row);
  });
  return card;
}

void HelpView::Fill() {
  page_->document()->setDefaultStyleSheet(PageStyle());
  page_->document()->setDefaultFont(Theme::Current().Text());
  page_->document()->setDocumentMargin(Theme::Current().Space(Spacing::kSmall));
  page_->setHtml(html_);
  Search(field_->text());
}

void HelpView::FillContents() {
  static const QRegularExpression heading(
      QStringLiteral("<h([23])[^>]*>\\s*<a name=\"([^\"]+)\"></a>(.*?)</h\\1>"),
      QRegularExpression::DotMatchesEverythingOption);
  QTreeWidgetItem* chapter = nullptr;
  auto match = heading.globalMatch(html_);
  while (match.hasNext()) {
    const QRegularExpressionMatch found = match.next();
    const bool is_chapter = found.captured(1) == QLatin1String("2") || !chapter;
    auto* const item = is_chapter ? new QTreeWidgetItem(contents_) : new QTreeWidgetItem(chapter);
    item->setText(0, PlainText(found.captured(3)));
    item->setToolTip(0, item->text(0));
    item->setData(0, kAnchorRole, found.captured(2));
    if (is_chapter) chapter = item;
  }
}

void HelpView::Open(base::HelpPage page) {
  if (!isVisible()) move(screen()->availableGeometry().center() - rect().center());
  show();
  raise();
  activateWindow();
  if (page == base::HelpPage::kSearch) {
    field_->setFocus();
    field_->selectAll();
    return;
  }
  field_->clear();
  contents_->setCurrentItem(contents_->topLevelItem(0));
  contents_->setFocus();
}

void HelpView::GoTo(const QString& anchor) {
  QTreeWidgetItem* const item = contents_->currentItem();
  if (item) item->setExpanded(true);
  page_->setSource(QUrl(QLatin1Char('#') + anchor));
  page_->scrollToAnchor(anchor);
}

void HelpView::Search(const QString& words) {
  places_.clear();
  hits_->clear();
  hit_ = -1;
  const QString text = page_->toPlainText();
  const auto length = static_cast<int>(words.size());
  for (qsizetype at = 0; length > 1; at += length) {
    at = text.indexOf(words, at, Qt::CaseInsensitive);
    if (at < 0) break;
    places_ += static_cast<int>(at);
    const QString line = page_->document()->findBlock(static_cast<int>(at)).text();
    const int start = static_cast<int>(at) -
                      page_->document()->findBlock(static_cast<int>(at)).position() - kContext;
    const QString before = start > 0 ? QStringLiteral("\u2026") : QString();
    hits_->addItem(before + line.mid(qMax(0, start), length + 2 * kContext).simplified());
  }
  hits_->setVisible(length > 1);
  contents_->setVisible(length <= 1);
  const bool any = !places_.isEmpty();
  previous_->setEnabled(any);
  next_->setEnabled(any);
  count_->setText(length <= 1 ? QString() : any ? QString() : QStringLiteral("Nothing found"));
  if (any) {
    ShowHit(0);
  } else {
    MarkHits();
  }
}

void HelpView::ShowHit(int hit) {
  if (places_.isEmpty()) return;
  const auto count = static_cast<int>(places_.size());
  hit_ = (hit + count) % count;
  QTextCursor cursor(page_->document());
  cursor.setPosition(places_[hit_]);
  page_->setTextCursor(cursor);
  page_->ensureCursorVisible();
  hits_->setCurrentRow(hit_);
  count_->setText(QStringLiteral("%1 of %2").arg(hit_ + 1).arg(count));
  MarkHits();
}

void HelpView::MarkHits() {
  const Theme& theme = Theme::Current();
  QList<QTextEdit::ExtraSelection> marks;
  for (int hit = 0; hit < static_cast<int>(places_.size()); ++hit) {
    QTextEdit::ExtraSelection mark;
    mark.cursor = QTextCursor(page_->document());
    mark.cursor.setPosition(places_[hit]);
    mark.cursor.setPosition(places_[hit] + static_cast<int>(field_->text().size()),
                            QTextCursor::KeepAnchor);
    const bool now = hit == hit_;
    mark.format.setBackground(theme.Colour(now ? Role::kAccent : Role::kShown));
    mark.format.setForeground(theme.Colour(now ? Role::kOnAccent : Role::kText));
    marks += mark;
  }
  page_->setExtraSelections(marks);
}

}  // namespace ui
